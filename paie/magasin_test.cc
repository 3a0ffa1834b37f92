#include "paie/magasin.h"

#include "paie/calcul_mois.h"
#include "paie/paie_test_outils.h"
#include "paie/schema.h"

namespace orvalis::paie {
namespace {

class MagasinTest : public DossierTest {
 protected:
  // The message of the store's refusal to load the month.
  static std::string Refus(const std::string& chemin) {
    try {
      OuvreMagasinSqlite(chemin)->ChargeMois("2024-03");
    } catch (const ErreurMagasin& e) {
      return e.what();
    }
    return "(no error)";
  }
};

TEST_F(MagasinTest, SchemaCreeEtVersionne) {
  const std::string c = Chemin("neuf.db");
  OuvreMagasinSqlite(c, true);
  EXPECT_EQ(Nombre(c, "PRAGMA user_version"), kVersionSchema);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM sqlite_master WHERE name = 'lignes'"), 1);
  // Opened again, it is left as it is.
  OuvreMagasinSqlite(c);
  EXPECT_EQ(Nombre(c, "PRAGMA user_version"), kVersionSchema);
}

TEST_F(MagasinTest, AbsentSansCreationEstRefuse) {
  EXPECT_THROW(OuvreMagasinSqlite(Chemin("absent.db")), ErreurMagasin);
}

TEST_F(MagasinTest, VersionPlusRecenteRefusee) {
  const std::string c = Chemin("futur.db");
  OuvreMagasinSqlite(c, true);
  Sql(c, "PRAGMA user_version = 99");
  try {
    OuvreMagasinSqlite(c);
    FAIL();
  } catch (const ErreurMagasin& e) {
    EXPECT_TRUE(Contient(e.what(), "schema version 99 is newer"));
  }
}

// A version this program never writes: refused, not read as an old store to upgrade.
TEST_F(MagasinTest, VersionNegativeRefusee) {
  const std::string c = Chemin("negatif.db");
  OuvreMagasinSqlite(c, true);
  Sql(c, "PRAGMA user_version = -3");
  EXPECT_EQ(Refus(c), c + ": not an Orvalis store (schema version -3)");
  EXPECT_EQ(Nombre(c, "PRAGMA user_version"), -3);
}

TEST_F(MagasinTest, FichierQuiNEstPasUnMagasin) {
  const std::string c = Chemin("autre.db");
  {
    Base b(c, true);
    b.Execute("CREATE TABLE t (x)");
  }
  try {
    OuvreMagasinSqlite(c);
    FAIL();
  } catch (const ErreurMagasin& e) {
    EXPECT_TRUE(Contient(e.what(), "not an Orvalis store"));
  }
}

TEST_F(MagasinTest, TableManquante) {
  const std::string c = Commune(1);
  Sql(c, "DROP TABLE taux");
  EXPECT_EQ(Refus(c), "table 'taux' is missing");
}

TEST_F(MagasinTest, ColonneManquante) {
  const std::string c = Commune(1);
  Sql(c, "ALTER TABLE taux DROP COLUMN PartSalariale");
  EXPECT_EQ(Refus(c), "table 'taux': column 'PartSalariale' is missing");
}

// A column a host added with a default: the month is written beside it.
TEST_F(MagasinTest, ColonneAjouteeAuxResultats) {
  const std::string c = Commune(1);
  Sql(c, "ALTER TABLE lignes ADD COLUMN controle TEXT DEFAULT 'a revoir'");
  auto m = OuvreMagasinSqlite(c);
  m->EcritMois(CalculeMois(m->ChargeMois("2024-03")), false);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM lignes WHERE controle = 'a revoir'"),
            Nombre(c, "SELECT count(*) FROM salarie_rubriques"));
}

// Lines of an employee without a payslip that month (a store edited by hand): named.
TEST_F(MagasinTest, LigneSansBulletinALaRelecture) {
  const std::string c = Commune(1);
  auto m = OuvreMagasinSqlite(c);
  m->EcritMois(CalculeMois(m->ChargeMois("2024-03")), false);
  Sql(c, "PRAGMA foreign_keys = OFF; UPDATE lignes SET lIdSalarie = 77 WHERE ordre = "
         "(SELECT min(ordre) FROM lignes)");
  try {
    m->LitMois("2024-03");
    FAIL();
  } catch (const ErreurMagasin& e) {
    EXPECT_EQ(std::string(e.what()), "table 'lignes', month 202403, column 'lIdSalarie': "
                                     "employee 77 has no payslip that month");
  }
}

TEST_F(MagasinTest, MauvaisTypeDansUneSituation) {
  const std::string c = Commune(1);
  Sql(c, "UPDATE situations SET valeur = 'quatre cents' WHERE champ = 'dIndiceMajoreM'");
  const long long ligne = Nombre(c, "SELECT rowid FROM situations WHERE champ = 'dIndiceMajoreM'");
  EXPECT_EQ(Refus(c), "table 'situations', row " + std::to_string(ligne) +
                          ", column 'valeur': dIndiceMajoreM needs a number, got the text 'quatre cents'");
}

TEST_F(MagasinTest, EntierSeizeBitsHorsLimites) {
  const std::string c = Commune(1);
  Sql(c, "UPDATE situations SET valeur = 32768 WHERE champ = 'iEnfant_ACharge'");
  EXPECT_TRUE(Contient(Refus(c), "iEnfant_ACharge needs a 16-bit integer, got the integer 32768"));
}

// Past any integer: refused by its size, not converted.
TEST_F(MagasinTest, NombreImmenseDansUnChampEntier) {
  const std::string c = Commune(1);
  Sql(c, "UPDATE situations SET valeur = 1e300 WHERE champ = 'iEnfant_ACharge'");
  EXPECT_TRUE(Contient(Refus(c), "iEnfant_ACharge needs a 16-bit integer, got the number 1e+300"));
  Sql(c, "UPDATE situations SET valeur = 2.5 WHERE champ = 'iEnfant_ACharge'");
  EXPECT_TRUE(Contient(Refus(c), "iEnfant_ACharge needs a 16-bit integer, got the number 2.5"));
}

TEST_F(MagasinTest, ValeurNonNumeriqueDansLesTaux) {
  const std::string c = Commune(1);
  Sql(c, "UPDATE taux SET PartSalariale = 'onze' WHERE CodeTaux = 'CNRACL'");
  EXPECT_TRUE(Contient(Refus(c), "column 'PartSalariale': expected a number, got the text 'onze'"));
  EXPECT_TRUE(Contient(Refus(c), "table 'taux', row "));
}

TEST_F(MagasinTest, MethodeInconnue) {
  const std::string c = Commune(1);
  Sql(c, "UPDATE rubriques SET methode = 'TRAITEMENT INDICIAIRE' WHERE lIdRubrique = 100");
  EXPECT_EQ(Refus(c), "table 'rubriques', lIdRubrique 100, column 'methode': unknown method "
                      "'TRAITEMENT INDICIAIRE'");
}

TEST_F(MagasinTest, PreparationInconnue) {
  const std::string c = Commune(1);
  Sql(c, "INSERT INTO preparations VALUES (9, 'NBRE_JOURS')");
  EXPECT_EQ(Refus(c), "table 'preparations', ordre 9, column 'methode': unknown preparation 'NBRE_JOURS'");
}

TEST_F(MagasinTest, ChampInconnu) {
  const std::string c = Commune(1);
  Sql(c, "INSERT INTO situations VALUES (1001, '202401', 'dIndiceMajore', 400)");
  const long long ligne = Nombre(c, "SELECT rowid FROM situations WHERE champ = 'dIndiceMajore'");
  EXPECT_EQ(Refus(c), "table 'situations', row " + std::to_string(ligne) +
                          ", column 'champ': VarCalculSalarie has no field 'dIndiceMajore'");
}

TEST_F(MagasinTest, ColonneDuPlanQuiNEstPasUnChamp) {
  const std::string c = Commune(1);
  Sql(c, "ALTER TABLE rubriques ADD COLUMN sValeurBas TEXT");
  EXPECT_TRUE(Contient(Refus(c), "column 'sValeurBas': SalarieCalculRubrique has no field 'sValeurBas'"));
}

TEST_F(MagasinTest, CumulInconnuDansLesAlimentations) {
  const std::string c = Commune(1);
  Sql(c, "PRAGMA foreign_keys = OFF; INSERT INTO rubrique_cumuls VALUES (100, 'BRUTT', 'SALARIAL', 'S', 1)");
  EXPECT_TRUE(Contient(Refus(c), "table 'rubrique_cumuls', row "));
  EXPECT_TRUE(Contient(Refus(c), "column 'CodeCumul': no total 'BRUTT'"));
}

TEST_F(MagasinTest, PlafondSurUnCumulInconnu) {
  const std::string c = Commune(1);
  Sql(c, "PRAGMA foreign_keys = OFF; UPDATE cumuls SET plafond_de = 'TRAITEMENT' WHERE CodeCumul = 'ASSRAFP'");
  const long long id = Nombre(c, "SELECT IdCumul FROM cumuls WHERE CodeCumul = 'ASSRAFP'");
  EXPECT_EQ(Refus(c), "table 'cumuls', IdCumul " + std::to_string(id) +
                          ", column 'plafond_de': no total 'TRAITEMENT'");
}

TEST_F(MagasinTest, PlafondHorsPourcentage) {
  const std::string c = Commune(1);
  Sql(c, "UPDATE cumuls SET plafond_taux = 1e300 WHERE plafond_de IS NOT NULL");
  const long long id = Nombre(c, "SELECT IdCumul FROM cumuls WHERE plafond_de IS NOT NULL");
  EXPECT_EQ(Refus(c), "table 'cumuls', IdCumul " + std::to_string(id) +
                          ", column 'plafond_taux': a percentage from 0 to 100, got 1e+300");
  Sql(c, "UPDATE cumuls SET plafond_taux = 100 WHERE plafond_de IS NOT NULL");
  EXPECT_EQ(Refus(c), "(no error)");
}

TEST_F(MagasinTest, ValeursEnVigueurAuMois) {
  const std::string c = Commune(1);
  // The point changes in July: March reads the January value, its history both.
  Sql(c, "INSERT INTO valeurs_fixes VALUES ('Point', '202407', 60.0, 'essai')");
  auto m = OuvreMagasinSqlite(c);
  DonneesMois mars = m->ChargeMois("2024-03");
  EXPECT_DOUBLE_EQ(mars.constantesFixes->Field("Point").Nombre(), 59.0734);
  DonneesMois aout = m->ChargeMois("2024-08");
  EXPECT_DOUBLE_EQ(aout.constantesFixes->Field("Point").Nombre(), 60.0);
  aout.constantesFixesHistorique->Filter("Mois = '202406'");
  EXPECT_DOUBLE_EQ(aout.constantesFixesHistorique->Field("Point").Nombre(), 59.0734);
  // Before January 2024 nothing is in force: a null.
  aout.constantesFixesHistorique->Filter("Mois = '202312'");
  EXPECT_TRUE(aout.constantesFixesHistorique->Field("Point").EstNull());
}

TEST_F(MagasinTest, MoisDejaCalculeRemplaceSeulementSurDemande) {
  const std::string c = Commune(2);
  auto m = OuvreMagasinSqlite(c);
  const ResultatMois r = CalculeMois(m->ChargeMois("2024-03"));
  m->EcritMois(r, false);
  const long long lignes = Nombre(c, "SELECT count(*) FROM lignes WHERE mois = '202403'");
  EXPECT_GT(lignes, 0);
  EXPECT_THROW(m->EcritMois(r, false), ErreurMagasin);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM lignes WHERE mois = '202403'"), lignes);
  m->EcritMois(r, true);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM lignes WHERE mois = '202403'"), lignes);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM calculs"), 1);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM bulletins"), 2);
}

