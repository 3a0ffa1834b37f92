#include "tools/case_runner.h"

#include <cstdio>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

#include "tools/command_line.h"

namespace orvalis::tools {
namespace {

struct Issue {
  int statut;
  std::string sortie;
  std::string erreurs;
};

Issue Lance(const std::string& texte) {
  std::ostringstream sortie, erreurs;
  const int statut = LanceCas(texte, "case.json", sortie, erreurs);
  return {statut, sortie.str(), erreurs.str()};
}

Json Sortie(const std::string& texte) {
  const Issue i = Lance(texte);
  EXPECT_EQ(i.statut, 0) << i.erreurs;
  EXPECT_EQ(i.erreurs, "");
  return Json::parse(i.sortie);
}

// The case refused with exactly `erreur` and nothing on the output.
void Refuse(const std::string& texte, const std::string& erreur) {
  const Issue i = Lance(texte);
  EXPECT_EQ(i.statut, 2);
  EXPECT_EQ(i.sortie, "");
  EXPECT_EQ(i.erreurs, erreur);
}

// A limit holds: the case at it runs, the case one past it is refused with `erreur`.
void LimiteTenue(const std::string& dedans, const std::string& dehors, const std::string& erreur) {
  const Issue i = Lance(dedans);
  EXPECT_EQ(i.statut, 0) << i.erreurs.substr(0, 200);
  Refuse(dehors, erreur);
}

TEST(CaseRunnerTest, OutputHasItsFourKeysInOrder) {
  const Json j = Sortie(R"({"gPeriodeEncours": "01/03/2024"})");
  std::vector<std::string> cles;
  for (const auto& [k, v] : j.items()) cles.push_back(k);
  EXPECT_EQ(cles, (std::vector<std::string>{"steps", "salarie", "engine", "messages"}));
  EXPECT_EQ(j["engine"].dump(),
            R"({"gPeriodeEncours":"01/03/2024","gdSmicMensuel":0,"iTauxTptNonSubroge":0})");
  EXPECT_EQ(j["salarie"].size(), Champs<VarCalculSalarie>().size());
}

TEST(CaseRunnerTest, DoublesComeBackAsTheSameDouble) {
  const Json j = Sortie(R"({"salarie": {"dHeuresMois": 0.30000000000000004, "dTauxPoste": 1e-7,
                                         "iEnfant_ACharge": -32768}})");
  EXPECT_EQ(j["salarie"]["dHeuresMois"].get<double>(), 0.1 + 0.2);
  EXPECT_EQ(j["salarie"]["dTauxPoste"].get<double>(), 1e-7);
  EXPECT_EQ(j["salarie"]["iEnfant_ACharge"].get<int>(), -32768);
}

TEST(CaseRunnerTest, AnErrorPrintsOneLineAndNothingOnTheOutput) {
  Refuse(R"({"steps": [{"set": {"dHeuresMois": 1}},
                        {"calc": "MONTANT FIXE", "rubrique": {"dBasee": 1}}]})",
         "steps[1].rubrique.dBasee: SalarieCalculRubrique has no field 'dBasee'\n");
}

// A row of n keys C0..C(n-1) in gRsConstantes.
std::string CasAvecLigneDe(int n) {
  std::string ligne;
  for (int k = 0; k < n; ++k) ligne += (k ? ", \"C" : "\"C") + std::to_string(k) + "\": " + std::to_string(k);
  return R"({"sources": {"gRsConstantes": [{)" + ligne + "}]}}";
}

TEST(CaseRunnerTest, AnObjectOf1024KeysIsReadAndOneMoreIsAnError) {
  LimiteTenue(CasAvecLigneDe(1024), CasAvecLigneDe(1025),
              "sources.gRsConstantes[0].C1024: more than 1024 keys in one object\n");
}

