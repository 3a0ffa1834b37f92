// MethodeCalculG: the historic engine, kept for the hosts' older parameter sets.
//
// The same entry points and records as MethodeCalculG_Nouv, a shorter list of names, a month
// split in two (old and new index) instead of four, and a few older rules. It has no
// gRsBaremeTauxPAS and no gRsConstantesHistorique.
#ifndef ORVALIS_METHODECALCULG_H_
#define ORVALIS_METHODECALCULG_H_

#include <string>

#include "orvalis/MoteurCalcul.h"

namespace orvalis {

class MethodeCalculG : public MoteurCalcul {
 public:
  MethodeCalculG() = default;

  bool Appel_Methode_Preparation_Calcul_General(const std::string& sNomcalcul,
                                                VarCalculSalarie& InfosSalaries);
  bool Appel_Methode_Calcul_General(const std::string& sNomcalcul, VarCalculSalarie& InfosSalaries,
                                    SalarieCalculRubrique& Rubrique,
                                    const RsRef& RsVarSalaries = nullptr,
                                    const RsRef& RsVarSalariesHisto = nullptr,
                                    const RsRef& RsSalariesHisto = nullptr);

  // ---- Historic rules (historic/) --------------------------------------------------------
};

}  // namespace orvalis

#endif  // ORVALIS_METHODECALCULG_H_
