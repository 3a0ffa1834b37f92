// Deductions for days, half days and hours not worked: strike, other unpaid absences and the
// three waiting-day blocks, of this month ("GREVE") or of the month before ("GREVE MOIS
// PRECEDENT"). The pay-line code says which counters are read.
#include "absences/greve.h"

#include <string>
#include <vector>

#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis {

namespace greve {

Compteurs CompteursGreve(const VarCalculSalarie& s, bool bPrec) {
  if (bPrec) return {s.dGreveJoursPrec, s.dGreveDemiJoursPrec, s.dGreveHeuresPrec};
  return {s.dGreveJours, s.dGreveDemiJours, s.dGreveHeures};
}

double HeuresDuMois(MoteurCalcul& m, const VarCalculSalarie& s, bool bMoisPrecedent,
                    const RsRef& RsVarSalaries, const RsRef& RsSalariesHisto,
                    const RsRef& RsVarSalariesHisto) {
  if (bMoisPrecedent) {
    return m.dRechercheHeuresMoisHistorique(RsSalariesHisto, s.lIdSalarie, m.gPeriodeEncours) +
           m.dRechercheValeur_Variable(RsVarSalariesHisto, "HEURESA");
  }
  return s.dHeuresMois + m.dRechercheValeur_Variable(RsVarSalaries, "HEURESA");
}

double MontantRetenu(const Compteurs& c, double B, double M) {
  double A = 0;
  if (c.T > 0) A = c.T * B / 30;
  if (c.H > 0) A = A + B * c.H / 60;
  if (c.U > 0 && M > 0) A = A + c.U * B / M;
  return A;
}

void EcritRetenue(SalarieCalculRubrique& Rubrique, double B, double A) {
  Rubrique.dBase = B;
  Rubrique.dTauxSalarial = 0;
  Rubrique.dMontantSalarial = 0 - A;  // no negative zero when nothing is taken back
  Rubrique.dTauxPatronal = 0;
  Rubrique.dMontantPatronal = 0;
}

}  // namespace greve

namespace {

using greve::Compteurs;

// A family of pay-line codes and the counters it reads, of the month ("N") or of the month
// before ("A").
struct FamilleAbsence {
  std::vector<std::string> codes;
  Compteurs (*lire)(const VarCalculSalarie& s, bool bMoisPrecedent);
};

Compteurs LireAutreAbsence(const VarCalculSalarie& s, bool bPrec) {
  if (bPrec) {
    return {s.dAutreAbsenceJoursPrec, s.dAutreAbsenceDemiJoursPrec, s.dAutreAbsenceHeuresPrec};
  }
  return {s.dAutreAbsenceJours, s.dAutreAbsenceDemiJours, s.dAutreAbsenceHeures};
}

// Waiting days are whole days only.
template <Int16 VarCalculSalarie::*iMois, Int16 VarCalculSalarie::*iMoisPrec>
Compteurs LireCarence(const VarCalculSalarie& s, bool bPrec) {
  return {static_cast<double>((s.*(bPrec ? iMoisPrec : iMois)).value()), 0, 0};
}

// The ten codes of a waiting block, numbered n.
std::vector<std::string> CodesCarence(const std::string& n) {
  std::vector<std::string> codes;
  for (const char* racine :
       {"RETCARENCETR", "RETCARENCENB", "RETCARENCEIR", "RETCARENCEPR", "RETCARENCEPRSTPP",
        "RETCARENCEPTR", "RETCARENCEPIR", "RETCARENCEPPR", "RETCARENCEPPRSTPP", "RETCARENCETPP"}) {
    codes.push_back(racine + n);
  }
  return codes;
}

using S = VarCalculSalarie;

// In this order: the first family holding the code decides.
const std::vector<FamilleAbsence>& Familles() {
  static const std::vector<FamilleAbsence> kFamilles = {
      {{"RETGREVETR", "RETGREVENB", "RETGREVEIR", "RETGREVEPR", "RETGREVEPRSTPP", "RETGREVPTR",
        "RETGREVPNB", "RETGREVPIR", "RETGREVPPR", "RETGREVPPRSTPP", "RETGREVETPP", "RETGREVEPTPP"},
       &greve::CompteursGreve},
      {{"RETABSENCETR", "RETABSENCENB", "RETABSENCEIR", "RETABSENCEPR", "RETABSENCEPRSTPP",
        "RETABSENCEPTR", "RETABSENCEPNB", "RETABSENCEPIR", "RETABSENCEPPR", "RETABSENCEPPRSTPP",
        "RETABSENCETPP", "RETABSENCEPTPP"},
       &LireAutreAbsence},
      {CodesCarence("1"), &LireCarence<&S::iNbCarence1, &S::iNbCarenceMoisPrec1>},
      {CodesCarence("2"), &LireCarence<&S::iNbCarence2, &S::iNbCarenceMoisPrec2>},
      {CodesCarence("3"), &LireCarence<&S::iNbCarence3, &S::iNbCarenceMoisPrec3>},
  };
  return kFamilles;
}

const FamilleAbsence* FamilleDuCode(const std::string& sCode) {
  for (const FamilleAbsence& f : Familles())
    for (const std::string& c : f.codes)
      if (c == sCode) return &f;
  return nullptr;
}

// The lines of a part of the base that is itself taken back: the base is shown negative.
bool BaseNegative(const std::string& sCode) {
  for (const char* c : {"RETGREVETPP", "RETGREVEPTPP", "RETABSENCETPP", "RETABSENCEPTPP",
                        "RETCARENCETPP1", "RETCARENCETPP2", "RETCARENCETPP3"}) {
    if (sCode == c) return true;
  }
  return false;
}

}  // namespace

void MethodeCalculG_Nouv::CalculRubrique_Greve(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique, const RsRef& RsVarSalaries,
    const std::string& sVariante, const RsRef& RsSalariesHisto, const RsRef& RsVarSalariesHisto) {
  double B = RechercheValeurBase(InfosSalaries, RsVarSalaries, Rubrique);

  // Only "A" reads the month before; any other mode is the current month.
  const bool bMoisPrecedent = sVariante == "A";
  Compteurs c;
  double M = 0;  // hours of the month
  if (const FamilleAbsence* f = FamilleDuCode(Rubrique.sCodeRubrique)) {
    c = f->lire(InfosSalaries, bMoisPrecedent);
    M = greve::HeuresDuMois(*this, InfosSalaries, bMoisPrecedent, RsVarSalaries, RsSalariesHisto,
                            RsVarSalariesHisto);
  }
  const double A = greve::MontantRetenu(c, B, M);

  // The amount stays a deduction when the base is shown negative.
  if (BaseNegative(Rubrique.sCodeRubrique)) B = B * -1;

  greve::EcritRetenue(Rubrique, B, A);
}

}  // namespace orvalis