TEST_F(MagasinTest, PisteDAuditDesLignes) {
  const std::string c = Commune(1);
  auto m = OuvreMagasinSqlite(c);
  m->EcritMois(CalculeMois(m->ChargeMois("2024-03")), false);
  Base b(c, false);
  Requete r = b.Prepare(
      "SELECT methode, sValeurBase, sCoeffBase, sValeurTauxSalarial, dTauxSalarial, dBase "
      "FROM lignes WHERE sCodeRubrique = 'CSGDED'");
  ASSERT_TRUE(r.Pas());
  EXPECT_EQ(r.Texte(0), "BASE x TAUX");
  EXPECT_EQ(r.Texte(1), "BASE CSG/RDS");
  EXPECT_EQ(r.Texte(2), "UNE CONSTANTE");
  EXPECT_EQ(r.Texte(3), "TAUX DE COTISATION DE L'ORGANISME");
  EXPECT_DOUBLE_EQ(r.Reel(4), 6.8);
}

TEST(CleMoisTest, Formes) {
  EXPECT_EQ(CleMois("2024-03"), "202403");
  EXPECT_EQ(CleMois("03/2024"), "202403");
  EXPECT_EQ(CleMois("202412"), "202412");
  EXPECT_THROW(CleMois("2024-13"), ErreurMagasin);
  EXPECT_THROW(CleMois("2024-00"), ErreurMagasin);
  EXPECT_THROW(CleMois("mars"), ErreurMagasin);
  EXPECT_THROW(CleMois(""), ErreurMagasin);
}

}  // namespace
}  // namespace orvalis::paie
