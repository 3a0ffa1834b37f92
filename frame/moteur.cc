// The engine frame: creation and termination, the message box, the fault trap and the
// tests that choose between two handlers of one name.
#include <array>
#include <string_view>

#include "frame/dispatch.h"
#include "orvalis/MethodeCalculG.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"

namespace orvalis {

thread_local Int16 iTauxTptNonSubroge;

MoteurCalcul::MoteurCalcul() {
  // Class_Initialize: six new empty sources, in this order, then the separators.
  gRsVariables = NouveauRecordset({});
  gRsConstantesFixes = NouveauRecordset({});
  gRsCumuls = NouveauRecordset({});
  gRsTaux = NouveauRecordset({});
  gRsConstantes = NouveauRecordset({});
  gRsCumulsHistoriqueSal = NouveauRecordset({});
  DetecteSeparateurDecimal();
}

MoteurCalcul::~MoteurCalcul() {
  // Class_Terminate: releases the same six sources in the same order, then the month.
  gRsVariables.reset();
  gRsConstantesFixes.reset();
  gRsCumuls.reset();
  gRsTaux.reset();
  gRsConstantes.reset();
  gRsCumulsHistoriqueSal.reset();
  gPeriodeEncours.clear();
}

void MoteurCalcul::MsgBox(const std::string& texte) {
  if (OnMessage) {
    OnMessage(texte);
  } else {
    Messages.push_back(texte);
  }
}

bool TestDetachement(const VarCalculSalarie& InfosSalaries, const SalarieCalculRubrique& Rubrique) {
  static constexpr std::array<std::string_view, 8> kCodes = {
      "CNRDETACH", "CNRBONIFDE", "CIVSURCOTP", "CIVSURBONP",
      "CNRDETC20", "CNRDETCB20", "CIVSURP20",  "CIVSURBP20"};
  // Both day counts are read first, then all eight codes are compared.
  const bool bJours = InfosSalaries.iNBJ_DETACHEMENT > 0 && InfosSalaries.iNBJ_DETACHEMENT2 > 0;
  bool bCode = false;
  for (auto code : kCodes) bCode = bCode || (Rubrique.sCodeRubrique == code);
  return bCode && bJours;
}

bool TestModeleHoraire(const VarCalculSalarie& InfosSalaries) {
  return InfosSalaries.sTypeModele == "HORAIR";
}

void MethodeCalculG_Nouv::CalculRubrique_Prelevement_a_la_source(VarCalculSalarie&,
                                                                 SalarieCalculRubrique&,
                                                                 const RsRef&) {}


}  // namespace orvalis