TEST(CaseRunnerTest, Nesting256DeepIsReadAnd257IsAnError) {
  auto imbrique = [](int n) {
    return R"({"steps": [{"call": "Arrondi", "args": )" + std::string(n, '[') + "1" +
           std::string(n, ']') + "}]}";
  };
  // The case object, "steps" and the step are three levels: 253 brackets reach 256.
  const Issue dedans = Lance(imbrique(253));
  EXPECT_EQ(dedans.statut, 2);
  EXPECT_NE(dedans.erreurs.find("Arrondi(double, 16-bit integer) takes 2 arguments"),
            std::string::npos) << dedans.erreurs;
  const Issue dehors = Lance(imbrique(254));
  EXPECT_EQ(dehors.statut, 2);
  EXPECT_NE(dehors.erreurs.find(": nested deeper than 256 arrays and objects"), std::string::npos)
      << dehors.erreurs.substr(0, 200);
}

// A designation of n bytes on the line of an Arrondi call's case.
std::string CasAvecTexteDe(std::size_t n) {
  return R"({"steps": [{"call": "Arrondi", "args": [1.005, 2]}], "salarie": {"sMatricule": ")" +
         std::string(n, 'x') + "\"}}";
}

TEST(CaseRunnerTest, ATextOf65536BytesIsReadAndOneMoreIsAnError) {
  LimiteTenue(CasAvecTexteDe(65536), CasAvecTexteDe(65537),
              "salarie.sMatricule: a text longer than 65536 bytes\n");
  Refuse(R"({"salarie": {")" + std::string(65537, 'k') + R"(": 1}})",
         "salarie: a key longer than 65536 bytes\n");
}

// A source gRsConstantes of n rows.
std::string CasAvecLignes(std::size_t n) {
  std::string lignes;
  for (std::size_t k = 0; k < n; ++k) lignes += k ? ",{}" : "{}";
  return R"({"sources": {"gRsConstantes": [)" + lignes + "]}}";
}

TEST(CaseRunnerTest, AnArrayOf100000ElementsIsReadAndOneMoreIsAnError) {
  LimiteTenue(CasAvecLignes(100000), CasAvecLignes(100001),
              "sources.gRsConstantes: more than 100000 elements in one array\n");
}

TEST(CaseRunnerTest, AnInputOver64MiBIsAnErrorBeforeItIsRead) {
  // Spaces are valid JSON around the object: only the size refuses it.
  std::string texte = "{}";
  texte.resize((std::size_t{64} << 20) + 1, ' ');
  Refuse(texte, "case.json: larger than 64 MiB (67108864 bytes)\n");
  // At the limit the text is read: here it stops at its second byte.
  texte.pop_back();
  texte[1] = 'x';
  EXPECT_EQ(Lance(texte).erreurs.rfind("case.json: not JSON: parse error at line 1, column 2", 0), 0u);
}

TEST(CaseRunnerTest, TextErrorsNameTheInput) {
  EXPECT_EQ(Lance(" \n").erreurs, "case.json: empty input\n");
  EXPECT_EQ(Lance("{").erreurs.rfind("case.json: not JSON: parse error at line 1", 0), 0u);
  EXPECT_EQ(Lance(R"({"steps": [{"calc": "A", "calc": "B"}]})").erreurs,
            "steps[0].calc: key given twice\n");
  EXPECT_EQ(Lance(R"({"salarie": {"a": 1}, "salarie": {}})").erreurs, "salarie: key given twice\n");
  EXPECT_EQ(Lance(R"({"steps": [{"set": {}}, {"call": "X", "args": [[{"A": 1, "A": 2}]]}]})").erreurs,
            "steps[1].args[0][0].A: key given twice\n");
}

TEST(CaseRunnerTest, InOutArgumentsComeBackInSignatureOrder) {
  const Json j = Sortie(R"({"steps": [
      {"call": "CoefficientsCPA", "args": ["CP", "01/01/2021", "31/12/2021", 1, 2, 3]},
      {"call": "CoefficientsCPA", "args": ["XX", "01/01/2021", "31/12/2021", 1, 2, "$absent"]},
      {"call": "MajDateEnFormatChaine", "args": ["15/03/2021"]}]})");
  EXPECT_EQ(j["steps"][0].dump(), R"({"result":null,"out":[0.5,0.5,50]})");
  EXPECT_EQ(j["steps"][1].dump(), R"({"result":null,"out":[1,2,null]})");
  EXPECT_EQ(j["steps"][2].dump(), R"({"result":"20210315","out":["15/03/2021"]})");
}

