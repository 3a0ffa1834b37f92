#include "paie/calcul_mois.h"

#include "paie/paie_test_outils.h"

namespace orvalis::paie {
namespace {

class CalculMoisTest : public DossierTest {
 protected:
  // Computes and writes the month, then reads it back as the payslips do.
  static ResultatMois Mois(const std::string& chemin, const std::string& mois) {
    auto m = OuvreMagasinSqlite(chemin);
    m->EcritMois(CalculeMois(m->ChargeMois(mois)), false);
    return m->LitMois(mois);
  }

  // The commune with the treatment given as a fixed amount of 1801.73 a month to every
  // agent (the treatment of index 366), so that the lines after it run on a known base.
  std::string CommuneTraitementFixe(int agents = 3) {
    const std::string c = Commune(agents);
    Sql(c,
        "UPDATE rubriques SET methode = 'MONTANT FIXE', "
        "sValeurTauxSalarial = 'UNE VARIABLE SALARIE', lIdValeurTauxSalarial = 509 "
        "WHERE lIdRubrique = 100;"
        "INSERT INTO variables WITH RECURSIVE m(n) AS (SELECT 202401 UNION ALL SELECT n + 1 "
        "FROM m WHERE n < 202412) SELECT s.lIdSalarie, CAST(m.n AS TEXT), 509, 'TRAIT', "
        "1801.73, '', 'M' FROM salaries s, m;");
    return c;
  }
};

TEST_F(CalculMoisTest, TraitementIndice366EtCnracl) {
  const ResultatMois r = Mois(Commune(1), "2024-03");
  const Bulletin& b = r.bulletins.at(0);
  // 366 x 59.0734 / 12 = 1801.7387; - 0.0049 and rounded: 1801.73.
  EXPECT_DOUBLE_EQ(Ligne(b, "TRAITIND")->dMontantSalarial, 1801.73);
  // 1801.73 x 11.10 % = 199.99203; x 31.65 % = 570.247545.
  EXPECT_DOUBLE_EQ(Ligne(b, "CNRACL")->dMontantSalarial, 199.99);
  EXPECT_DOUBLE_EQ(Ligne(b, "CNRACL")->dMontantPatronal, 570.25);
}

TEST_F(CalculMoisTest, LignesSurUnTraitementConnu) {
  const ResultatMois r = Mois(CommuneTraitementFixe(), "2024-03");
  const Bulletin& b = *BulletinDe(r, 1001);
  EXPECT_TRUE(Ligne(b, "TRAITIND")->ok);
  EXPECT_DOUBLE_EQ(Ligne(b, "TRAITIND")->dMontantSalarial, 1801.73);
  // CNRACL on 1801.73: 11.10 % = 199.99203, 31.65 % = 570.247545.
  const LigneBulletin& cnracl = *Ligne(b, "CNRACL");
  EXPECT_DOUBLE_EQ(cnracl.dBase, 1801.73);
  EXPECT_DOUBLE_EQ(cnracl.dTauxSalarial, 11.1);
  EXPECT_DOUBLE_EQ(cnracl.dMontantSalarial, 199.99);
  EXPECT_DOUBLE_EQ(cnracl.dMontantPatronal, 570.25);
  // Employer sickness 9.88 % = 178.010924; invalidity allowance 0.40 % = 7.20692.
  EXPECT_DOUBLE_EQ(Ligne(b, "MALRS")->dMontantPatronal, 178.01);
  EXPECT_DOUBLE_EQ(Ligne(b, "ATIACL")->dMontantPatronal, 7.21);
  // CSG base 1801.73 x 98.25 % = 1770.199725; 6.8 % = 120.37358; 2.4 % = 42.484793;
  // CRDS 0.5 % = 8.850999.
  EXPECT_DOUBLE_EQ(Ligne(b, "CSGDED")->dBase, 1770.2);
  EXPECT_DOUBLE_EQ(Ligne(b, "CSGDED")->dMontantSalarial, 120.37);
  EXPECT_DOUBLE_EQ(Ligne(b, "CSGNDED")->dMontantSalarial, 42.48);
  EXPECT_DOUBLE_EQ(Ligne(b, "CRDS")->dMontantSalarial, 8.85);
  // No bonus, no residence allowance, no family supplement: the RAFP base is 0.
  EXPECT_DOUBLE_EQ(Ligne(b, "RAFP")->dMontantSalarial, 0.0);
  // Family allowances 3.45 % of 1801.73 = 62.159685.
  EXPECT_DOUBLE_EQ(Ligne(b, "ALLFAM")->dMontantPatronal, 62.16);

  // Gross 1801.73; deductions 199.99 + 0 + 120.37 + 42.48 + 8.85 = 371.69; net before tax
  // 1430.04; taxable 1801.73 - 199.99 - 0 - 120.37 = 1481.37.
  EXPECT_DOUBLE_EQ(b.totaux.brut, 1801.73);
  EXPECT_DOUBLE_EQ(b.totaux.cotisationsSalariales, 371.69);
  EXPECT_DOUBLE_EQ(b.totaux.netAvantImpot, 1430.04);
  EXPECT_DOUBLE_EQ(b.totaux.netImposable, 1481.37);
  EXPECT_DOUBLE_EQ(b.cumuls.at("NETIMPOS").first, 1481.37);
  EXPECT_DOUBLE_EQ(b.cumuls.at("ASSCNRACL").first, 1801.73);
  // Employer: 570.25 + 0 + 178.01 + 7.21 + 62.16 = 817.63; cost 1801.73 + 817.63 = 2619.36.
  EXPECT_DOUBLE_EQ(b.totaux.cotisationsPatronales, 817.63);
  EXPECT_DOUBLE_EQ(b.totaux.coutEmployeur, 2619.36);
}

TEST_F(CalculMoisTest, PrimeEtCotisationsDeLAgentAvecIfse) {
  // Agent 1009 (no NBI, no child, zone 0): treatment 1801.73 and IFSE 300; gross 2101.73.
  const ResultatMois r = Mois(CommuneTraitementFixe(9), "2024-03");
  const Bulletin& b = *BulletinDe(r, 1009);
  EXPECT_DOUBLE_EQ(Ligne(b, "IFSE")->dMontantSalarial, 300.0);
  // RAFP 5 % + 5 % of 300, under its cap of 20 % x 1801.73 = 360.35: 15 and 15.
  EXPECT_DOUBLE_EQ(Ligne(b, "RAFP")->dBase, 300.0);
  EXPECT_DOUBLE_EQ(Ligne(b, "RAFP")->dMontantSalarial, 15.0);
  EXPECT_DOUBLE_EQ(Ligne(b, "RAFP")->dMontantPatronal, 15.0);
  // CSG base 2101.73 x 98.25 % = 2064.949725: 6.8 % = 140.41658, 2.4 % = 49.558793,
  // 0.5 % = 10.324749; family allowances 3.45 % of 2101.73 = 72.509685.
  EXPECT_DOUBLE_EQ(Ligne(b, "CSGDED")->dMontantSalarial, 140.42);
  EXPECT_DOUBLE_EQ(Ligne(b, "CSGNDED")->dMontantSalarial, 49.56);
  EXPECT_DOUBLE_EQ(Ligne(b, "CRDS")->dMontantSalarial, 10.32);
  EXPECT_DOUBLE_EQ(Ligne(b, "ALLFAM")->dMontantPatronal, 72.51);
  EXPECT_DOUBLE_EQ(b.totaux.brut, 2101.73);
}

TEST_F(CalculMoisTest, AssietteRafpPlafonneeAVingtPourCentDuTraitement) {
  // Agent 1001 with an IFSE of 400: the RAFP base is capped at 20 % x 1801.73 = 360.346,
  // 360.35; 5 % of it = 18.0175, 18.02 on each side.
  const std::string c = CommuneTraitementFixe(1);
  Sql(c,
      "INSERT INTO variables SELECT 1001, mois, 501, 'IFSE', 400, '', 'M' FROM variables "
      "WHERE IdVariable = 509;"
      "INSERT INTO salarie_rubriques VALUES (1001, 140);");
  const ResultatMois r = Mois(c, "2024-03");
  const Bulletin& b = *BulletinDe(r, 1001);
  EXPECT_DOUBLE_EQ(Ligne(b, "RAFP")->dBase, 360.35);
  EXPECT_DOUBLE_EQ(Ligne(b, "RAFP")->dMontantSalarial, 18.02);
  EXPECT_DOUBLE_EQ(Ligne(b, "RAFP")->dMontantPatronal, 18.02);
  EXPECT_DOUBLE_EQ(b.cumuls.at("ASSRAFP").first, 360.35);
}

TEST_F(CalculMoisTest, UneLigneQuiEchoueEstGardeeEtNeCompteDansAucunTotal) {
  const std::string c = Commune(1);
  // A base "UN CUMUL PARTICULIER" naming a total that does not exist is a fault.
  Sql(c, "UPDATE rubriques SET sValeurBase = 'UN CUMUL PARTICULIER', lIdValeurBase = 999 "
         "WHERE lIdRubrique = 600");
  const ResultatMois r = Mois(c, "2024-03");
  const Bulletin& b = r.bulletins.at(0);
  const LigneBulletin* csg = Ligne(b, "CSGDED");
  ASSERT_NE(csg, nullptr);
  EXPECT_FALSE(csg->ok);
  EXPECT_GE(b.echecs, 1);
  EXPECT_DOUBLE_EQ(b.cumuls.at("TOTDEDUCT").first, Ligne(b, "CNRACL")->dMontantSalarial +
                                                       Ligne(b, "RAFP")->dMontantSalarial);
  // The line after it ran.
  EXPECT_TRUE(Ligne(b, "CSGNDED")->ok);
}

// An amount of ten thousand billion or more (a store's value gone wrong) fails its line, kept
// as it came; the lines after it run and the totals stay in cents. Just below, it is paid.
TEST_F(CalculMoisTest, MontantHorsBornesFaitEchouerSaLigne) {
  const std::string c = CommuneTraitementFixe(2);
  Sql(c, "UPDATE variables SET Valeur = 1e13 WHERE lIdSalarie = 1001 AND mois = '202403';"
         "UPDATE variables SET Valeur = 9999999999999 WHERE lIdSalarie = 1002 AND mois = '202403'");
  const ResultatMois r = Mois(c, "2024-03");
  const Bulletin& a = *BulletinDe(r, 1001);
  EXPECT_FALSE(Ligne(a, "TRAITIND")->ok);
  EXPECT_DOUBLE_EQ(Ligne(a, "TRAITIND")->dMontantSalarial, 1e13);
  EXPECT_GE(a.echecs, 1);
  // CNRACL runs on a treatment total the failed line did not feed: 0.
  EXPECT_TRUE(Ligne(a, "CNRACL")->ok);
  EXPECT_DOUBLE_EQ(Ligne(a, "CNRACL")->dBase, 0);
  const Bulletin& b = *BulletinDe(r, 1002);
  EXPECT_TRUE(Ligne(b, "TRAITIND")->ok);
  EXPECT_DOUBLE_EQ(Ligne(b, "TRAITIND")->dMontantSalarial, 9999999999999);
  // 9,999,999,999,999 x 11.10 % = 1,109,999,999,999.889: 1,109,999,999,999.89.
  EXPECT_DOUBLE_EQ(Ligne(b, "CNRACL")->dMontantSalarial, 1109999999999.89);
}

TEST_F(CalculMoisTest, CumulsReportesDeFevrierAMars) {
  const std::string c = CommuneTraitementFixe();
  // A line reading last month's treatment total: 0 in February, 1801.73 in March.
  Sql(c,
      "INSERT INTO rubriques (lIdRubrique, ordre, sCodeRubrique, sDesignation, methode, groupe, "
      "nature, sValeurBase) VALUES (950, 950, 'TRAITPREC', 'Traitement du mois précédent', "
      "'MONTANT FIXE', 'INFO', 'INFO', 'TRAITEMENT DE BASE DU MOIS PREC');"
      "INSERT INTO salarie_rubriques VALUES (1001, 950);");
  const ResultatMois fevrier = Mois(c, "2024-02");
  EXPECT_DOUBLE_EQ(Ligne(*BulletinDe(fevrier, 1001), "TRAITPREC")->dMontantSalarial, 0.0);
  const ResultatMois mars = Mois(c, "2024-03");
  const Bulletin& b = *BulletinDe(mars, 1001);
  EXPECT_DOUBLE_EQ(Ligne(b, "TRAITPREC")->dMontantSalarial, 1801.73);
  // Year to date: two months of 1801.73 gross and 1481.37 taxable.
  EXPECT_DOUBLE_EQ(b.annee.brut, 3603.46);
  EXPECT_DOUBLE_EQ(b.annee.netImposable, 2962.74);
  EXPECT_DOUBLE_EQ(b.totaux.brut, 1801.73);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM cumuls_salarie WHERE lIdSalarie = 1001 AND "
                      "CodeCumul = 'BASE' AND PartSalariale = 1801.73"),
            2);
}

