// Test fixtures of the period preparations: March 2023 (31 days), the employee present all
// month on the new index and hours, with the usual splits of a month by quadrant, and the
// waiting days of one waiting period.
#ifndef ORVALIS_PERIOD_MOIS_TEST_OUTILS_H_
#define ORVALIS_PERIOD_MOIS_TEST_OUTILS_H_

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "period/periode_test_outils.h"

namespace orvalis::periode_test {

struct Mois {
  MethodeCalculG_Nouv m;
  VarCalculSalarie s = SalarieMoisComplet();
  Int16 a = 0, b = 0, c = 0, d = 0;

  explicit Mois(const std::string& sPeriode = "01/03/2023") { m.gPeriodeEncours = sPeriode; }

  // One situation added to the running counts a, b, c, d.
  Quadrants Ajoute(const std::string& sCode, const std::string& sDebut, const std::string& sFin) {
    m.CalculNombreJour_Situation(sCode, sDebut, sFin, s, a, b, c, d);
    return Compte();
  }
  Quadrants Compte() const { return {a, b, c, d}; }
  bool Prepare(const std::string& sNom, const std::vector<LigneSituation>& lignes) {
    s.rsSituationsExceptionnelles = Situations(lignes);
    return m.Appel_Methode_Preparation_Calcul_General(sNom, s);
  }
  bool Absences(const std::vector<LigneSituation>& lignes) {
    return Prepare("NBRE_JOUR_AUTREABSENCE", lignes);
  }
  // Coefficients and presence of a split month, in days per quadrant.
  void Quadrant(int iata, int iatn, int inta, int intn) {
    s.dCoefficient_IATA = iata / 30.0;
    s.dCoefficient_IATN = iatn / 30.0;
    s.dCoefficient_INTA = inta / 30.0;
    s.dCoefficient_INTN = intn / 30.0;
    s.iNBJ_PresenceIATA = iata;
    s.iNBJ_PresenceIATN = iatn;
    s.iNBJ_PresenceINTA = inta;
    s.iNBJ_PresenceINTN = intn;
    s.iNBJ_Presence_Total = iata + iatn + inta + intn;
  }
  // Index on the 10th, hours on the 20th: 9, 0, 10, 11.
  void IndicePuisHeures() {
    s.sDateChangementIndice = "10/03/2023";
    s.sDateChangementHeures = "20/03/2023";
    Quadrant(9, 0, 10, 11);
  }
  // Hours on the 10th, index on the 20th: 9, 10, 0, 11.
  void HeuresPuisIndice() {
    s.sDateChangementIndice = "20/03/2023";
    s.sDateChangementHeures = "10/03/2023";
    Quadrant(9, 10, 0, 11);
  }
  // Index on the 11th alone: 0, 10, 0, 20 (10 days on the old index, 20 on the new one).
  void IndiceSeul() {
    s.sDateChangementIndice = "11/03/2023";
    Quadrant(0, 10, 0, 20);
  }
  // Hours on the 15th alone: 0, 0, 14, 16.
  void HeuresSeules() {
    s.sDateChangementIndice = "01/01/2022";
    s.sDateChangementHeures = "15/03/2023";
    Quadrant(0, 0, 14, 16);
  }
};

// The waiting days of one waiting period, all of them and those on half pay.
struct Carence {
  MethodeCalculG_Nouv m;
  VarCalculSalarie s = SalarieMoisComplet();
  explicit Carence(const std::string& sPeriode = "01/03/2023") { m.gPeriodeEncours = sPeriode; }

  void Calcule(const std::string& sDebut, const std::string& sFin,
               const std::vector<LigneSituation>& lignes = {}) {
    s.rsSituationsExceptionnelles = Situations(lignes);
    m.CalculNombreJourCarence(s, sDebut, sFin, "");
  }
  Quadrants Total() const {
    return {s.iNBJ_CarenceIATA_Total, s.iNBJ_CarenceIATN_Total, s.iNBJ_CarenceINTA_Total,
            s.iNBJ_CarenceINTN_Total};
  }
  Quadrants DT() const {
    return {s.iNBJ_CarenceIATA_DT, s.iNBJ_CarenceIATN_DT, s.iNBJ_CarenceINTA_DT,
            s.iNBJ_CarenceINTN_DT};
  }
};

// A waiting period of an employee entered or gone around it, and the counts it must give.
struct CasCarence {
  const char* quoi;
  const char* entree;  // nullptr: in post since 2015
  const char* sortie;  // nullptr: no end
  const char* debut;
  const char* fin;
  std::vector<LigneSituation> situations;
  Quadrants total;
  Quadrants dt;
};

inline void VerifieCarences(const std::vector<CasCarence>& cas) {
  for (const auto& k : cas) {
    SCOPED_TRACE(k.quoi);
    Carence c;
    if (k.entree) c.s.sDateDebut = k.entree;
    if (k.sortie) c.s.sDateFin = k.sortie;
    c.Calcule(k.debut, k.fin, k.situations);
    EXPECT_EQ(c.Total(), k.total);
    EXPECT_EQ(c.DT(), k.dt);
  }
}

// One waiting day, the 10/03/2023, under each of the five half-pay codes of the given stretch.
inline void VerifieJourDeCarenceDemiTraitement(const std::string& sDebut,
                                               const std::string& sFin) {
  for (const char* code : {"DT", "LD", "GD", "CD", "DO50"}) {
    SCOPED_TRACE(code);
    Carence c;
    c.Calcule("10/03/2023", "10/03/2023", {{code, sDebut, sFin}});
    EXPECT_EQ(c.Total(), (Quadrants{0, 0, 0, 1}));
    EXPECT_EQ(c.DT(), (Quadrants{0, 0, 0, 1}));
  }
}

}  // namespace orvalis::periode_test

#endif  // ORVALIS_PERIOD_MOIS_TEST_OUTILS_H_
