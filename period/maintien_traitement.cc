// Days of sick leave on maintained pay (90 %, two thirds, none), and the bands of
// non-subrogated therapeutic part-time.
#include <iterator>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/MoteurCalcul.h"
#include "period/familles.h"
#include "period/periode_outils.h"

namespace orvalis {

namespace {

using periode::Famille;
using S = VarCalculSalarie;

struct Maintien {
  int iPourcentage;
  Famille famille;
};

const Maintien kMaintiens[] = {
    {90,
     {{"O90", "A90", "MP9"},
      {},
      &S::iNBJ_90PourCentTraitementIATA,
      &S::iNBJ_90PourCentTraitementIATN,
      &S::iNBJ_90PourCentTraitementINTA,
      &S::iNBJ_90PourCentTraitementINTN,
      &S::iNBJ_90PourCentTraitement_Total}},
    {66,
     {{"O66", "A66", "MP6"},
      {},
      &S::iNBJ_2TiersTraitementIATA,
      &S::iNBJ_2TiersTraitementIATN,
      &S::iNBJ_2TiersTraitementINTA,
      &S::iNBJ_2TiersTraitementINTN,
      &S::iNBJ_2TiersTraitement_Total}},
    {0,
     {{"OS", "A0", "MP0"},
      {},
      &S::iNBJ_SansTraitementIATA,
      &S::iNBJ_SansTraitementIATN,
      &S::iNBJ_SansTraitementINTA,
      &S::iNBJ_SansTraitementINTN,
      &S::iNBJ_SansTraitement_Total}},
};

// A band of non-subrogated therapeutic part-time: its percentage, its code and its fields.
struct Bande {
  int iPourcentage;
  const char* code;
  Famille famille;
};

const Bande kBandes[] = {
    {50,
     "MINS",
     {{"MINS"},
      {},
      &S::iNBJ_TPTNS50IATA,
      &S::iNBJ_TPTNS50IATN,
      &S::iNBJ_TPTNS50INTA,
      &S::iNBJ_TPTNS50INTN,
      &S::iNBJ_TPTNS50_Total}},
    {60,
     "M6NS",
     {{"M6NS"},
      {},
      &S::iNBJ_TPTNS60IATA,
      &S::iNBJ_TPTNS60IATN,
      &S::iNBJ_TPTNS60INTA,
      &S::iNBJ_TPTNS60INTN,
      &S::iNBJ_TPTNS60_Total}},
    {70,
     "M7NS",
     {{"M7NS"},
      {},
      &S::iNBJ_TPTNS70IATA,
      &S::iNBJ_TPTNS70IATN,
      &S::iNBJ_TPTNS70INTA,
      &S::iNBJ_TPTNS70INTN,
      &S::iNBJ_TPTNS70_Total}},
    {80,
     "M8NS",
     {{"M8NS"},
      {},
      &S::iNBJ_TPTNS80IATA,
      &S::iNBJ_TPTNS80IATN,
      &S::iNBJ_TPTNS80INTA,
      &S::iNBJ_TPTNS80INTN,
      &S::iNBJ_TPTNS80_Total}},
    {90,
     "M9NS",
     {{"M9NS"},
      {},
      &S::iNBJ_TPTNS90IATA,
      &S::iNBJ_TPTNS90IATN,
      &S::iNBJ_TPTNS90INTA,
      &S::iNBJ_TPTNS90INTN,
      &S::iNBJ_TPTNS90_Total}},
};

}  // namespace

void MethodeCalculG_Nouv::CalculNombreJourMaintienTraitement(VarCalculSalarie& InfosSalaries,
                                                             Int16 iPourcentage) {
  for (const Maintien& m : kMaintiens) {
    if (m.iPourcentage == iPourcentage) {
      periode::CompteFamille(*this, InfosSalaries, m.famille);
      return;
    }
  }
}

void MethodeCalculG_Nouv::CalculNombreJourTptNonSubroge(VarCalculSalarie& InfosSalaries) {
  struct Compte {
    Int16 iIATA = 0, iIATN = 0, iINTA = 0, iINTN = 0;
  };
  constexpr std::size_t kNbBandes = std::size(kBandes);
  Compte comptes[kNbBandes];

  static const std::vector<std::string> kCodes = {"MINS", "M6NS", "M7NS", "M8NS", "M9NS", "MVNS"};
  periode::ParcourtSituations(InfosSalaries, kCodes, [&](Recordset& rs) {
    const periode::Situation x = periode::LitSituation(rs);
    // A variable quotity goes to the band of the same percentage, when there is one.
    Int16 iTaux = 0;
    if (x.sCode == "MVNS") {
      iTaux = CInt(rs.Field("Quotite").Nombre());
    } else {
      for (const Bande& b : kBandes)
        if (x.sCode == b.code) iTaux = b.iPourcentage;
    }
    iTauxTptNonSubroge = iTaux;
    for (std::size_t i = 0; i < kNbBandes; ++i) {
      if (kBandes[i].iPourcentage != iTaux) continue;
      Compte& c = comptes[i];
      CalculNombreJour_Situation(x.sCode, x.sDateDebut, x.sDateFin, InfosSalaries, c.iIATA, c.iIATN,
                                 c.iINTA, c.iINTN);
    }
  });
  for (std::size_t i = 0; i < kNbBandes; ++i) {
    const Compte& c = comptes[i];
    periode::EcritFamille(InfosSalaries, kBandes[i].famille, c.iIATA, c.iIATN, c.iINTA, c.iINTN);
  }
}

}  // namespace orvalis
