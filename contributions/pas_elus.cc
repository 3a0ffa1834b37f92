// Income tax at source of an elected official: the flat allowance for the expenses of the
// mandate, in proportion to the principal allowance among the mandates of the period, with
// its detail table rsPrelevementSourceElus (one row a mandate).
#include <optional>

#include "contributions/elus_outils.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/dates.h"

namespace orvalis {

namespace {

using elus::DernierMoisMandat;
using elus::EstFaux;
using elus::FinDePeriode;

// A date of a mandate as the host gives it, a date text or a date serial; a null (or an
// empty text) leaves every comparison with it unknown.
std::optional<Date> DateMandat(const Value& v) {
  if (v.EstNull()) return std::nullopt;
  if (v.EstNombre()) return Date{CLng(Int(v.Double())).value()};  // time of day dropped
  const std::string s = v.Texte();
  if (s.empty()) return std::nullopt;
  return LireDate(s);
}

// The mandate ran in month M: it began in or before M and ended in or after it.
bool CouvreMois(const std::optional<Date>& dDebut, Date dMois, const std::optional<Date>& dFin) {
  if (!dDebut || !dFin) return false;
  return DiffMois(*dDebut, dMois) >= 0 && DiffMois(dMois, *dFin) >= 0;
}

// Months in a period by sEluPeriodicite: 2 quarterly, 3 half-yearly, 4 yearly. A monthly
// official (1) has no such period; any other number has a period of no month at all, which
// gives no allowance.
int MoisDeLaPeriode(double dPeriodicite) {
  if (dPeriodicite == 2) return 3;
  if (dPeriodicite == 3) return 6;
  if (dPeriodicite == 4) return 12;
  return 0;
}

}  // namespace

RsRef MethodeCalculG_Nouv::EnregistreDetailPrelevementElu() {
  return NouveauRecordset({"NumeroOrdre", "DesignationMandat", "DateDebut", "DateFin",
                           "RemunerationBrute", "IndiceMajore", "FraisEmploiMandatUnique",
                           "EluNonEligibleAbatFraisEmploi"});
}

double MethodeCalculG_Nouv::CalculPrelevementALaSource_CasParticulierElu(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique) {
  Rubrique.rsPrelevementSourceElus = EnregistreDetailPrelevementElu();
  Recordset& rsDetail = *Rubrique.rsPrelevementSourceElus;

  const Date dPeriode = LireDate(gPeriodeEncours);
  const double dPeriodicite = Value(InfosSalaries.sEluPeriodicite).Nombre();
  const bool bMensuel = dPeriodicite == 1;
  const int iMoisPeriode = MoisDeLaPeriode(dPeriodicite);
  const bool bDernierMoisContrat = DernierMoisMandat(InfosSalaries.sDateFin, gPeriodeEncours);
  if (!FinDePeriode(iMoisPeriode, Mois(dPeriode)) && !bDernierMoisContrat) return 0;

  const double dIndice = dRechercheValeur_Constantes(gRsConstantes, "INDMAJELU");
  const double dTauxFrais =
      Source(gRsConstantesFixes, "gRsConstantesFixes").Field("EluTxFrais").Nombre();
  double dAbattementUnique = dIndice * ConstanteFixe("Point") * (dTauxFrais / 100) / 12;
  double dAbattementMultiple = dAbattementUnique * 1.5;
  if (InfosSalaries.bAbattementFiscalElu) {
    const double dForfait = dRechercheValeur_Constantes(gRsConstantes, "ELUABTFISC");
    if (dForfait != 0) {
      dAbattementUnique = dForfait;
      dAbattementMultiple = dForfait;
    }
  }

  Int16 iNbMois = 1;
  if (!bMensuel) {
    // A mandate begun within this period counts from its first month.
    const Date dDebut = LireDate(InfosSalaries.sDateDebut);
    const long lEcart = DiffMois(dDebut, dPeriode);
    if (Annee(dDebut) == Annee(dPeriode) && lEcart >= 0 && lEcart < iMoisPeriode) {
      iNbMois = Int16(lEcart + 1);
    } else {
      iNbMois = Int16(iMoisPeriode);
    }
  }

  const double dBrutPrincipal = dRechercheValeurCumul("BRUT", "S");

  Int32 lNumeroOrdre = 1;
  rsDetail.AddNew();
  rsDetail.SetField("NumeroOrdre", Value(lNumeroOrdre.value()));
  rsDetail.SetField("DesignationMandat", Value("Indemnité principale"));
  rsDetail.SetField("DateDebut", Value(InfosSalaries.sDateDebut));
  rsDetail.SetField("DateFin", Value(InfosSalaries.sDateFin));
  rsDetail.SetField("RemunerationBrute", Value(dBrutPrincipal));
  rsDetail.SetField("IndiceMajore", Value(dIndice));
  rsDetail.SetField("FraisEmploiMandatUnique", Value(dAbattementUnique));
  rsDetail.SetField("EluNonEligibleAbatFraisEmploi",
                    Value(InfosSalaries.bEluNonEligibleAbatFraisEmploi));

  Recordset& rsAutres = Source(InfosSalaries.rsAutresIndemnites, "rsAutresIndemnites");
  Int16 iMoisMultiples = 0;
  double dBrutAutres = 0;
  if (rsAutres.RecordCount() > 0) {
    // Months of the period in which another eligible mandate ran.
    for (int i = 0; i < iNbMois; ++i) {
      const Date dMois = AjouteMois(dPeriode, -i);
      rsAutres.MoveFirst();
      while (!rsAutres.Eof()) {
        if (EstFaux(rsAutres.Field("Salaire")) &&
            EstFaux(rsAutres.Field("EluNonEligibleAbatFraisEmploi")) &&
            CouvreMois(DateMandat(rsAutres.Field("DateDebut")), dMois,
                       DateMandat(rsAutres.Field("DateFin")))) {
          iMoisMultiples += 1;
          break;
        }
        rsAutres.MoveNext();
      }
    }

    // The mandates of the period. The start of the window lies a month before the period's
    // first month, so a mandate ended the month before still counts: kept as the hosts know it.
    const Date dDebutFenetre = iNbMois > 0 ? AjouteMois(dPeriode, -iNbMois) : dPeriode;
    rsAutres.MoveFirst();
    while (!rsAutres.Eof()) {
      if (EstFaux(rsAutres.Field("Salaire"))) {
        const std::optional<Date> dDebut = DateMandat(rsAutres.Field("DateDebut"));
        const std::optional<Date> dFin = DateMandat(rsAutres.Field("DateFin"));
        if (dDebut && dFin && DiffMois(*dDebut, dPeriode) >= 0 &&
            DiffMois(dDebutFenetre, *dFin) >= 0) {
          const Value vNonEligible = rsAutres.Field("EluNonEligibleAbatFraisEmploi");
          const Value vBrute = rsAutres.Field("MontantRemunerationBrute");
          if (EstFaux(vNonEligible)) dBrutAutres = dBrutAutres + vBrute.Nombre();

          const Value vDesignation = rsAutres.Field("Designation");
          lNumeroOrdre += 1;
          rsDetail.AddNew();
          rsDetail.SetField("NumeroOrdre", Value(lNumeroOrdre.value()));
          rsDetail.SetField("DesignationMandat", elus::CelluleDesignation(vDesignation));
          rsDetail.SetField("DateDebut", rsAutres.Field("DateDebut"));
          rsDetail.SetField("DateFin", rsAutres.Field("DateFin"));
          rsDetail.SetField("RemunerationBrute", vBrute);
          rsDetail.SetField("IndiceMajore", Value(dIndice));
          rsDetail.SetField("FraisEmploiMandatUnique",
                            Value(iMoisMultiples > 0 ? dAbattementMultiple : dAbattementUnique));
          rsDetail.SetField("EluNonEligibleAbatFraisEmploi", vNonEligible);
        }
      }
      rsAutres.MoveNext();
    }
  }

  if (InfosSalaries.bEluNonEligibleAbatFraisEmploi) return 0;

  double dAbattementTotal = 0;
  if (bMensuel) {
    dAbattementTotal = iMoisMultiples > 0 ? dAbattementMultiple : dAbattementUnique;
  } else {
    if (iNbMois <= 0) return 0;
    dAbattementTotal = (iNbMois - iMoisMultiples) * dAbattementUnique +
                       iMoisMultiples * dAbattementMultiple;
  }

  // The tax base here is the principal allowance's: it bears only its share.
  return Div(dBrutPrincipal, dBrutPrincipal + dBrutAutres) * dAbattementTotal;
}

}  // namespace orvalis