TEST(CaseRunnerTest, RubriqueBeforeAnyCalcIsOneSharedRecord) {
  const Json j = Sortie(R"({"steps": [
      {"call": "CalculRubrique_Prelevement_a_la_source", "args": ["$salarie", "$rubrique", null]},
      {"calc": "NOM INCONNU", "rubrique": {"dBase": 5}},
      {"calc": "NOM INCONNU", "rubrique": {"dTauxSalarial": 2}, "keep_rubrique": true},
      {"calc": "NOM INCONNU", "rubrique": {"dTauxSalarial": 3}}]})");
  EXPECT_TRUE(j["steps"][0].contains("rubrique"));
  EXPECT_EQ(j["steps"][2]["rubrique"]["dBase"].get<double>(), 5.0);
  EXPECT_EQ(j["steps"][2]["rubrique"]["dTauxSalarial"].get<double>(), 2.0);
  EXPECT_EQ(j["steps"][3]["rubrique"]["dBase"].get<double>(), 0.0);
}

TEST(CaseRunnerTest, FaultOfADirectCallIsItsResult) {
  const Json j = Sortie(R"({"steps": [{"call": "Arrondi", "args": [1, -1], "snapshot": true}]})");
  ASSERT_TRUE(j["steps"][0].contains("fault"));
  EXPECT_FALSE(j["steps"][0].contains("result"));
  EXPECT_TRUE(j["steps"][0].contains("salarie"));
}

TEST(CallTableTest, EachNameHasOneRowPerEngine) {
  std::set<std::pair<std::string, unsigned>> vus;
  for (const auto& op : TableDesAppels()) {
    for (unsigned m : {unsigned(kNouv), unsigned(kHisto)}) {
      if (op.moteurs & m) {
        EXPECT_TRUE(vus.insert({op.nom, m}).second) << op.nom;
      }
    }
  }
}

TEST(CallTableTest, CoversTheOperationsAHostCalls) {
  const char* noms[] = {
      "Appel_Methode_Preparation_Calcul_General", "Appel_Methode_Calcul_General",
      "CalculPrelevementALaSource_Tauxold", "CalculPrelevementALaSource_CasParticulierElu",
      "CalculRechercheJourDebutEtJourFin", "CalculRubrique_Prelevement_a_la_source",
      "dRechercheValeur_Constantes", "RechercheValeurType_Constantes", "dRechercheValeurTaux",
      "dRechercheValeurCumul", "dRechercheValeurCumulRappel", "dRechercheValeur_Variable",
      "dRechercheDate_Variable", "dRechercheValeur_VariableBis", "dRecherchePointMois",
      "dRechercheValeurConstanteHistorique", "dRechercheValeurCumulHistorique",
      "dRechercheHeuresMoisHistorique", "dRecherchePointHistorique", "dRechercheIndMinHistorique",
      "dRechercheHistoriqueMois", "dRechercheSmicHistorique", "RechercheValeursListeCumul",
      "RechercheValeurBase", "RechercheValeurCoefficient", "RechercheValeurTauxSalarial",
      "RechercheValeurTauxPatronal", "Arrondi", "dTronqueAuPas", "dTronqueDecimales",
      "sNormaliseDecimale", "MajDateEnFormatChaine", "MajChaineEnFormatDate", "iNbJoursBase30",
      "iNbJoursBase30Commun", "iNbJoursCommunsMois", "bJourOuvre", "iNbJoursOuvresAnnee",
      "CoefficientsCPA"};
  for (const char* nom : noms) {
    bool trouve = false;
    for (const auto& op : TableDesAppels()) trouve = trouve || op.nom == nom;
    EXPECT_TRUE(trouve) << nom;
  }
}

