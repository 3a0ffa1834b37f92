// Withholding on elected officials' allowances, new method: one payment period of the
// official, the principal remuneration and each mandate split into IRCANTEC tranches by
// ceiling period, their URSSAF, CSG, net and employment expenses, then the tax scale. The
// detail table rsRetenueALaSourceNouvelleMethode shows it all per month: one row for the
// principal remuneration, one a mandate, and a final row of the tax.
#include <string>

#include "contributions/elus_outils.h"
#include "contributions/retenue_source_elus.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/dates.h"

namespace orvalis {

namespace {

double Nombre(Recordset& rs, const char* sColonne) { return rs.Field(sColonne).Nombre(); }

using elus::PourChaqueLigne;

// Pay days that a ceiling period (dates yyyymmdd) shares with a mandate.
Int16 JoursCommuns(Recordset& rsPeriode, Recordset& rsMandat) {
  return iNbJoursBase30Commun(MajChaineEnFormatDate(rsPeriode.Field("DateDebutPeriode").Texte()),
                              MajChaineEnFormatDate(rsPeriode.Field("DateFinPeriode").Texte()),
                              rsMandat.Field("DateDebut").Texte(),
                              rsMandat.Field("DateFin").Texte());
}

// One ceiling period's share of tranche A of a mandate of theoretical remuneration
// dBrutTheorique: capped in proportion when the period's allowances pass its ceiling.
// D is the payment period in days.
double PartTrancheA(Recordset& p, double dPlafondPeriode, double dBrutTheorique, double D) {
  const double dTotal = Nombre(p, "TotalIndemnitesPeriode");
  if (dTotal > Nombre(p, "PlafondSSPeriode")) {
    return Div(dPlafondPeriode * (dBrutTheorique * Nombre(p, "NbJourPeriode") / D), dTotal) *
           Nombre(p, "NbJourPeriodeSurPaieMoisEnCours") / D;
  }
  return dBrutTheorique * Nombre(p, "NbJourPeriodeSurPaieMoisEnCours") / D;
}

// Tranche A of the principal remuneration over the ceiling periods, to the cent: the
// allowance paid in each period, or its share of the period's ceiling when the period's
// allowances pass it. dBrutPlein is the principal remuneration over a full period.
double TrancheAPrincipal(Recordset& rsIrcantec, double dPlafondPeriode, double dBrutPlein,
                         double D) {
  double dTrancheA = 0;
  PourChaqueLigne(rsIrcantec, [&](Recordset& p) {
    const double dTotal = Nombre(p, "TotalIndemnitesPeriode");
    if (dTotal > Nombre(p, "PlafondSSPeriode")) {
      dTrancheA += Div(dPlafondPeriode * Nombre(p, "IndemniteColleEnCoursPeriode"), dTotal) *
                   Nombre(p, "NbJourPeriodeSurPaieMoisEnCours") / D;
    } else {
      dTrancheA += dBrutPlein * Nombre(p, "NbJourPeriodeSurPaieMoisEnCours") / D;
    }
  });
  return Arrondi(dTrancheA, 2);
}

// The URSSAF of a mandate subject to it, on the periods subject to it that the mandate
// shares: the full base and the capped base, neither rounded. The employer's pension
// subject to CSG joins the theoretical remuneration at each such period, twice over two
// periods, as the hosts' figures know it.
void UrssafMandat(Recordset& m, Recordset& rsUrssaf, double D, const elus::MontantsRetenue& t,
                  double& dUrssafTot, double& dUrssafPlaf) {
  double dBrutTheorique = Nombre(m, "MontantRemunerationBruteTheorique");
  double dBaseTotale = 0;
  double dBasePlafonnee = 0;
  PourChaqueLigne(rsUrssaf, [&](Recordset& p) {
    const bool bSoumis = p.Field("SoumisUrssaf").NombreOuZero() == 1;
    if (!bSoumis || JoursCommuns(p, m) <= 0) return;
    dBrutTheorique += Nombre(m, "RetComplPatBruteSoumiseCsg");
    dBaseTotale += dBrutTheorique * Nombre(p, "NbJourPeriodeSurPaieMoisEnCours") / D;
    const double dTa = Nombre(p, "AssietteTaTotal");
    const double dTb = Nombre(p, "AssietteTbTotal");
    if (dTa + dTb == 0) {
      dBasePlafonnee += PartTrancheA(p, t.dPlafondPeriode, dBrutTheorique, D);
    } else {
      dBasePlafonnee += dBrutTheorique * (dTa / (dTa + dTb)) *
                        Nombre(p, "NbJourPeriodeSurPaieMoisEnCours") / D;
    }
  });
  dUrssafTot = t.dTauxUrssafTot * dBaseTotale / 100;
  dUrssafPlaf = dBasePlafonnee * t.dTauxUrssafPlaf / 100;
}

// One mandate of the period: its IRCANTEC tranches on the ceiling periods it shares, its
// URSSAF, CSG and net, written back into its row; its net, its employer's pension and its
// expenses join the totals.
void CalculeMandat(Recordset& m, Recordset& rsIrcantec, Recordset& rsUrssaf, double D,
                   elus::MontantsRetenue& t) {
  const double dBrutMandat = Nombre(m, "MontantRemunerationBrute");
  const double dBrutTheorique = Nombre(m, "MontantRemunerationBruteTheorique");

  double dTrancheA = 0;
  PourChaqueLigne(rsIrcantec, [&](Recordset& p) {
    if (JoursCommuns(p, m) > 0) dTrancheA += PartTrancheA(p, t.dPlafondPeriode, dBrutTheorique, D);
  });
  dTrancheA = Arrondi(dTrancheA, 2);
  const double dTrancheB = Arrondi(dBrutMandat - dTrancheA, 2);
  const double dIrcA = t.dTauxTA * dTrancheA / 100;
  const double dIrcB = t.dTauxTB * dTrancheB / 100;

  double dUrssafTot = 0;
  double dUrssafPlaf = 0;
  if (m.Field("SoumiseUrssaf").NombreOuZero() != 0)
    UrssafMandat(m, rsUrssaf, D, t, dUrssafTot, dUrssafPlaf);

  const double dCsg = dBrutMandat * t.dCoefCsg * t.dTauxCsg / 100;
  const double dCotisations = dIrcA + dIrcB + dCsg + (dUrssafPlaf + dUrssafTot);
  const double dNet = dBrutMandat - dCotisations;
  t.dNetMandats += dNet;

  elus::EcritMandat(m, 0.0, dCotisations, dIrcA, dIrcB, dCsg, dNet);
  m.SetField("MontantCotisationUrssafPlaf", Value(dUrssafPlaf));
  m.SetField("MontantCotisationUrssafTot", Value(dUrssafTot));

  t.dNetMandats += Nombre(m, "RetComplPatBruteSoumiseCsg") * (1 - t.dTauxCsg * t.dCoefCsg / 100) +
                   Nombre(m, "RetComplPatBrutePasSoumiseCsg");

  if (dNet > 0) m.SetField("MontantTotalFraisInd", Value(elus::FraisMandat(t, dNet)));
}

// The principal remuneration over the ceiling periods, with the employer's pension and the
// URSSAF of an official subject to it, then each mandate (Salaire false).
void PrincipalEtMandats(MethodeCalculG_Nouv& e, const VarCalculSalarie& InfosSalaries,
                        elus::MontantsRetenue& t, Recordset& rsAutres) {
  t.dCoefCsg = 1;
  const double dBrutPrincipal = t.dBrutPrincipal;
  // The principal remuneration brought to a full period.
  double dBrutPlein = 0;
  if (elus::MoisDeLaPeriode(InfosSalaries.sEluPeriodicite) == 1) {
    if (InfosSalaries.iNBJ_Presence_Total != 0)
      dBrutPlein = dBrutPrincipal * 30 / InfosSalaries.iNBJ_Presence_Total.value();
  } else if (InfosSalaries.iNBJ_Presence_Total_Periode_Elus != 0) {
    dBrutPlein = dBrutPrincipal * 30 * t.dMoisPeriode /
                 InfosSalaries.iNBJ_Presence_Total_Periode_Elus.value();
  }

  // The employer's share of the officials' pension funds is taxed as a benefit.
  double dValSal = 0;
  e.RechercheValeursListeCumul("FONCAR,CAREL", dValSal, t.dCotiPatRetraite);

  const double D = t.dMoisPeriode * 30;
  Recordset& rsIrcantec =
      Source(InfosSalaries.RsPlafondIrcantecPeriodes, "RsPlafondIrcantecPeriodes");
  const double dTrancheA = TrancheAPrincipal(rsIrcantec, t.dPlafondPeriode, dBrutPlein, D);
  const double dTrancheB = Arrondi(dBrutPrincipal - dTrancheA, 2);
  t.dIrcA = t.dTauxTA * dTrancheA / 100;
  t.dIrcB = t.dTauxTB * dTrancheB / 100;

  if (InfosSalaries.sCodeModele == "ELUMAIRESP" || InfosSalaries.bIndemniteEluCotiseUrssaf) {
    const double dAssietteTot = Arrondi(e.dRechercheValeurCumul("ASSURSTOT", "S"), 2);
    const double dAssiettePlaf = e.dRechercheValeurCumul("ASSURSTRA", "S");
    // The ceiling rate stays rounded for the mandates below.
    t.dTauxUrssafPlaf = Arrondi(t.dTauxUrssafPlaf, 2);
    t.dUrssafTot = dAssietteTot * t.dTauxUrssafTot / 100;
    t.dUrssafPlaf = t.dTauxUrssafPlaf * dAssiettePlaf / 100;
    t.dUrssaf = t.dUrssafTot + t.dUrssafPlaf;
  }
  t.dCsg = (t.dCotiPatRetraite + dBrutPrincipal) * t.dCoefCsg * t.dTauxCsg / 100;
  t.dNetPrincipal =
      t.dCotiPatRetraite + dBrutPrincipal - (t.dIrcA + t.dIrcB + t.dCsg + t.dUrssaf);

  elus::FraisPrincipal(t, rsAutres.RecordCount() > 0);

  Recordset& rsUrssaf = Source(InfosSalaries.RsPlafondUrssafPeriodes, "RsPlafondUrssafPeriodes");
  PourChaqueLigne(rsAutres, [&](Recordset& m) {
    if (elus::EstFaux(m.Field("Salaire"))) CalculeMandat(m, rsIrcantec, rsUrssaf, D, t);
  });
}

}  // namespace

RsRef MethodeCalculG_Nouv::EnregistreDetailRetenueSource_NouvelleMethode() {
  return NouveauRecordset(elus::ColonnesDetailNouvelleMethode(elus::FormeDetail::kActuelle));
}

void MethodeCalculG_Nouv::CalculRubrique_Retenue_a_la_source_NouvelleMethode(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
    const RsRef& /*RsVariablesSalaries*/) {
  // The period ends with its last month, or in the month the mandate ends.
  const auto FinPeriode = [&] {
    return elus::FinDePeriode(elus::MoisDeLaPeriode(InfosSalaries.sEluPeriodicite),
                              Mois(LireDate(gPeriodeEncours))) ||
           elus::DernierMoisMandat(InfosSalaries.sDateFin, gPeriodeEncours);
  };
  elus::RetenueNouvelleMethode(
      *this, InfosSalaries, Rubrique, EnregistreDetailRetenueSource_NouvelleMethode(),
      elus::FormeDetail::kActuelle, FinPeriode,
      [&](elus::MontantsRetenue& t, Recordset& rsAutres) {
        PrincipalEtMandats(*this, InfosSalaries, t, rsAutres);
      });
}

}  // namespace orvalis
