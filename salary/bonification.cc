// The index bonus (points of "NBI"): its month on the days paid in full, and its share on
// the days of half pay with what is left for the supplementary allocation.
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "salary/demi_traitement_outils.h"
#include "salary/traitement_outils.h"

namespace orvalis {

namespace {

using salaire::Quart;

// Days of two quadrants of the same hours paid in full.
Int16 JoursPleins(const Quart& a, const Quart& b) {
  return a.iPresence + b.iPresence -
         (a.iDemiTraitement + b.iDemiTraitement + a.iCFA + b.iCFA + a.iDispoOffice +
          b.iDispoOffice + a.iCongeFormation + b.iCongeFormation + a.iCongeMaternite +
          b.iCongeMaternite);
}

}  // namespace

void MethodeCalculG_Nouv::CalculRubrique_BonificationIndiciaire(VarCalculSalarie& InfosSalaries,
                                                                SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  if (!(s.dBonification > 0)) return;

  const double P = Arrondi(ConstanteFixe("Point"), 4);
  s.dBonificationTotale = salaire::DouziemeArrondi(Arrondi(s.dBonification * P, 2));
  const double B = s.dBonificationTotale;

  const Quart iata = salaire::IATA(s), iatn = salaire::IATN(s);
  const Quart inta = salaire::INTA(s), intn = salaire::INTN(s);
  // Maternity leave is paid on the whole bonus, whatever the treatment coefficient.
  double E = 0;
  if (iata.iCongeMaternite != 0 || iatn.iCongeMaternite != 0 || inta.iCongeMaternite != 0 ||
      intn.iCongeMaternite != 0) {
    E = s.iNBJ_CongeMaterniteTempsComplet_Total * B / 30;
  }
  const Int16 NH = JoursPleins(iatn, intn);
  const Int16 OH = JoursPleins(iata, inta);
  const double dMontant =
      s.dCoefficient_TraitementTN * B * NH / 30 + s.dCoefficient_TraitementTA * B * OH / 30 + E;

  inta.dPlein = inta.dPlein + (inta.dCoefficient + iata.dCoefficient) * B;
  intn.dPlein = intn.dPlein + (intn.dCoefficient + iatn.dCoefficient) * B;
  // The old hours' days go into the IATN real salary.
  iatn.dReel = iatn.dReel + s.dCoefficient_TraitementTA * B * (iata.iPresence + inta.iPresence) / 30;
  intn.dReel = intn.dReel + s.dCoefficient_TraitementTN * B * (iatn.iPresence + intn.iPresence) / 30;

  Rubrique.dBase = B;
  Rubrique.dTauxSalarial = s.dBonification;
  Rubrique.dMontantSalarial = dMontant;
  salaire::SansPartPatronale(Rubrique);
}

void MethodeCalculG_Nouv::CalculRubrique_DemiTraitementBonification(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
    const std::string& sVariante) {
  VarCalculSalarie& s = InfosSalaries;
  if (!salaire::ADesJoursDeDemiTraitement(s)) return;
  const salaire::JoursParQuart N = salaire::JoursDeLaLigne(*this, s, sVariante, Rubrique);
  const double C = s.dCoefficient_DemiTraitement;
  const double B = s.dBonificationTotale;

  // Half pay, cessation and progressive cessation days, on old hours then new hours.
  const Int16 iAncien =
      N.inta + N.iata + s.iNBJ_CFAINTA + s.iNBJ_CFAIATA + s.iNBJ_CPAINTA + s.iNBJ_CPAIATA;
  const Int16 iNouveau =
      N.intn + N.iatn + s.iNBJ_CFAINTN + s.iNBJ_CFAIATN + s.iNBJ_CPAINTN + s.iNBJ_CPAIATN;
  const double XA = s.dCoefficient_TraitementTA * B * iAncien / 30;
  const double XN = s.dCoefficient_TraitementTN * B * iNouveau / 30;
  const double M1 = C * XA + C * XN;
  const double M2 = 0.5 * XA + 0.5 * XN;

  Rubrique.dBase = ((s.dCoefficient_INTN + s.dCoefficient_IATN) * s.dCoefficient_TraitementTN +
                    (s.dCoefficient_INTA + s.dCoefficient_IATA) * s.dCoefficient_TraitementTA) *
                   B;
  Rubrique.dTauxSalarial = N.Total();
  salaire::PaieLaMoitie(Rubrique, C, M1, M2, s.dMontantAllocationComplementaireMaladieNBI,
                        s.dMontantAllocationComplementaireMaladieNBI);
}

}  // namespace orvalis
