// Other absences of the month: sick leave types and therapeutic part-time. The days of a
// therapeutic part-time are counted whole in their own fields; only the share not worked
// counts as absence.
#include <functional>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "period/periode_outils.h"
#include "period/situation_jours.h"

namespace orvalis {

namespace {

enum class Genre {
  kEntier,           // the days stand whole as absence
  kTherapeutique,    // fixed worked share q, absence share r
  kTherapeutiqueNS,  // the same, not subrogated
  kQuotite,          // worked share and absence share both from "Quotite"
  kQuotiteNS,        // the same, not subrogated
};

struct Regle {
  const char* code;
  Genre genre;
  double q;
  double r;
};

// In the order of the filter.
const Regle kRegles[] = {
    {"LM", Genre::kEntier, 0, 0},
    {"GM", Genre::kEntier, 0, 0},
    {"MI", Genre::kTherapeutique, 0.5, 0.5},
    {"CM", Genre::kEntier, 0, 0},
    {"M6", Genre::kTherapeutique, 0.6, 0.4},
    {"M7", Genre::kTherapeutique, 0.7, 0.3},
    {"M8", Genre::kTherapeutique, 0.8, 0.2},
    {"M9", Genre::kTherapeutique, 0.9, 0.1},
    {"MINS", Genre::kTherapeutiqueNS, 0.5, 0.5},
    {"M6NS", Genre::kTherapeutiqueNS, 0.6, 0.4},
    {"M7NS", Genre::kTherapeutiqueNS, 0.7, 0.3},
    {"M8NS", Genre::kTherapeutiqueNS, 0.8, 0.2},
    {"M9NS", Genre::kTherapeutiqueNS, 0.9, 0.1},
    {"MV", Genre::kQuotite, 0, 0},
    {"MVNS", Genre::kQuotiteNS, 0, 0},
};

// The codes of the older form, read from the record's two situations.
const char* const kCodesAnciens[] = {"LM", "GM", "MI", "CM", "M6", "M7", "M8", "M9"};

const Regle* RegleDe(const std::string& sCode) {
  for (const Regle& r : kRegles)
    if (sCode == r.code) return &r;
  return nullptr;
}

// Books one situation of iJours days; the quotity is read only for the codes that have one.
void Impute(VarCalculSalarie& s, const Regle& regle, Int16 iJours,
            const std::function<double()>& quotite) {
  Int16 D = iJours;
  double DN = 0;
  switch (regle.genre) {
    case Genre::kEntier:
      break;
    case Genre::kTherapeutique:
      s.iNBJ_TpsTherapeutique = s.iNBJ_TpsTherapeutique + D;
      s.dTpsTherapeutiqueCoefRI = s.dTpsTherapeutiqueCoefRI + D * regle.q;
      D = CInt(D * regle.r);
      break;
    case Genre::kTherapeutiqueNS:
      DN = D;
      D = 0;
      s.dNBJ_TpsTherapeutiqueNS = s.dNBJ_TpsTherapeutiqueNS + DN;
      s.dTpsTherapeutiqueCoefNS = s.dTpsTherapeutiqueCoefNS + DN * regle.q;
      DN = DN * regle.r;
      break;
    case Genre::kQuotite: {
      const double dQuotite = quotite();
      s.iNBJ_TpsTherapeutique = s.iNBJ_TpsTherapeutique + D;
      s.dTpsTherapeutiqueCoefRI = s.dTpsTherapeutiqueCoefRI + D * dQuotite / 100;
      // The absence share is the quotity itself, not its complement, as hosts expect.
      D = CInt(D * dQuotite / 100);
      break;
    }
    case Genre::kQuotiteNS: {
      DN = D;
      D = 0;
      const double dQuotite = quotite();
      s.dNBJ_TpsTherapeutiqueNS = s.dNBJ_TpsTherapeutiqueNS + DN;
      s.dTpsTherapeutiqueCoefNS = s.dTpsTherapeutiqueCoefNS + DN * dQuotite / 100;
      DN = DN * dQuotite / 100;
      break;
    }
  }
  s.iNBJ_AutreAbsence = s.iNBJ_AutreAbsence + D;
  s.dNBJ_AutreAbsenceNS = s.dNBJ_AutreAbsenceNS + DN;
}

std::vector<std::string> CodesAutresAbsences() {
  std::vector<std::string> codes;
  for (const Regle& r : kRegles) codes.emplace_back(r.code);
  return codes;
}

}  // namespace

void MethodeCalculG_Nouv::CalculNombreJourAutresAbsences_NouvelleGestion(VarCalculSalarie& s) {
  static const std::vector<std::string> kCodes = CodesAutresAbsences();
  periode::ParcourtSituations(s, kCodes, [&](Recordset& rs) {
    const periode::Situation x = periode::LitSituation(rs);
    Int16 iIATA = 0, iIATN = 0, iINTA = 0, iINTN = 0;
    CalculNombreJour_Situation(x.sCode, x.sDateDebut, x.sDateFin, s, iIATA, iIATN, iINTA, iINTN);
    const Regle* regle = RegleDe(x.sCode);
    if (regle == nullptr) return;
    Impute(s, *regle, iIATA + iIATN + iINTA + iINTN,
           [&rs] { return rs.Field("Quotite").Nombre(); });
  });
}

void periode::ImputeAutreAbsence(VarCalculSalarie& s, const std::string& sCode, Int16 iJours) {
  const Regle* regle = RegleDe(sCode);
  if (regle != nullptr) Impute(s, *regle, iJours, [] { return 0.0; });
}

void MethodeCalculG_Nouv::CalculNombreJourAutresAbsences(VarCalculSalarie& s) {
  auto situation = [&](const std::string& sCode, const std::string& sDebut,
                       const std::string& sFin) {
    bool bConnu = false;
    for (const char* code : kCodesAnciens) bConnu = bConnu || sCode == code;
    if (!bConnu) return;
    Int16 iIATA = 0, iIATN = 0, iINTA = 0, iINTN = 0;
    CalculNombreJour_Situation(sCode, sDebut, sFin, s, iIATA, iIATN, iINTA, iINTN);
    periode::ImputeAutreAbsence(s, sCode, iIATA + iIATN + iINTA + iINTN);
  };
  situation(s.sSituation1, s.sDateDebutSituation1, s.sDatefinSituation1);
  situation(s.sSituation2, s.sDateDebutSituation2, s.sDatefinSituation2);
}

}  // namespace orvalis
