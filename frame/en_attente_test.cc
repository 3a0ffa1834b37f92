// The handlers still waiting to land. Each one that lands leaves this list, so the count
// can be followed down to zero; a handler that lands without leaving it, or one that
// leaves it without landing, fails here.
#include "frame/en_attente.h"

#include <gtest/gtest.h>

#include <set>

#include "frame/dispatch.h"
#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis {
namespace {

TEST(EnAttenteTest, CurrentEngineHandlersStillPending) {
  const std::vector<std::string> attendus = {
  };
  EXPECT_EQ(NomsEnAttente(), attendus);
  EXPECT_EQ(NomsEnAttente().size(), 0u);
}

TEST(EnAttenteTest, HistoricEngineHandlersStillPending) {
  std::set<std::string> historiques;
  for (const auto& n : HandlersEnAttente())
    if (n.rfind("MethodeCalculG::", 0) == 0) historiques.insert(n);
  // The rows of the historic tables still waiting for their handler.
  std::set<std::string> attendus;
  for (const auto& l : TablePreparationHisto())
    if (l.executer == nullptr) attendus.insert(std::string("MethodeCalculG::") + l.handler);
  for (const auto& l : TableCalculHisto())
    if (l.executer == nullptr) attendus.insert(std::string("MethodeCalculG::") + l.handler);
  EXPECT_EQ(historiques, attendus);
  EXPECT_EQ(historiques.size(), 0u);
}

TEST(EnAttenteTest, EveryPendingNameFaultsWhenReached) {
  // A pending handler reached by its name gives false; a landed one does not fault for
  // being pending.
  std::set<std::string> attente(NomsEnAttente().begin(), NomsEnAttente().end());
  for (const auto& l : TableCalculNouv()) {
    if (!attente.count(l.handler)) continue;
    MethodeCalculG_Nouv m;
    VarCalculSalarie s;
    SalarieCalculRubrique r;
    EXPECT_FALSE(m.Appel_Methode_Calcul_General(l.nom, s, r)) << l.nom;
  }
}

}  // namespace
}  // namespace orvalis
