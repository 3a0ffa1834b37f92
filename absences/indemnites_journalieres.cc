// Daily benefits: the sums a fund pays for the days of an absence, retained month by month
// against the salary and deducted on the pay line.
#include "absences/indemnites_journalieres_periode.h"
#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis {

namespace {

// "E": the only method of calculation the engine tells apart; the others are the host's.
bool bMethodeE(const VarCalculSalarie& s) { return s.sMethodeCalculIJ == "E"; }

}  // namespace

void MethodeCalculG_Nouv::CalculRubrique_Indemnites_journalieres(VarCalculSalarie& InfosSalaries,
                                                                 SalarieCalculRubrique& Rubrique,
                                                                 const RsRef& RsSalariesHisto,
                                                                 bool bIJSubrogees) {
  // A subrogated line already calculated by the host under its own method is left alone.
  if (bIJSubrogees && ij::LigneDeLHote(InfosSalaries)) return;
  Calcul_Indemnites_Journalieres_NouvelleMethode(InfosSalaries, Rubrique, RsSalariesHisto,
                                                 bIJSubrogees);
}

void MethodeCalculG_Nouv::Calcul_Indemnites_Journalieres_NouvelleMethode(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique, const RsRef& RsSalariesHisto,
    bool bIJSubrogees) {
  double S = 0;
  Recordset& rs = Source(InfosSalaries.rsIndemnitesJournalieres, "rsIndemnitesJournalieres");
  if (rs.RecordCount() > 0) {
    rs.Filter(std::string("IJSubroge = ") + (bIJSubrogees ? "1" : "0"));
    if (rs.RecordCount() > 0) {
      rs.MoveFirst();
      while (!rs.Eof()) {
        const double dPercu = rs.Field("IJPercu").Nombre();
        if (dPercu > 0) {
          // A table left by an earlier line of the same employee is extended.
          if (!Rubrique.rsIJ) Rubrique.rsIJ = ij::CreationTableIJ();
          const ij::PeriodeIJ periode{rs.Field("IJType").Texte(), rs.Field("IJDateDebut").Texte(),
                                      rs.Field("IJDateFin").Texte(), dPercu,
                                      Int16(bIJSubrogees ? 1 : 0)};
          ij::CalculIJ_Periode_NouvelleMethode(*this, periode, InfosSalaries, RsSalariesHisto,
                                               Rubrique, bIJSubrogees);
          S += dPercu;
        }
        rs.MoveNext();
      }
    }
    rs.ClearFilter();
  }
  if (bMethodeE(InfosSalaries) || !bIJSubrogees) {
    ij::EcritDeduction(Rubrique, S,
                   bIJSubrogees ? -InfosSalaries.dTotalIJMaladie - InfosSalaries.dTotalIJAT
                                : -InfosSalaries.dTotalIJNonSubrogees);
  }
  // The first slot, an input of the older generation, carries the sum received out.
  if (bIJSubrogees) InfosSalaries.dIJPercu1 = S;
}

void MethodeCalculG_Nouv::Calcul_Indemnites_journalieres(VarCalculSalarie& InfosSalaries,
                                                         SalarieCalculRubrique& Rubrique,
                                                         const RsRef& RsSalariesHisto) {
  ij::IndemnitesEmplacements(InfosSalaries, Rubrique, ij::ColonnesIJ::kToutes, [&](Int16 NumIJ) {
    ij::CalculIJ_Periode(*this, InfosSalaries, RsSalariesHisto,
                         ij::EmplacementIJ(InfosSalaries, NumIJ.value()), Rubrique);
  });
}

}  // namespace orvalis
