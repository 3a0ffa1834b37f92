// Families of situation day counts: the codes of a family and the five fields it fills.
#ifndef ORVALIS_PERIOD_FAMILLES_H_
#define ORVALIS_PERIOD_FAMILLES_H_

#include <string>
#include <vector>

#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis::periode {

struct Famille {
  std::vector<std::string> codes;         // codes of rsSituationsExceptionnelles, in filter order
  std::vector<std::string> codesAnciens;  // codes of sSituation1 / sSituation2
  Int16 VarCalculSalarie::*iIATA;
  Int16 VarCalculSalarie::*iIATN;
  Int16 VarCalculSalarie::*iINTA;
  Int16 VarCalculSalarie::*iINTN;
  Int16 VarCalculSalarie::*iTotal;
};

// The four counts, then their sum read back from the record into the total.
void EcritFamille(VarCalculSalarie& InfosSalaries, const Famille& f, Int16 iIATA, Int16 iIATN,
                  Int16 iINTA, Int16 iINTN);

// Every situation of the family's codes, with running counts, then the five fields.
void CompteFamille(MethodeCalculG_Nouv& m, VarCalculSalarie& InfosSalaries, const Famille& f);

// The same from the two situations of the record.
void CompteFamilleAncienne(MethodeCalculG_Nouv& m, VarCalculSalarie& InfosSalaries,
                           const Famille& f);

}  // namespace orvalis::periode

#endif  // ORVALIS_PERIOD_FAMILLES_H_
