// The lookups of reference data: a filter with a literal criterion, a named column of the
// row that stands, the filter cleared.
//
// None of them traps. A missing source, a missing column, a value that isn't numeric is a
// fault for the entry point; the filter then stays set on the source, and the next lookup
// replaces it.
#include <cstdint>
#include <string>

#include "frame/filtre_egalite.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/MoteurCalcul.h"
#include "orvalis/dates.h"

namespace orvalis {

namespace {

// An id in a criterion: plain digits.
std::string Chiffres(Int32 l) { return std::to_string(static_cast<std::int32_t>(l)); }

std::string Droite(const std::string& s, std::size_t n) {
  return s.size() <= n ? s : s.substr(s.size() - n);
}
std::string Gauche(const std::string& s, std::size_t n) { return s.substr(0, n); }

// The month key yyyymm of a "dd/mm/yyyy" text: the last four characters, then the two first
// of the last seven.
std::string CleMois(const std::string& sDate) {
  return Droite(sDate, 4) + Gauche(Droite(sDate, 7), 2);
}

// The key of the month sDecalage months from the date text sDate.
std::string CleMoisDecale(const std::string& sDate, Int32 lDecalage) {
  return CleMois(TexteDate(AjouteMois(LireDate(sDate), static_cast<std::int32_t>(lDecalage))));
}

// The pattern of every lookup: nothing on a source with no rows (MoveFirst would fault);
// otherwise first row, filter, read if a row stands, clear the filter.
template <typename Filtre, typename Lire>
void ChercheAvec(Recordset& rs, Filtre filtre, Lire lire) {
  if (rs.RecordCount() == 0) return;
  rs.MoveFirst();
  filtre(rs);
  if (!rs.Eof()) lire(rs);
  rs.ClearFilter();
}

template <typename Lire>
void Cherche(Recordset& rs, const std::string& sCritere, Lire lire) {
  ChercheAvec(rs, [&](Recordset& r) { r.Filter(sCritere); }, lire);
}

// The same by "colonne = 'code'" and "colonne = id".
template <typename Lire>
void ChercheCode(Recordset& rs, const char* colonne, const std::string& sCode, Lire lire) {
  ChercheAvec(rs, [&](Recordset& r) { FiltreCode(r, colonne, sCode); }, lire);
}
template <typename Lire>
void ChercheId(Recordset& rs, const char* colonne, Int32 lId, Lire lire) {
  ChercheAvec(rs, [&](Recordset& r) { FiltreId(r, colonne, lId); }, lire);
}

double NombreDe(Recordset& rs, const std::string& sColonne) {
  return rs.Field(sColonne).NombreOuZero();
}

}  // namespace

// ---- Constants --------------------------------------------------------------------------

double MoteurCalcul::dRechercheValeur_Constantes(const RsRef& rs, const std::string& sCode) {
  double d = 0;
  ChercheCode(Source(rs, "RsConstantes"), "CodeConstante", sCode,
          [&](Recordset& r) { d = NombreDe(r, "Valeur"); });
  return d;
}

void MoteurCalcul::RechercheValeurType_Constantes(Int32 lId, double& dValeur, std::string& sType) {
  dValeur = 0;
  sType.clear();
  ChercheId(Source(gRsConstantes, "gRsConstantes"), "IdConstante", lId,
          [&](Recordset& r) {
            dValeur = NombreDe(r, "Valeur");
            sType = r.Field("TauxMontant").TexteOuVide();
          });
}

double MoteurCalcul::dRechercheValeurConstanteHistorique(const RsRef& rs, const std::string& sCode,
                                                         const std::string& sMois) {
  double d = 0;
  Cherche(Source(rs, "RsConstantesHistorique"),
          " CodeConstante = '" + sCode + "'" + " And Mois = '" + sMois + "'",
          [&](Recordset& r) { d = NombreDe(r, "Valeur"); });
  return d;
}

double MoteurCalcul::ConstanteFixe(const std::string& sChamp) {
  return Source(gRsConstantesFixes, "gRsConstantesFixes").Field(sChamp).NombreOuZero();
}

// ---- Rates and totals -------------------------------------------------------------------

double MoteurCalcul::dRechercheValeurTaux(const std::string& sCode) {
  double d = 0;
  ChercheCode(Source(gRsTaux, "gRsTaux"), "CodeTaux", sCode,
          [&](Recordset& r) { d = Arrondi(NombreDe(r, "PartSalariale"), 2); });
  return d;
}

double MoteurCalcul::dRechercheValeurCumul(const std::string& sCode, const std::string& sType) {
  double d = 0;
  ChercheCode(Source(gRsCumuls, "gRsCumuls"), "CodeCumul", sCode, [&](Recordset& r) {
    d = Arrondi(NombreDe(r, sType == "S" ? "PartSalariale" : "PartPatronale"), 2);
  });
  return d;
}

double MethodeCalculG_Nouv::dRechercheValeurCumulRappel(const std::string& sCode,
                                                        const std::string& sType) {
  double d = 0;
  ChercheCode(Source(gRsCumuls, "gRsCumuls"), "CodeCumul", sCode, [&](Recordset& r) {
    d = Arrondi(NombreDe(r, sType == "S" ? "PartSalarialeRappel" : "PartPatronaleRappel"), 2);
  });
  return d;
}

void MethodeCalculG_Nouv::RechercheValeursListeCumul(const std::string& sListeCode, double& dValSal,
                                                     double& dValPat) {
  dValSal = 0;
  dValPat = 0;
  if (sListeCode.empty()) return;
  Recordset& rs = Source(gRsCumuls, "gRsCumuls");
  if (rs.RecordCount() == 0) return;
  // The codes are taken as they stand between the commas, blanks included.
  std::string sCritere;
  std::size_t debut = 0;
  for (;;) {
    const std::size_t virgule = sListeCode.find(',', debut);
    const std::string sCode = sListeCode.substr(debut, virgule == std::string::npos
                                                           ? std::string::npos
                                                           : virgule - debut);
    if (!sCritere.empty()) sCritere += " Or ";
    sCritere += "CodeCumul = '" + sCode + "'";
    if (virgule == std::string::npos) break;
    debut = virgule + 1;
  }
  rs.Filter(sCritere);
  if (rs.RecordCount() > 0) {
    rs.MoveFirst();
    while (!rs.Eof()) {
      dValSal += NombreDe(rs, "PartSalariale");
      dValPat += NombreDe(rs, "PartPatronale");
      rs.MoveNext();
    }
  }
  rs.ClearFilter();
}

double MoteurCalcul::dRechercheValeurCumulHistorique(Int32 lIdSalarie, const std::string& sPeriode,
                                                     const std::string& sCode, double& dValeur,
                                                     const std::string& sMois,
                                                     const std::string& sType, Int32 lIdCumul) {
  dValeur = 0;
  std::string sCle;
  if (sMois.empty()) {
    sCle = CleMoisDecale(sPeriode, -1);
  } else if (EstDate(sMois)) {
    // A month given as a date text: its key.
    sCle = CleMois(TexteDate(LireDate(sMois)));
  } else {
    sCle = sMois;
  }
  Recordset& rs = Source(gRsCumulsHistoriqueSal, "gRsCumulsHistoriqueSal");
  if (rs.RecordCount() == 0) return dValeur;
  std::string sCritere = "IDSALARIE = " + Chiffres(lIdSalarie) + " " + "And Mois = '" + sCle + "'";
  if (lIdCumul == 0) {
    sCritere += "And CodeCumul = '" + sCode + "'";
  } else {
    sCritere += "And IdCumul = " + Chiffres(lIdCumul);
  }
  rs.MoveFirst();
  rs.Filter(sCritere);
  if (!rs.Eof()) dValeur = NombreDe(rs, sType == "S" ? "PartSalariale" : "PartPatronale");
  rs.ClearFilter();
  return dValeur;
}

// ---- The employee's variables -----------------------------------------------------------

double MoteurCalcul::dValeurVariableSansArrondi(const RsRef& RsVariablesSalaries,
                                                const std::string& sCode) {
  double d = 0;
  ChercheCode(Source(RsVariablesSalaries, "RsVariablesSalaries"), "CodeVariable", sCode,
          [&](Recordset& r) { d = NombreDe(r, "Valeur"); });
  return d;
}

double MoteurCalcul::dRechercheValeur_Variable(const RsRef& RsVariablesSalaries,
                                               const std::string& sCode,
                                               std::optional<Int16> vNbDecimale) {
  return Arrondi(dValeurVariableSansArrondi(RsVariablesSalaries, sCode), vNbDecimale.value_or(0));
}

std::string MoteurCalcul::dRechercheDate_Variable(const RsRef& RsVariablesSalaries,
                                                  const std::string& sCode) {
  std::string s;
  ChercheCode(Source(RsVariablesSalaries, "RsVariablesSalaries"), "CodeVariable", sCode,
          [&](Recordset& r) { s = MajChaineEnFormatDate(r.Field("DateEffet").TexteOuVide()); });
  return s;
}

double MoteurCalcul::dRechercheValeur_VariableBis(const RsRef& RsVariablesSalaries,
                                                  const std::string& sCode, double& dValeur) {
  dValeur = 0;
  ChercheCode(Source(RsVariablesSalaries, "RsVariablesSalaries"), "CodeVariable", sCode,
          [&](Recordset& r) { dValeur = NombreDe(r, "Valeur"); });
  return dValeur;
}

// ---- History of the statutory values and of the employee's pay --------------------------

double MoteurCalcul::dRecherchePointMois(Int32 /*lIdSalarie*/, const std::string& /*sPeriode*/,
                                         const std::string& /*sCode*/, double& dValeur,
                                         const std::string& sMois) {
  dValeur = 0;
  Cherche(Source(gRsConstantesFixesHistorique, "gRsConstantesFixesHistorique"),
          " Mois = '" + sMois + "'", [&](Recordset& r) { dValeur = NombreDe(r, "Point"); });
  return dValeur;
}

double MoteurCalcul::dRechercheHeuresMoisHistorique(const RsRef& RsSalariesHisto,
                                                    Int32 /*lIdSalarie*/,
                                                    const std::string& sDate) {
  double d = 0;
  Recordset& rs = Source(RsSalariesHisto, "RsSalariesHisto");
  if (rs.RecordCount() == 0) return d;
  Cherche(rs, " Mois = " + CleMoisDecale(sDate, -1),
          [&](Recordset& r) { d = NombreDe(r, "HeuresMois"); });
  return d;
}

double MoteurCalcul::dRecherchePointHistorique(double& dPoint, const std::string& sDate,
                                               const std::string& sDecalage) {
  dPoint = 0;
  Recordset& rs = Source(gRsConstantesFixesHistorique, "gRsConstantesFixesHistorique");
  if (rs.RecordCount() == 0) return dPoint;
  const std::string sCle = CleMoisDecale(sDate, CLng(Value(sDecalage).Nombre()));
  Cherche(rs, " Mois = '" + sCle + "'", [&](Recordset& r) { dPoint = NombreDe(r, "Point"); });
  return dPoint;
}

double MoteurCalcul::dRechercheIndMinHistorique(double& dIndMin, const std::string& sDate,
                                                const std::string& sDecalage) {
  dIndMin = 0;
  Recordset& rs = Source(gRsConstantesFixesHistorique, "gRsConstantesFixesHistorique");
  if (rs.RecordCount() == 0) return dIndMin;
  const std::string sCle = CleMoisDecale(sDate, CLng(Value(sDecalage).Nombre()));
  Cherche(rs, " Mois = " + sCle, [&](Recordset& r) { dIndMin = NombreDe(r, "IndMinRemuneration"); });
  return dIndMin;
}

double MoteurCalcul::dRechercheHistoriqueMois(const std::string& sChamp, double& dValeur,
                                              std::optional<int> vDecalage) {
  dValeur = 0;
  Recordset& rs = Source(gRsConstantesFixesHistorique, "gRsConstantesFixesHistorique");
  if (rs.RecordCount() == 0) return dValeur;
  const std::string sCle = CleMoisDecale(gPeriodeEncours, vDecalage.value_or(-1));
  Cherche(rs, "Mois = '" + sCle + "'", [&](Recordset& r) { dValeur = NombreDe(r, sChamp); });
  return dValeur;
}

void MoteurCalcul::dRechercheSmicHistorique(double& dSmic, double& dHeures) {
  dSmic = 0;
  dHeures = 0;
  Recordset& rs = Source(gRsConstantesFixesHistorique, "gRsConstantesFixesHistorique");
  Date dDate = AjouteMois(LireDate(gPeriodeEncours), -1);
  std::string sCle;
  while (Annee(dDate) > 2004) {
    sCle = CleMois(TexteDate(dDate));
    if (rs.RecordCount() > 0) break;
    dDate = AjouteMois(dDate, -1);
  }
  // As written: an empty history walks back to 2004 and then faults on MoveFirst.
  rs.MoveFirst();
  rs.Filter(" Mois = " + sCle);
  if (!rs.Eof()) {
    dSmic = NombreDe(rs, "SmicHor");
    dHeures = NombreDe(rs, "HrsMois");
  }
  rs.ClearFilter();
}

}  // namespace orvalis
