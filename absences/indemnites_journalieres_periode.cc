// One period of daily benefits spread over the calendar months it touches.
#include "absences/indemnites_journalieres_periode.h"

#include <vector>

#include "absences/montant_brut_mois.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/dates.h"
#include "period/periode_outils.h"

namespace orvalis::ij {

namespace {

enum class Generation { kEmplacements, kTable };

std::string Droite(const std::string& s, std::size_t n) {
  return s.size() <= n ? s : s.substr(s.size() - n);
}

double CumulHistoriqueS(MoteurCalcul& m, const VarCalculSalarie& InfosSalaries,
                        const std::string& sCode, const std::string& sMois) {
  double d = 0;
  return m.dRechercheValeurCumulHistorique(InfosSalaries.lIdSalarie, m.gPeriodeEncours, sCode, d,
                                           sMois, "S", 0);
}

// The gross of the cursor's month that the daily benefit is compared with.
double BrutDuMois(MoteurCalcul& m, const VarCalculSalarie& InfosSalaries,
                  const RsRef& RsSalariesHisto, const std::string& sCurseur, Date dCurseur) {
  if (!InfosSalaries.bCalculIJNonPlafonnee) {
    return dMontantBrutMois(RsSalariesHisto, sCurseur) -
           InfosSalaries.dMtIJTheoriqueMaladieEtATMoisPrec;
  }
  if (periode::MemeMois(dCurseur, LireDate(m.gPeriodeEncours))) {
    return m.dRechercheValeurCumul("TOTRETCAR", "S") + m.dRechercheValeurCumul("BRUT", "S");
  }
  const std::string sMois = CleMoisHistorique(sCurseur);
  return CumulHistoriqueS(m, InfosSalaries, "BRUT", sMois) +
         CumulHistoriqueS(m, InfosSalaries, "TOTIJMALR", sMois) +
         CumulHistoriqueS(m, InfosSalaries, "TOTRETCAR", sMois);
}

void AjouteAuxTotaux(Generation g, const PeriodeIJ& periode, bool bIJSubrogees, double R,
                     VarCalculSalarie& s) {
  if (g == Generation::kEmplacements) {
    if (periode.sType == "M") {
      s.dTotalIJMaladie += R;
    } else {
      s.dTotalIJAT += R;
    }
  } else if (bIJSubrogees) {
    if (periode.sType == "MP" || periode.sType == "AT") {
      s.dTotalIJAT += R;
    } else {
      s.dTotalIJMaladie += R;
    }
  } else {
    // The guaranteed income is never reset here: a month without excess takes off again
    // what an earlier month left.
    s.dTotalIJNonSubrogees = s.dTotalIJNonSubrogees + R - s.dIJNonSubrogees_RevenuGarantiBrut;
  }
}

// bNonPlafonnee: the benefit is retained whole and what passes the salary is guaranteed
// income; otherwise the benefit retained never exceeds the salary of the month.
void EtalePeriode(Generation g, const PeriodeIJ& periode,
                  VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                  bool bIJSubrogees, bool bNonPlafonnee, const BrutDuMoisIJ& brutDuMois) {
  const Date dFin = LireDate(periode.sDateFin);
  const double J =
      Div(periode.dPercu, static_cast<double>(DiffJours(LireDate(periode.sDateDebut), dFin) + 1));
  std::string sCurseur = periode.sDateDebut;
  for (;;) {
    const Date dCurseur = LireDate(sCurseur);
    const Date dDernierDuMois =
        AjouteJours(AjouteMois(LireDate("01" + Droite(sCurseur, 8)), 1), -1);
    const Date dFinMois = periode::MemeMois(dCurseur, dFin) ? dFin : dDernierDuMois;
    const Int16 N = Int16(DiffJours(dCurseur, LireDate(TexteDate(dFinMois))) + 1);

    Int16 Q = 0;
    double dDiviseur = Jour(dDernierDuMois);
    if (g == Generation::kTable) {
      Q = iNbJoursCommunsMois(InfosSalaries.sDateDebut, InfosSalaries.sDateFin, sCurseur);
      dDiviseur = Q;
    }
    const double G = brutDuMois(sCurseur, dCurseur);
    const bool bSansSalaire = G == 0 || (g == Generation::kTable && Q <= 0);
    const double W = bSansSalaire ? J : G / dDiviseur;
    const double dN = N;

    double R = 0;
    if (!bNonPlafonnee) {
      R = W < J ? dN * W : dN * J;
    } else {
      if (J > W) {
        const double dExces = (J - W) * dN;
        if (g == Generation::kTable && !bIJSubrogees) {
          InfosSalaries.dIJNonSubrogees_RevenuGarantiBrut = dExces;
        } else {
          InfosSalaries.dIJ_RevenuGarantiBrut += dExces;
        }
      }
      R = dN * J;
    }
    AjouteAuxTotaux(g, periode, bIJSubrogees, R, InfosSalaries);

    Recordset& rsIJ = Source(Rubrique.rsIJ, "rsIJ");
    rsIJ.AddNew();
    rsIJ.SetField("IdSalarie", static_cast<long long>(InfosSalaries.lIdSalarie.value()));
    rsIJ.SetField("NumIJ", static_cast<int>(periode.NumIJ.value()));
    rsIJ.SetField("Mois", sCurseur);
    rsIJ.SetField("SalaireBrut", G);
    rsIJ.SetField("SalaireJournalier", W);
    rsIJ.SetField("SalaireJournalierIJ", J);
    rsIJ.SetField("NbJourIJ", static_cast<int>(N.value()));
    rsIJ.SetField("IJRetenues", R);
    if (g == Generation::kTable) {
      rsIJ.SetField("NbJourPresenceCalendaire", static_cast<double>(Q.value()));
      rsIJ.SetField("IJDateDebut", periode.sDateDebut);
      rsIJ.SetField("IJDateFin", periode.sDateFin);
    }

    // Month and year are compared apart: either one still behind keeps the walk going.
    if (!(Mois(dCurseur) < Mois(dFin) || Annee(dCurseur) < Annee(dFin))) break;
    sCurseur = TexteDate(AjouteMois(PremierJourDuMois(dCurseur), 1));
  }
}

}  // namespace

RsRef CreationTableIJ(ColonnesIJ colonnes) {
  std::vector<std::string> noms = {"IdSalarie",         "NumIJ",       "Mois",
                                   "SalaireBrut",       "SalaireJournalier",
                                   "SalaireJournalierIJ", "NbJourIJ", "IJRetenues"};
  if (colonnes == ColonnesIJ::kToutes)
    noms.insert(noms.end(), {"IJPAS", "NbJourPresenceCalendaire", "IJDateDebut", "IJDateFin"});
  return NouveauRecordset(noms);
}

PeriodeIJ EmplacementIJ(const VarCalculSalarie& s, int i) {
  switch (i) {
    case 1:
      return {s.sIJType1, s.sIJDateDebut1, s.sIJDatefin1, s.dIJPercu1, Int16(1)};
    case 2:
      return {s.sIJType2, s.sIJDateDebut2, s.sIJDatefin2, s.dIJPercu2, Int16(2)};
    case 3:
      return {s.sIJType3, s.sIJDateDebut3, s.sIJDatefin3, s.dIJPercu3, Int16(3)};
    default:
      Faute("no daily-benefit slot " + std::to_string(i));
  }
}

void CalculIJ_PeriodeEmplacement(VarCalculSalarie& InfosSalaries, const PeriodeIJ& periode,
                                 SalarieCalculRubrique& Rubrique, bool bNonPlafonnee,
                                 const BrutDuMoisIJ& brutDuMois) {
  EtalePeriode(Generation::kEmplacements, periode, InfosSalaries, Rubrique, true, bNonPlafonnee,
               brutDuMois);
}

void CalculIJ_Periode(MoteurCalcul& m, VarCalculSalarie& InfosSalaries,
                      const RsRef& RsSalariesHisto, const PeriodeIJ& periode,
                      SalarieCalculRubrique& Rubrique) {
  CalculIJ_PeriodeEmplacement(
      InfosSalaries, periode, Rubrique, InfosSalaries.bCalculIJNonPlafonnee,
      [&](const std::string& sCurseur, Date dCurseur) {
        return BrutDuMois(m, InfosSalaries, RsSalariesHisto, sCurseur, dCurseur);
      });
}

void IndemnitesEmplacements(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                            ColonnesIJ colonnes,
                            const std::function<void(Int16 NumIJ)>& calculePeriode) {
  if (InfosSalaries.dIJPercu1 > 0 || InfosSalaries.dIJPercu2 > 0 || InfosSalaries.dIJPercu3 > 0)
    Rubrique.rsIJ = CreationTableIJ(colonnes);
  for (int i = 1; i <= 3; ++i)
    if (EmplacementIJ(InfosSalaries, i).dPercu > 0) calculePeriode(Int16(i));
  if (InfosSalaries.sMethodeCalculIJ == "E") {
    EcritDeduction(Rubrique,
                   InfosSalaries.dIJPercu1 + InfosSalaries.dIJPercu2 + InfosSalaries.dIJPercu3,
                   -InfosSalaries.dTotalIJMaladie - InfosSalaries.dTotalIJAT);
  }
}

void EcritDeduction(SalarieCalculRubrique& Rubrique, double dBase, double dMontant) {
  Rubrique.dBase = dBase;
  Rubrique.dTauxSalarial = 0;
  Rubrique.dMontantSalarial = dMontant;
  Rubrique.dTauxPatronal = 0;
  Rubrique.dMontantPatronal = 0;
}

void CalculIJ_Periode_NouvelleMethode(MoteurCalcul& m, const PeriodeIJ& periode,
                                      VarCalculSalarie& InfosSalaries, const RsRef& RsSalariesHisto,
                                      SalarieCalculRubrique& Rubrique, bool bIJSubrogees) {
  EtalePeriode(Generation::kTable, periode, InfosSalaries, Rubrique, bIJSubrogees,
               InfosSalaries.bCalculIJNonPlafonnee,
               [&](const std::string& sCurseur, Date dCurseur) {
                 return BrutDuMois(m, InfosSalaries, RsSalariesHisto, sCurseur, dCurseur);
               });
}

}  // namespace orvalis::ij
