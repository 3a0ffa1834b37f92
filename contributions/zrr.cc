// The exemption of employer contributions in a rural revitalisation zone (ZRR): full,
// degressive with the pay against the minimum wage, or none.
#include <string>

#include "contributions/smic_horaire.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"

namespace orvalis {

namespace {

constexpr Int16 kZrrDegressive = 2;
constexpr Int16 kZrrSansExoneration = 3;

// Base total and rate of the contribution named by the line's code.
struct ContributionZrr {
  std::string sCumul;
  double dTaux;
};

ContributionZrr ContributionDuCode(const VarCalculSalarie& s, const std::string& sCode) {
  if (sCode == "REDCOTZRRC") return {"ASSURSTOT", s.dTauxExoZRRCotSS};
  if (sCode == "REDCOTZRRF") return {"ASSFNALCAL", s.dTauxExoZRRFnal};
  if (sCode == "REDCOTZRRT") return {"ASSURSTOT", s.dTauxExoZRRTransport};
  return {"ASSURSTOT", 0};
}

// The minimum wage of the month: from the quadrant coefficients for the index models,
// from the hours paid otherwise.
double SmicDuMois(MoteurCalcul& m, const VarCalculSalarie& s) {
  const double H = reductions::SmicHoraireDuMois(m, s);
  if (s.sTypeModele == "INDTIT" || s.sTypeModele == "INDNTI") {
    return H * 151.67 *
           ((s.dCoefficient_IATN + s.dCoefficient_INTN) * s.dCoefficient_TraitementTN +
            (s.dCoefficient_IATA + s.dCoefficient_INTA) * s.dCoefficient_TraitementTA);
  }
  return Arrondi(m.dRechercheValeurCumul("HEURES", "S") * H, 4);
}

}  // namespace

void MethodeCalculG_Nouv::CalculRubrique_ExonerationZrr(VarCalculSalarie& InfosSalaries,
                                                        const RsRef& /*RsVarSalaries*/,
                                                        SalarieCalculRubrique& Rubrique) {
  const VarCalculSalarie& s = InfosSalaries;
  // The degressive factor always runs on the social security base, also for the FNAL.
  const double A = dRechercheValeurCumul("ASSURSTOT", "S");
  const ContributionZrr c = ContributionDuCode(s, Rubrique.sCodeRubrique);
  const double B = dRechercheValeurCumul(c.sCumul, "S");
  double T = 0;
  if (s.iTypeExoZRR != kZrrSansExoneration) {
    T = c.dTaux;
    if (s.iTypeExoZRR == kZrrDegressive) {
      const double Q = SmicDuMois(*this, s);
      const double U = s.dTauxExoZRRFnal + s.dTauxExoZRRCotSS + s.dTauxExoZRRTransport;
      // Unbounded: the fraction may exceed 1 or turn negative.
      const double E = Arrondi(Div(U, 0.9) * (Div(Q * 2.4 * 1.5, A) - 1.5), 3);
      T = Div(T * E, U);
    }
  }
  const double V = T * 100 * -1;
  Rubrique.dBase = 0;
  Rubrique.dTauxSalarial = 0;
  Rubrique.dMontantSalarial = 0;
  Rubrique.dTauxPatronal = 0;
  Rubrique.dMontantPatronal = Arrondi(B * V / 100, 2);
}

}  // namespace orvalis
