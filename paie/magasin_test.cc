#include "paie/magasin.h"

#include "paie/calcul_mois.h"
#include "paie/pg_test_outils.h"
#include "paie/schema.h"

namespace orvalis::paie {
namespace {

class MagasinTest : public MoteurTest {
 protected:
  // The message of the store's refusal to load the month.
  static std::string Refus(const std::string& magasin) {
    try {
      OuvreMagasin(magasin)->ChargeMois("2024-03");
    } catch (const ErreurMagasin& e) {
      return e.what();
    }
    return "(no error)";
  }
};

INSTANTIATE_TEST_SUITE_P(Moteurs, MagasinTest, ::testing::Values(Moteur::SQLite, Moteur::PostgreSQL),
                         NomMoteur);

TEST_P(MagasinTest, SchemaCreeEtVersionne) {
  const std::string c = Vide();
  OuvreMagasin(c, true);
  EXPECT_EQ(VersionSchema(c), kVersionSchema);
  EXPECT_TRUE(OuvreConnexion(c)->TableExiste("lignes"));
  EXPECT_TRUE(OuvreConnexion(c)->TableExiste("lots"));
  // Opened again, it is left as it is.
  OuvreMagasin(c);
  EXPECT_EQ(VersionSchema(c), kVersionSchema);
}

// A store of version 1 (before the workers) is brought to version 2 and keeps its month.
TEST_P(MagasinTest, MonteeDeVersionUnADeux) {
  const std::string c = Vide();
  {
    auto b = OuvreConnexion(c, true);
    b->Execute(EtapeSchema(0, Pg()));
    b->Execute(Pg() ? "CREATE TABLE version_schema (version INTEGER NOT NULL); "
                      "INSERT INTO version_schema VALUES (1)"
                    : "PRAGMA user_version = 1");
    b->Execute("INSERT INTO calculs VALUES ('202402', '2024-03-01T00:00:00Z', 'v1', 0, 0, 0, 0.5)");
  }
  EXPECT_EQ(VersionSchema(c), 1);
  auto m = OuvreMagasin(c);
  EXPECT_EQ(VersionSchema(c), 2);
  // The month written by the earlier version counts as published.
  EXPECT_TRUE(m->MoisCalcule("2024-02"));
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM lots"), 0);
}

TEST_P(MagasinTest, AbsentSansCreationEstRefuse) {
  const std::string absent = Pg() ? ServeurPgTest::Instance().Admin() + " dbname=absente" : Chemin("absent.db");
  try {
    OuvreMagasin(absent);
    FAIL();
  } catch (const ErreurMagasin& e) {
    EXPECT_TRUE(Contient(e.what(), Pg() ? "database \"absente\" does not exist" : "cannot open"));
  }
}

// A version this program never writes: refused, not read as an old store to upgrade.
TEST_P(MagasinTest, VersionNegativeRefusee) {
  const std::string c = Vide();
  OuvreMagasin(c, true);
  FixeVersion(c, -3);
  try {
    OuvreMagasin(c);
    FAIL();
  } catch (const ErreurMagasin& e) {
    EXPECT_TRUE(Contient(e.what(), "not an Orvalis store (schema version -3)"));
  }
  EXPECT_EQ(VersionSchema(c), -3);
}

TEST_P(MagasinTest, VersionPlusRecenteRefusee) {
  const std::string c = Vide();
  OuvreMagasin(c, true);
  FixeVersion(c, 99);
  try {
    OuvreMagasin(c);
    FAIL();
  } catch (const ErreurMagasin& e) {
    EXPECT_TRUE(Contient(e.what(), "schema version 99 is newer than this program's (2)"));
  }
  EXPECT_EQ(VersionSchema(c), 99);
}

TEST_P(MagasinTest, FichierQuiNEstPasUnMagasin) {
  const std::string c = Vide();
  OuvreConnexion(c, true)->Execute("CREATE TABLE t (x INTEGER)");
  try {
    OuvreMagasin(c);
    FAIL();
  } catch (const ErreurMagasin& e) {
    EXPECT_TRUE(Contient(e.what(), "not an Orvalis store"));
  }
  EXPECT_FALSE(OuvreConnexion(c)->TableExiste("lignes"));
}

TEST_P(MagasinTest, TableManquante) {
  const std::string c = Commune(1);
  Sql(c, "DROP TABLE taux");
  EXPECT_EQ(Refus(c), "table 'taux' is missing");
}

TEST_P(MagasinTest, ColonneManquante) {
  const std::string c = Commune(1);
  Sql(c, "ALTER TABLE taux DROP COLUMN \"PartSalariale\"");
  EXPECT_EQ(Refus(c), "table 'taux': column 'PartSalariale' is missing");
}

// A column a host added with a default: the month is written beside it.
TEST_P(MagasinTest, ColonneAjouteeAuxResultats) {
  const std::string c = Commune(1);
  Sql(c, "ALTER TABLE lignes ADD COLUMN controle TEXT DEFAULT 'a revoir'");
  auto m = OuvreMagasin(c);
  m->EcritMois(CalculeMois(m->ChargeMois("2024-03")), false);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM lignes WHERE controle = 'a revoir'"),
            Nombre(c, "SELECT count(*) FROM salarie_rubriques"));
}

// Lines of an employee without a payslip that month (a store edited by hand): named.
TEST_P(MagasinTest, LigneSansBulletinALaRelecture) {
  const std::string c = Commune(1);
  auto m = OuvreMagasin(c);
  m->EcritMois(CalculeMois(m->ChargeMois("2024-03")), false);
  Sql(c, SansClesEtrangeres() + "UPDATE lignes SET \"lIdSalarie\" = 77 WHERE ordre = "
         "(SELECT min(ordre) FROM lignes)");
  try {
    m->LitMois("2024-03");
    FAIL();
  } catch (const ErreurMagasin& e) {
    EXPECT_EQ(std::string(e.what()), "table 'lignes', month 202403, column 'lIdSalarie': "
                                     "employee 77 has no payslip that month");
  }
}

TEST_P(MagasinTest, MauvaisTypeDansUneSituation) {
  const std::string c = Commune(1);
  Sql(c, "UPDATE situations SET valeur = 'quatre cents' WHERE champ = 'dIndiceMajoreM'");
  const long long ligne = Nombre(c, "SELECT rowid FROM situations WHERE champ = 'dIndiceMajoreM'");
  EXPECT_EQ(Refus(c), "table 'situations', row " + std::to_string(ligne) +
                          ", column 'valeur': dIndiceMajoreM needs a number, got the text 'quatre cents'");
}

// A text of the store with a line end, a tab or a control character: the refusal stays one
// line, the characters written as in C.
TEST_P(MagasinTest, TexteAvecFinDeLigneDansUnRefus) {
  const std::string c = Commune(1);
  Sql(c, "UPDATE situations SET valeur = 'quatre\ncents\t\x01' WHERE champ = 'dIndiceMajoreM'");
  const long long ligne = Nombre(c, "SELECT rowid FROM situations WHERE champ = 'dIndiceMajoreM'");
  EXPECT_EQ(Refus(c), "table 'situations', row " + std::to_string(ligne) +
                          ", column 'valeur': dIndiceMajoreM needs a number, got the text "
                          "'quatre\\ncents\\t\\x01'");
}

TEST_P(MagasinTest, EntierSeizeBitsHorsLimites) {
  const std::string c = Commune(1);
  Sql(c, "UPDATE situations SET valeur = 32768 WHERE champ = 'iEnfant_ACharge'");
  // PostgreSQL keeps a situation's value as a text.
  EXPECT_TRUE(Contient(Refus(c), Pg() ? "iEnfant_ACharge needs a 16-bit integer, got the text '32768'"
                                      : "iEnfant_ACharge needs a 16-bit integer, got the integer 32768"));
}

// Past any integer: refused by its size, not converted.
TEST_P(MagasinTest, NombreImmenseDansUnChampEntier) {
  const std::string c = Commune(1);
  // PostgreSQL keeps a situation's value as a text: the texts of the same numbers.
  Sql(c, Pg() ? "UPDATE situations SET valeur = '1e300' WHERE champ = 'iEnfant_ACharge'"
              : "UPDATE situations SET valeur = 1e300 WHERE champ = 'iEnfant_ACharge'");
  EXPECT_TRUE(Contient(Refus(c), "iEnfant_ACharge needs a 16-bit integer, got the"));
  EXPECT_TRUE(Contient(Refus(c), "1e+300") || Contient(Refus(c), "1e300"));
  Sql(c, Pg() ? "UPDATE situations SET valeur = '2.5' WHERE champ = 'iEnfant_ACharge'"
              : "UPDATE situations SET valeur = 2.5 WHERE champ = 'iEnfant_ACharge'");
  EXPECT_TRUE(Contient(Refus(c), "iEnfant_ACharge needs a 16-bit integer, got the"));
  EXPECT_TRUE(Contient(Refus(c), "2.5"));
}

// A number written as a text is read as the number; a text that is not wholly one is refused.
TEST_P(MagasinTest, NombreEcritEnTexte) {
  const std::string c = Commune(1);
  Sql(c, "UPDATE situations SET valeur = '400' WHERE champ = 'dIndiceMajoreM'");
  DonneesMois d = OuvreMagasin(c)->ChargeMois("2024-03");
  VarCalculSalarie v;
  tools::Applique(v, d.salaries.at(0).champs);
  EXPECT_DOUBLE_EQ(v.dIndiceMajoreM, 400);
  Sql(c, "UPDATE situations SET valeur = '400 ' WHERE champ = 'dIndiceMajoreM'");
  EXPECT_TRUE(Contient(Refus(c), "dIndiceMajoreM needs a number, got the text '400 '"));
}

TEST_P(MagasinTest, ValeurNonNumeriqueDansLesTaux) {
  const std::string c = Commune(1);
  if (Pg()) {
    // The column is typed: the server refuses the text itself, and the store stays whole.
    EXPECT_THROW(Sql(c, "UPDATE taux SET PartSalariale = 'onze' WHERE CodeTaux = 'CNRACL'"), ErreurMagasin);
    EXPECT_EQ(Refus(c), "(no error)");
    return;
  }
  Sql(c, "UPDATE taux SET PartSalariale = 'onze' WHERE CodeTaux = 'CNRACL'");
  EXPECT_TRUE(Contient(Refus(c), "column 'PartSalariale': expected a number, got the text 'onze'"));
  EXPECT_TRUE(Contient(Refus(c), "table 'taux', row "));
}

TEST_P(MagasinTest, MethodeInconnue) {
  const std::string c = Commune(1);
  Sql(c, "UPDATE rubriques SET methode = 'TRAITEMENT INDICIAIRE' WHERE lIdRubrique = 100");
  EXPECT_EQ(Refus(c), "table 'rubriques', lIdRubrique 100, column 'methode': unknown method "
                      "'TRAITEMENT INDICIAIRE'");
}

TEST_P(MagasinTest, PreparationInconnue) {
  const std::string c = Commune(1);
  Sql(c, "INSERT INTO preparations VALUES (9, 'NBRE_JOURS')");
  EXPECT_EQ(Refus(c), "table 'preparations', ordre 9, column 'methode': unknown preparation 'NBRE_JOURS'");
}

TEST_P(MagasinTest, ChampInconnu) {
  const std::string c = Commune(1);
  Sql(c, "INSERT INTO situations VALUES (1001, '202401', 'dIndiceMajore', 400)");
  const long long ligne = Nombre(c, "SELECT rowid FROM situations WHERE champ = 'dIndiceMajore'");
  EXPECT_EQ(Refus(c), "table 'situations', row " + std::to_string(ligne) +
                          ", column 'champ': VarCalculSalarie has no field 'dIndiceMajore'");
}

TEST_P(MagasinTest, ColonneDuPlanQuiNEstPasUnChamp) {
  const std::string c = Commune(1);
  Sql(c, "ALTER TABLE rubriques ADD COLUMN sValeurBas TEXT");
  EXPECT_TRUE(Contient(Refus(c), "column 'sValeurBas': SalarieCalculRubrique has no field 'sValeurBas'"));
}

TEST_P(MagasinTest, CumulInconnuDansLesAlimentations) {
  const std::string c = Commune(1);
  Sql(c, SansClesEtrangeres() + "INSERT INTO rubrique_cumuls VALUES (100, 'BRUTT', 'SALARIAL', 'S', 1)");
  EXPECT_TRUE(Contient(Refus(c), "table 'rubrique_cumuls', row "));
  EXPECT_TRUE(Contient(Refus(c), "column 'CodeCumul': no total 'BRUTT'"));
}

TEST_P(MagasinTest, PlafondSurUnCumulInconnu) {
  const std::string c = Commune(1);
  Sql(c, SansClesEtrangeres() + "UPDATE cumuls SET plafond_de = 'TRAITEMENT' WHERE CodeCumul = 'ASSRAFP'");
  const long long id = Nombre(c, "SELECT IdCumul FROM cumuls WHERE CodeCumul = 'ASSRAFP'");
  EXPECT_EQ(Refus(c), "table 'cumuls', IdCumul " + std::to_string(id) +
                          ", column 'plafond_de': no total 'TRAITEMENT'");
}

TEST_P(MagasinTest, PlafondHorsPourcentage) {
  const std::string c = Commune(1);
  Sql(c, "UPDATE cumuls SET plafond_taux = 1e300 WHERE plafond_de IS NOT NULL");
  const long long id = Nombre(c, "SELECT \"IdCumul\" FROM cumuls WHERE plafond_de IS NOT NULL");
  EXPECT_EQ(Refus(c), "table 'cumuls', IdCumul " + std::to_string(id) +
                          ", column 'plafond_taux': a percentage from 0 to 100, got 1e+300");
  Sql(c, "UPDATE cumuls SET plafond_taux = 100 WHERE plafond_de IS NOT NULL");
  EXPECT_EQ(Refus(c), "(no error)");
}

TEST_P(MagasinTest, ValeursEnVigueurAuMois) {
  const std::string c = Commune(1);
  // The point changes in July: March reads the January value, its history both.
  Sql(c, "INSERT INTO valeurs_fixes VALUES ('Point', '202407', 60.0, 'essai')");
  auto m = OuvreMagasin(c);
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

TEST_P(MagasinTest, NomDeValeurFixeVideDoubleOuReserveEstRefuse) {
  const std::string c = Commune(1);
  auto ajoute = [&](const std::string& nom) {
    Sql(c, "DELETE FROM valeurs_fixes WHERE libelle = 'essai'");
    Sql(c, "INSERT INTO valeurs_fixes VALUES ('" + nom + "', '202402', 1.0, 'essai')");
  };
  auto rang = [&](const std::string& nom, const std::string& depuis) {
    return std::to_string(Nombre(c, "SELECT rowid FROM valeurs_fixes WHERE colonne = '" + nom +
                                        "' AND depuis = '" + depuis + "'"));
  };
  ajoute("");
  EXPECT_EQ(Refus(c), "table 'valeurs_fixes', row " + rang("", "202402") +
                          ", column 'colonne': a fixed value needs a name");
  // "Point" is in the commune since January: "POINT" would be a second name of that column.
  // The rows are read in the order of their names: the second of the two is refused.
  ajoute("POINT");
  const std::string premier = Texte(
      c, "SELECT colonne FROM valeurs_fixes WHERE colonne IN ('Point', 'POINT') ORDER BY colonne LIMIT 1");
  const std::string second = premier == "Point" ? "POINT" : "Point";
  EXPECT_EQ(Refus(c), "table 'valeurs_fixes', row " +
                          rang(second, second == "Point" ? "202401" : "202402") +
                          ", column 'colonne': '" + second + "' and '" + premier +
                          "' differ in case only: one fixed value, two names");
  ajoute("mois");
  EXPECT_EQ(Refus(c), "table 'valeurs_fixes', row " + rang("mois", "202402") +
                          ", column 'colonne': 'mois' is the month of the history of fixed "
                          "values, not a fixed value");
  // A name of its own is read, and the same name on two rows is one value over time.
  ajoute("PointBis");
  EXPECT_EQ(Refus(c), "(no error)");
  ajoute("Point");
  EXPECT_EQ(Refus(c), "(no error)");
}

TEST_P(MagasinTest, MoisDejaCalculeRemplaceSeulementSurDemande) {
  const std::string c = Commune(2);
  auto m = OuvreMagasin(c);
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

// A month whose batches are still being written is not done: not read back, and the next
// month does not take its totals.
TEST_P(MagasinTest, MoisNonPublieNEstPasLu) {
  const std::string c = Commune(1);
  auto m = OuvreMagasin(c);
  m->EcritMois(CalculeMois(m->ChargeMois("2024-03")), false);
  EXPECT_EQ(m->ChargeMois("2024-04").salaries.at(0).cumulsHisto->RecordCount(),
            Nombre(c, "SELECT count(*) FROM cumuls"));
  Sql(c, "UPDATE calculs SET publie = 0");
  EXPECT_FALSE(m->MoisCalcule("2024-03"));
  EXPECT_THROW(m->LitMois("2024-03"), ErreurMagasin);
  EXPECT_EQ(m->ChargeMois("2024-04").salaries.at(0).cumulsHisto->RecordCount(), 0);
  EXPECT_EQ(m->ChargeMois("2024-04").salaries.at(0).historique->RecordCount(), 0);
}

TEST_P(MagasinTest, PisteDAuditDesLignes) {
  const std::string c = Commune(1);
  auto m = OuvreMagasin(c);
  m->EcritMois(CalculeMois(m->ChargeMois("2024-03")), false);
  auto b = OuvreConnexion(c);
  Requete r = b->Prepare(
      "SELECT methode, sValeurBase, sCoeffBase, sValeurTauxSalarial, dTauxSalarial, dBase "
      "FROM lignes WHERE sCodeRubrique = 'CSGDED'");
  ASSERT_TRUE(r.Pas());
  EXPECT_EQ(r.Texte(0), "BASE x TAUX");
  EXPECT_EQ(r.Texte(1), "BASE CSG/RDS");
  EXPECT_EQ(r.Texte(2), "UNE CONSTANTE");
  EXPECT_EQ(r.Texte(3), "TAUX DE COTISATION DE L'ORGANISME");
  EXPECT_DOUBLE_EQ(r.Reel(4), 6.8);
}

// Names with quotes, semicolons and non-Latin letters in every text column of an employee
// and of a pay line: kept as written, through the month and back.
TEST_P(MagasinTest, TextesPiegesGardesTelsQuels) {
  const std::string c = Commune(1);
  const std::string nom = "O'Brien\"; DROP TABLE lignes; --";
  const std::string prenom = "Zoë Ελένη 李小龍 Юлия";
  const std::string designation = "Traitement ' OR '1'='1 ; 工资";
  {
    auto b = OuvreConnexion(c);
    Requete u = b->Prepare(
        "UPDATE salaries SET nom = ?, prenom = ?, emploi = ?, adresse = ?, sMatricule = ?");
    u.Lie(1, nom).Lie(2, prenom).Lie(3, designation).Lie(4, nom + prenom).Lie(5, "M'1; --" + prenom).Execute();
    Requete r = b->Prepare("UPDATE rubriques SET sDesignation = ? WHERE lIdRubrique = 100");
    r.Lie(1, designation).Execute();
    Requete e = b->Prepare("UPDATE employeur SET nom = ?, adresse = ?");
    e.Lie(1, prenom).Lie(2, nom).Execute();
  }
  auto m = OuvreMagasin(c);
  m->EcritMois(CalculeMois(m->ChargeMois("2024-03")), false);
  const ResultatMois r = m->LitMois("2024-03");
  ASSERT_EQ(r.bulletins.size(), 1u);
  EXPECT_EQ(r.employeur.nom, prenom);
  EXPECT_EQ(r.employeur.adresse, nom);
  EXPECT_EQ(r.bulletins[0].nom, nom);
  EXPECT_EQ(r.bulletins[0].prenom, prenom);
  EXPECT_EQ(r.bulletins[0].emploi, designation);
  EXPECT_EQ(r.bulletins[0].adresse, nom + prenom);
  EXPECT_EQ(r.bulletins[0].sMatricule, "M'1; --" + prenom);
  ASSERT_NE(Ligne(r.bulletins[0], "TRAITIND"), nullptr);
  EXPECT_EQ(Ligne(r.bulletins[0], "TRAITIND")->sDesignation, designation);
  EXPECT_TRUE(OuvreConnexion(c)->TableExiste("lignes"));
}

TEST(MessageSurUneLigneTest, CaracteresDeControleEcritsCommeEnC) {
  EXPECT_EQ(MessageSurUneLigne(""), "");
  EXPECT_EQ(MessageSurUneLigne("table 'taux' is missing"), "table 'taux' is missing");
  EXPECT_EQ(MessageSurUneLigne("a\nb\tc\rd"), "a\\nb\\tc\\rd");
  EXPECT_EQ(MessageSurUneLigne(std::string("\x00\x1f\x7f ~", 5)), "\\x00\\x1f\\x7f ~");
  // Letters past ASCII are kept as they are (UTF-8 bytes are all 0x80 and over).
  EXPECT_EQ(MessageSurUneLigne("d\xc3\xa9j\xc3\xa0"), "d\xc3\xa9j\xc3\xa0");
  EXPECT_EQ(ErreurMagasin("x\ny").what(), std::string("x\\ny"));
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