TEST(CallTableTest, TheHistoricEngineHasOnlyWhatItsClassHas) {
  const auto erreurs = [](const std::string& op) {
    return Lance(R"({"engine": "MethodeCalculG", "steps": [{"call": ")" + op + R"(", "args": []}]})")
        .erreurs;
  };
  EXPECT_EQ(erreurs("MajDateEnFormatChaine"),
            "steps[0].call: MethodeCalculG has no operation 'MajDateEnFormatChaine'\n");
  EXPECT_EQ(erreurs("CalculRubrique_BaseDivTaux"),
            "steps[0].call: MethodeCalculG has no operation 'CalculRubrique_BaseDivTaux'\n");
  EXPECT_EQ(erreurs("Arrondi"), "steps[0].args: Arrondi(double, 16-bit integer) takes 2 arguments, got 0\n");
  EXPECT_EQ(erreurs("Appel_Methode_Preparation_Calcul_General"),
            "steps[0].args: Appel_Methode_Preparation_Calcul_General(text, VarCalculSalarie) takes "
            "2 arguments, got 0\n");
}

// Exit 2, nothing on standard output, one line naming the place and the operation.
TEST(CallTableTest, AnOperationOfTheCurrentClassOnlyIsUnknownToTheHistoricEngine) {
  for (const char* op : {"CalculRubrique_Indemnite_Differentielle_Nouv",
                         "CalculRubrique_Indemnite_Differentielle_Mayotte",
                         "Calcul_Indemnites_Journalieres_NouvelleMethode", "dMtIJImposable",
                         "RechercheValeursListeCumul", "CalculRubrique_Carence"}) {
    const Issue i = Lance(R"({"engine": "MethodeCalculG", "steps": [{"set": {}}, {"call": ")" +
                          std::string(op) + R"(", "args": []}]})");
    EXPECT_EQ(i.statut, 2) << op;
    EXPECT_EQ(i.sortie, "") << op;
    EXPECT_EQ(i.erreurs,
              "steps[1].call: MethodeCalculG has no operation '" + std::string(op) + "'\n");
  }
  // The same names are the current engine's.
  EXPECT_EQ(Lance(R"({"steps": [{"call": "dMtIJImposable", "args": []}]})").erreurs,
            "steps[0].args: dMtIJImposable(VarCalculSalarie) takes 1 argument, got 0\n");
}

// The historic class's own forms of the strike, daily benefits, differential allowance and
// officials' new method are reached with its engine.
TEST(CallTableTest, TheHistoricFormsAreReachedWithTheirEngine) {
  const Json j = Sortie(R"({"engine": "MethodeCalculG", "gPeriodeEncours": "01/03/2024",
      "sources": {"gRsCumuls": [{"CodeCumul": "BASE", "PartSalariale": 3000, "PartPatronale": 0}]},
      "salarie": {"dGreveJours": 2, "dIndiceMajoreM": 150},
      "steps": [
        {"calc": "MONTANT FIXE", "RsVarSalaries": [],
         "rubrique": {"sValeurBase": "TRAITEMENT DE BASE DU MOIS", "sCodeRubrique": "RETABSENCETR"}},
        {"call": "CalculRubrique_Greve", "args": ["$salarie", "$rubrique", [], "N", null, null]},
        {"call": "CalculRubrique_Indemnite_Differentielle", "args": ["$salarie", "$rubrique"]},
        {"call": "EnregistreDetailRetenueSource_NouvelleMethode", "args": []},
        {"call": "dMontantBrutMois",
         "args": [{"columns": ["Mois", "MtBrut"], "rows": [["202402", 1234.565], ["202403", 2000]]},
                  "15/02/2024"]}]})");
  // The strike counters whatever the code: 2 x 3000 / 30.
  EXPECT_EQ(j["steps"][1]["rubrique"]["dBase"].get<double>(), 3000.0);
  EXPECT_EQ(j["steps"][1]["rubrique"]["dMontantSalarial"].get<double>(), -200.0);
  // An index of 150, under the threshold of 200: nothing due.
  EXPECT_EQ(j["steps"][2]["rubrique"]["dMontantSalarial"].get<double>(), 0.0);
  EXPECT_EQ(j["steps"][3]["result"]["columns"].size(), 20u);
  EXPECT_EQ(j["steps"][4]["result"].get<double>(), 1234.57);  // February's gross, to the cent
}

