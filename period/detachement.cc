// Days of detachment in the month, with and without pension.
#include "orvalis/MethodeCalculG_Nouv.h"
#include "period/periode_outils.h"

namespace orvalis {

namespace {

bool EstDetachement(const std::string& sCode) { return sCode == "D" || sCode == "M"; }

}  // namespace

void MethodeCalculG_Nouv::CalculNombreJourDetachement_NouvelleGestion(VarCalculSalarie& s) {
  Int16 iNbEnregistrements = 0;
  static const std::vector<std::string> kCodes = {"D", "M"};
  periode::ParcourtSituations(s, kCodes, [&](Recordset& rs) {
    Int16 iIATA = 0, iIATN = 0, iINTA = 0, iINTN = 0;
    iNbEnregistrements = iNbEnregistrements + 1;
    const periode::Situation x = periode::LitSituation(rs);
    CalculNombreJour_Situation(x.sCode, x.sDateDebut, x.sDateFin, s, iIATA, iIATN, iINTA, iINTN);
    // The first detachment, then the last of the others.
    if (iNbEnregistrements == 1) {
      s.iNBJ_DETACHEMENT = iINTN;
    } else {
      s.iNBJ_DETACHEMENT2 = iINTN;
    }
  });
}

void MethodeCalculG_Nouv::CalculNombreJourDetachementSansPension_NouvelleGestion(
    VarCalculSalarie& s) {
  Int16 iINTN = 0;
  static const std::vector<std::string> kCodes = {"P"};
  periode::ParcourtSituations(s, kCodes, [&](Recordset& rs) {
    Int16 iIATA = 0, iIATN = 0, iINTA = 0;
    const periode::Situation x = periode::LitSituation(rs);
    CalculNombreJour_Situation(x.sCode, x.sDateDebut, x.sDateFin, s, iIATA, iIATN, iINTA, iINTN);
  });
  s.iNBJ_DETACHEMENT_SANSPENSION = iINTN;
}

void MethodeCalculG_Nouv::CalculNombreJourDetachement(VarCalculSalarie& s) {
  Int16 iIATA = 0, iIATN = 0, iINTA = 0, iINTN = 0;
  if (EstDetachement(s.sSituation1))
    CalculNombreJour_Situation(s.sSituation1, s.sDateDebutSituation1, s.sDatefinSituation1, s,
                               iIATA, iIATN, iINTA, iINTN);
  if (EstDetachement(s.sSituation2)) {
    iIATA = 0;
    iIATN = 0;
    iINTA = 0;
    iINTN = 0;
    CalculNombreJour_Situation(s.sSituation2, s.sDateDebutSituation2, s.sDatefinSituation2, s,
                               iIATA, iIATN, iINTA, iINTN);
  }
  s.iNBJ_DETACHEMENT = iINTN;
}

void MethodeCalculG_Nouv::CalculNombreJourDetachementSansPension(VarCalculSalarie& s) {
  Int16 iINTN = 0;
  if (s.sSituation1 == "P") {
    Int16 iIATA = 0, iIATN = 0, iINTA = 0;
    CalculNombreJour_Situation(s.sSituation1, s.sDateDebutSituation1, s.sDatefinSituation1, s,
                               iIATA, iIATN, iINTA, iINTN);
  }
  if (s.sSituation2 == "P") {
    Int16 iIATA = 0, iIATN = 0, iINTA = 0;
    CalculNombreJour_Situation(s.sSituation2, s.sDateDebutSituation2, s.sDatefinSituation2, s,
                               iIATA, iIATN, iINTA, iINTN);
  }
  s.iNBJ_DETACHEMENT_SANSPENSION = iINTN;
}

}  // namespace orvalis
