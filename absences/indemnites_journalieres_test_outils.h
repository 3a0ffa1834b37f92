// Daily benefits in a pay run of March 2024: the employee's benefit periods and the detail
// table they leave on the pay line.
#ifndef ORVALIS_ABSENCES_INDEMNITES_JOURNALIERES_TEST_OUTILS_H_
#define ORVALIS_ABSENCES_INDEMNITES_JOURNALIERES_TEST_OUTILS_H_

#include <algorithm>
#include <string>

#include "absences/absences_test_outils.h"

namespace orvalis::absences_test {

class PaieIJ : public PaieAbsences {
 protected:
  PaieIJ() {
    s.sDateDebut = "01/01/2020";
    s.sMethodeCalculIJ = "E";
    s.rsIndemnitesJournalieres =
        NouveauRecordset({"IJType", "IJDateDebut", "IJDateFin", "IJPercu", "IJSubroge", "IJPAS"});
  }

  void Periode(const std::string& type, const std::string& debut, const std::string& fin,
               const Value& percu, int subroge = 1) {
    const RsRef& rs = s.rsIndemnitesJournalieres;
    rs->AddNew();
    rs->SetField("IJType", type);
    rs->SetField("IJDateDebut", debut);
    rs->SetField("IJDateFin", fin);
    rs->SetField("IJPercu", percu);
    rs->SetField("IJSubroge", subroge);
    rs->SetField("IJPAS", 0.0);
  }

  std::size_t NbLignesIJ() const { return r.rsIJ ? r.rsIJ->Rows().size() : 0; }

  // A cell of the detail table, by row and column name.
  Value IJ(std::size_t ligne, const std::string& colonne) const {
    const auto colonnes = r.rsIJ->Columns();
    const auto it = std::find(colonnes.begin(), colonnes.end(), colonne);
    EXPECT_NE(it, colonnes.end()) << colonne;
    if (it == colonnes.end()) return Value();
    return r.rsIJ->Rows().at(ligne).at(static_cast<std::size_t>(it - colonnes.begin()));
  }
  double NombreIJ(std::size_t ligne, const std::string& colonne) const {
    return IJ(ligne, colonne).Nombre();
  }
  std::string TexteIJ(std::size_t ligne, const std::string& colonne) const {
    return IJ(ligne, colonne).Texte();
  }

  bool Subrogees() { return Calcul("INDEMNITES JOURNALIERES"); }
  bool NonSubrogees() { return Calcul("INDEMNITES JOURNALIERES NON SUBROGEES"); }
};

}  // namespace orvalis::absences_test

#endif  // ORVALIS_ABSENCES_INDEMNITES_JOURNALIERES_TEST_OUTILS_H_