// gRsBaremeTauxPAS and gRsConstantesHistorique named with the historic engine: exit 2 and
// the place named, at the top of the case or in a step; the current engine takes both.
TEST(CaseRunnerTest, SourcesTheHistoricEngineHasNot) {
  for (const char* nom : {"gRsBaremeTauxPAS", "gRsConstantesHistorique"}) {
    const std::string sNom = nom;
    Issue i = Lance(R"({"engine": "MethodeCalculG", "sources": {")" + sNom + R"(": null}})");
    EXPECT_EQ(i.statut, 2);
    EXPECT_EQ(i.sortie, "");
    EXPECT_EQ(i.erreurs, "sources." + sNom + ": MethodeCalculG has no source '" + sNom + "'\n");
    i = Lance(R"({"engine": "MethodeCalculG", "steps": [{"set": {}}, {"sources": {")" + sNom +
              R"(": []}}]})");
    EXPECT_EQ(i.statut, 2);
    EXPECT_EQ(i.sortie, "");
    EXPECT_EQ(i.erreurs,
              "steps[1].sources." + sNom + ": MethodeCalculG has no source '" + sNom + "'\n");
    EXPECT_EQ(Lance(R"({"sources": {")" + sNom + R"(": null}})").statut, 0);
  }
}

TEST(CommandLineTest, VersionHelpAndUsage) {
  std::istringstream entree;
  std::ostringstream sortie, erreurs;
  EXPECT_EQ(Principal({"--version"}, entree, sortie, erreurs), 0);
  EXPECT_EQ(sortie.str(), "orvalis 0.1.0\n");
  EXPECT_EQ(Principal({"--help"}, entree, sortie, erreurs), 0);
  EXPECT_EQ(erreurs.str(), "");
  EXPECT_EQ(Principal({}, entree, sortie, erreurs), 2);
  EXPECT_EQ(Principal({"lance", "x.json"}, entree, sortie, erreurs), 2);
  EXPECT_EQ(Principal({"run"}, entree, sortie, erreurs), 2);
  EXPECT_NE(erreurs.str().find("usage: orvalis run CASE.json"), std::string::npos);
}

TEST(CommandLineTest, RunReadsStandardInputAndFiles) {
  std::istringstream entree(R"({"steps": [{"call": "Arrondi", "args": [2.5, 0]}]})");
  std::ostringstream sortie, erreurs;
  EXPECT_EQ(Principal({"run", "-"}, entree, sortie, erreurs), 0);
  EXPECT_EQ(Json::parse(sortie.str())["steps"][0]["result"].get<double>(), 3.0);
  std::ostringstream sortie2, erreurs2;
  EXPECT_EQ(Principal({"run", "/nonexistent/case.json"}, entree, sortie2, erreurs2), 2);
  EXPECT_EQ(sortie2.str(), "");
  EXPECT_EQ(erreurs2.str(), "/nonexistent/case.json: cannot read: No such file or directory\n");
}

TEST(CommandLineTest, AnInputOver64MiBIsRefusedFromStandardInputAndFromAFile) {
  std::string texte = "{}";
  texte.resize(kCasTailleMax + 4096, ' ');
  std::istringstream entree(texte);
  std::ostringstream sortie, erreurs;
  EXPECT_EQ(Principal({"run", "-"}, entree, sortie, erreurs), 2);
  EXPECT_EQ(sortie.str(), "");
  EXPECT_EQ(erreurs.str(), "-: larger than 64 MiB (67108864 bytes)\n");

  const std::string chemin = ::testing::TempDir() + "grand_cas.json";
  {
    std::FILE* f = std::fopen(chemin.c_str(), "wb");
    ASSERT_NE(f, nullptr);
    ASSERT_EQ(std::fwrite(texte.data(), 1, texte.size(), f), texte.size());
    std::fclose(f);
  }
  std::istringstream rien;
  std::ostringstream sortie2, erreurs2;
  EXPECT_EQ(Principal({"run", chemin}, rien, sortie2, erreurs2), 2);
  EXPECT_EQ(erreurs2.str(), chemin + ": larger than 64 MiB (67108864 bytes)\n");
  std::remove(chemin.c_str());
}

}  // namespace
}  // namespace orvalis::tools