TEST_F(CalculMoisTest, ChaqueAgentDeLaCommuneAUnBulletin) {
  const ResultatMois r = Mois(Commune(), "2024-03");
  ASSERT_EQ(r.bulletins.size(), 40u);
  long lignes = 0;
  for (const auto& b : r.bulletins) lignes += static_cast<long>(b.lignes.size());
  EXPECT_EQ(lignes, r.lignes);
  // The apprentice (agent 38): 151.67 h x 11.65 x 53 % = 936.486415 -> 936.49.
  const Bulletin& apprenti = *BulletinDe(r, 1038);
  EXPECT_DOUBLE_EQ(Ligne(apprenti, "APPRENTI")->dMontantSalarial, 936.49);
  EXPECT_DOUBLE_EQ(apprenti.totaux.brut, 936.49);
}

TEST_F(CalculMoisTest, IndemnitesDuMaireEtDeLAdjoint) {
  const ResultatMois r = Mois(Commune(), "2024-03");
  // Terminal index 830 x 59.0734 / 12 = 4085.9101; - 0.0049 and rounded: 4085.91.
  // Mayor 55 % = 2247.2505; deputy 22 % = 898.9002.
  const Bulletin& maire = *BulletinDe(r, 1039);
  EXPECT_DOUBLE_EQ(Ligne(maire, "ELUIND")->dBase, 4085.91);
  EXPECT_DOUBLE_EQ(Ligne(maire, "ELUIND")->dMontantSalarial, 2247.25);
  // IRCANTEC tranche A: 2.80 % = 62.923, 4.20 % = 94.3845.
  EXPECT_DOUBLE_EQ(Ligne(maire, "IRCANTECA")->dMontantSalarial, 62.92);
  EXPECT_DOUBLE_EQ(Ligne(maire, "IRCANTECA")->dMontantPatronal, 94.38);
  EXPECT_DOUBLE_EQ(maire.totaux.brut, 2247.25);
  EXPECT_DOUBLE_EQ(Ligne(*BulletinDe(r, 1040), "ELUIND")->dMontantSalarial, 898.9);
  // Their tax at source reads the share of employment costs, "EluTxFrais": every line of the
  // commune computes.
  EXPECT_TRUE(Ligne(maire, "PAS")->ok);
  EXPECT_TRUE(Ligne(*BulletinDe(r, 1040), "PAS")->ok);
  EXPECT_EQ(r.echecs, 0);
}

TEST_F(CalculMoisTest, SupplementFamilialAuPlancher) {
  // Indexes under the floor index 454 take the floor treatment:
  // 454 x 59.0734 / 12 - 0.0049 = 2234.9387 -> 2234.94.
  const ResultatMois r = Mois(Commune(4), "2024-03");
  // One child: 2.29. Two: 10.67 + 3 % x 2234.94 = 77.7182, truncated 77.71.
  // Three: 15.24 + 8 % x 2234.94 = 194.0352, truncated 194.03.
  EXPECT_DOUBLE_EQ(Ligne(*BulletinDe(r, 1002), "SFT")->dMontantSalarial, 2.29);
  EXPECT_DOUBLE_EQ(Ligne(*BulletinDe(r, 1003), "SFT")->dMontantSalarial, 77.71);
  EXPECT_DOUBLE_EQ(Ligne(*BulletinDe(r, 1004), "SFT")->dMontantSalarial, 194.03);
}

}  // namespace
}  // namespace orvalis::paie
