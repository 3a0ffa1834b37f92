// The commune of the benchmarks.
#include "benchmarks/commune.h"

#include <cstdio>
#include <map>

namespace orvalis::bench {

namespace {

std::string Numero(const char* prefixe, int i) {
  char buf[32];
  std::snprintf(buf, sizeof buf, "%s%03d", prefixe, i);
  return buf;
}

// The employee parts of the totals the pay lines of a civil servant read.
const std::map<std::string, double>& CumulsReels() {
  static const std::map<std::string, double> k = {
      {"BASE", 1913.32},      {"BRUT", 2461.47},      {"ASSCNRACL", 2010.85},
      {"ASSRAFP", 450.15},    {"ASSCSG", 2461.47},    {"ASSURSTOT", 2461.47},
      {"ASSURSTRA", 2461.47}, {"ASSATIACL", 2010.85}, {"ASSCNFPT", 2461.47},
      {"SUPPFAM", 84.51},     {"INDRES", 57.40},      {"BONIF", 97.56},
      {"TBIETPRIME", 2461.47}, {"HEURES", 151.67},
  };
  return k;
}

}  // namespace

const std::vector<TauxReel>& TauxReels() {
  static const std::vector<TauxReel> k = {
      {"CNRACL", 11.10, 30.65},  {"RAFP", 5.00, 5.00},     {"URSDCSG", 6.80, 0},
      {"URSCSG", 2.40, 0},       {"URSRDS", 0.50, 0},      {"URSMAL", 0, 9.88},
      {"URSAF", 0, 5.25},        {"URSFNAL", 0, 0.10},     {"URSSOLID", 0, 0.30},
      {"ATIACL", 0, 0.40},       {"CNFPT", 0, 0.90},       {"CDG", 0, 0.80},
      {"TRANSPORT", 0, 2.00},    {"URSRGVEU", 0.40, 1.90}, {"URSRGVIEP", 6.90, 8.55},
  };
  return k;
}

double Cumul(const std::string& code) {
  const auto it = CumulsReels().find(code);
  if (it != CumulsReels().end()) return it->second;
  return std::stoi(code.substr(3)) * 3.5;
}

void SourcesDeLaCommune(MethodeCalculG_Nouv& m) {
  m.gPeriodeEncours = "01/03/2024";
  m.gRsConstantes = NouveauRecordset({"CodeConstante", "IdConstante", "Valeur", "TauxMontant"});
  for (int i = 1; i <= kConstantes; ++i) {
    m.gRsConstantes->AddNew();
    std::string code = Numero("K", i);
    double valeur = i * 1.25;
    if (i == kIdCoefCsg) code = "COEFCSG", valeur = 98.25;
    if (i == kIdCoefPlein) code = "COEFPLEIN", valeur = 100;
    m.gRsConstantes->SetField("CodeConstante", code);
    m.gRsConstantes->SetField("IdConstante", i);
    m.gRsConstantes->SetField("Valeur", valeur);
    m.gRsConstantes->SetField("TauxMontant", (i % 2 == 0) ? "T" : "M");
  }
  m.gRsTaux = NouveauRecordset({"CodeTaux", "IdTaux", "PartSalariale", "PartPatronale"});
  for (int i = 1; i <= kTaux; ++i) {
    m.gRsTaux->AddNew();
    const std::size_t r = static_cast<std::size_t>(i - kIdPremierTaux);
    const bool reel = r < TauxReels().size();
    m.gRsTaux->SetField("CodeTaux", reel ? std::string(TauxReels()[r].code) : Numero("T", i));
    m.gRsTaux->SetField("IdTaux", i);
    m.gRsTaux->SetField("PartSalariale", reel ? TauxReels()[r].salarial : i * 0.01);
    m.gRsTaux->SetField("PartPatronale", reel ? TauxReels()[r].patronal : i * 0.02);
  }
  m.gRsCumuls = NouveauRecordset({"CodeCumul", "Idcumul", "PartSalariale", "PartPatronale",
                                  "PartSalarialeRappel", "PartPatronaleRappel"});
  int id = 0;
  auto cumul = [&](const std::string& code) {
    m.gRsCumuls->AddNew();
    m.gRsCumuls->SetField("CodeCumul", code);
    m.gRsCumuls->SetField("Idcumul", ++id);
    m.gRsCumuls->SetField("PartSalariale", Cumul(code));
    m.gRsCumuls->SetField("PartPatronale", 0.0);
    m.gRsCumuls->SetField("PartSalarialeRappel", 0.0);
    m.gRsCumuls->SetField("PartPatronaleRappel", 0.0);
  };
  for (const auto& [code, valeur] : CumulsReels()) cumul(code);
  while (id < kCumuls) cumul(Numero("CUM", id + 1));
  m.gRsCumulsHistoriqueSal = NouveauRecordset(
      {"IDSALARIE", "Mois", "CodeCumul", "IdCumul", "PartSalariale", "PartPatronale"});
  m.gRsConstantesFixesHistorique = NouveauRecordset({"Mois", "Point", "IndMinRemuneration"});
  m.gRsConstantesFixes = NouveauRecordset({"Point", "IndResid", "IndMinSF", "IndMaxSF", "SFFixe1",
                                           "SFFixe2", "SFvar2", "SFFixe3", "SFvar3", "SFFixeSup",
                                           "SFvarsup", "SmicHor", "HrsMois", "IndMinRemuneration"});
  m.gRsConstantesFixes->AddNew();
  const std::pair<const char*, double> fixes[] = {
      {"Point", 59.0734}, {"IndResid", 313},  {"IndMinSF", 454},  {"IndMaxSF", 722},
      {"SFFixe1", 2.29},  {"SFFixe2", 10.67}, {"SFvar2", 3},      {"SFFixe3", 15.24},
      {"SFvar3", 8},      {"SFFixeSup", 4.57}, {"SFvarsup", 6},   {"SmicHor", 11.65},
      {"HrsMois", 151.67}, {"IndMinRemuneration", 361}};
  for (const auto& [champ, valeur] : fixes) m.gRsConstantesFixes->SetField(champ, valeur);
}

VarCalculSalarie Fonctionnaire(RsRef& vars) {
  vars = NouveauRecordset({"CodeVariable", "IdVariable", "Valeur", "Dateeffet", "TauxMontant"});
  for (int i = 1; i <= kVariables; ++i) {
    vars->AddNew();
    vars->SetField("CodeVariable", Numero("V", i));
    vars->SetField("IdVariable", i);
    vars->SetField("Valeur", 100.0 + 10 * i);
    vars->SetField("Dateeffet", "20240301");  // yyyymmdd, the month itself
    vars->SetField("TauxMontant", "M");
  }
  VarCalculSalarie s;
  s.lIdSalarie = 42;
  s.sTypeModele = "INDTIT";
  s.sDateDebut = "01/01/2015";
  s.sOccupationPoste = "N";
  s.bRegineFonctionnaire = true;
  s.iZoneResid = 3;
  s.iEnfant_ACharge = 2;
  s.dDureeHebdoLegale = 35;
  s.dHeuresHebdo = 35;
  s.iTypeCalculHeure = 1;
  s.dNB_Jours_Max_Decalage_Mois = -1;
  s.sDateChangementIndice = "11/03/2024";
  s.sDateChangementHeures = "01/01/2015";
  s.dIndiceMajoreA = 366;  // before the change
  s.dIndiceMajoreM = 400;  // from it
  s.dBonification = 15;    // points of the index bonus
  s.rsSituationsExceptionnelles =
      NouveauRecordset({"CodeSituationExceptionnelle", "DateDebutSituationExceptionnelle",
                        "DateFinSituationExceptionnelle", "Quotite"});
  // The pay of the days before the index change on the 11th and of the days from it.
  s.dSalaire_MensuelPleinIATN = 600.5766666666667;
  s.dSalaire_MensuelPleinINTN = 1312.74;
  s.dSalaire_MensuelReelIATN = 600.5766666666667;
  s.dSalaire_MensuelReelINTN = 1312.74;
  s.rsExConjoints = NouveauRecordset({"CodeRubrique", "NbEnfantsACharge", "TauxTempsGarde"});
  return s;
}

}  // namespace orvalis::bench
