#include "paie/bulletin_html.h"

#include "paie/paie_test_outils.h"

namespace orvalis::paie {
namespace {

LigneBulletin L(const char* code, const char* libelle, const char* groupe, const char* nature,
                double base, double taux, double montant) {
  LigneBulletin l;
  l.sCodeRubrique = code;
  l.sDesignation = libelle;
  l.groupe = groupe;
  l.nature = nature;
  l.methode = "BASE x TAUX";
  l.dBase = base;
  l.dTauxSalarial = taux;
  l.dMontantSalarial = montant;
  return l;
}

TEST(EurosTest, Formes) {
  EXPECT_EQ(Euros(1801.73), "1\u202f801,73");
  EXPECT_EQ(Euros(0), "0,00");
  EXPECT_EQ(Euros(199.99), "199,99");
  EXPECT_EQ(Euros(-42.5), "-42,50");
  EXPECT_EQ(Euros(1234567.891), "1\u202f234\u202f567,89");
  EXPECT_EQ(Euros(999.995), "1\u202f000,00");
}

TEST(BulletinHtmlTest, GroupesMontantsEtCumuls) {
  ResultatMois mois;
  mois.mois = "202403";
  mois.employeur = {"Commune <essai>", "1", "Mairie"};
  Bulletin b;
  b.sMatricule = "000001";
  b.nom = "Martin";
  b.sTypeModele = "INDTIT";
  LigneBulletin t = L("TRAITIND", "Traitement indiciaire", "BRUT", "GAIN", 0, 0, 1801.73);
  LigneBulletin c = L("CNRACL", "Retraite CNRACL", "RETRAITE", "RETENUE", 1801.73, 11.1, 199.99);
  LigneBulletin p = L("PAS", "Impôt", "PAS", "RETENUE", 0, 0, 0);
  p.ok = false;
  b.lignes = {t, c, p};
  b.totaux.brut = 1801.73;
  b.annee.brut = 3603.46;
  b.echecs = 1;
  const std::string h = BulletinHtml(mois, b);
  EXPECT_TRUE(Contient(h, "Bulletin de paie — mars 2024"));
  EXPECT_TRUE(Contient(h, "Commune &lt;essai&gt;"));
  EXPECT_TRUE(Contient(h, "<td class=n>1\u202f801,73</td>"));
  EXPECT_TRUE(Contient(h, "11,10&#8239;%"));
  EXPECT_TRUE(Contient(h, "<td class=n>199,99</td>"));
  EXPECT_TRUE(Contient(h, "<tr class=groupe><td colspan=7>Retraite</td></tr>"));
  EXPECT_FALSE(Contient(h, "<td colspan=7>Santé</td>"));  // no line in that group
  EXPECT_TRUE(Contient(h, "ligne echec"));
  EXPECT_TRUE(Contient(h, "3\u202f603,46"));
  EXPECT_TRUE(Contient(h, "size: A4"));
}

}  // namespace
}  // namespace orvalis::paie
