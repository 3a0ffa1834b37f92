// The mileage scale and the mileage allowance. Rates a kilometre: 5 horsepower 0.529, 0.316,
// 0.37; 6 and 7 horsepower 0.606, 0.34, 0.425; 8 and above 0.636, 0.357, 0.446.
#include "salary/salaire_test_outils.h"

namespace orvalis::salaire_test {
namespace {

class Kilometres : public PaieSalaire {
 protected:
  Kilometres() {
    for (const auto& [code, taux] : {std::pair<const char*, double>{"KM5CVTR1", 0.529},
                                     {"KM5CVTR2", 0.316},
                                     {"KM5CVTR3", 0.37},
                                     {"KM7CVTR1", 0.606},
                                     {"KM7CVTR2", 0.34},
                                     {"KM7CVTR3", 0.425},
                                     {"KM8CVTR1", 0.636},
                                     {"KM8CVTR2", 0.357},
                                     {"KM8CVTR3", 0.446}})
      Constante(code, taux);
    LigneDuHote();
  }

  struct Bareme {
    double dTaux1, dTaux2;
    int lKm1, lKm2;
    double dMontant;
  };
  Bareme Trajet(int lParcouru, int lPuissance, int lCumule) {
    Bareme b{-1, -1, -1, -1, -1};
    Int32 lKm1 = -1, lKm2 = -1;
    const double dRendu =
        m.dBaremeKilometrique(lParcouru, lPuissance, lCumule, b.dTaux1, b.dTaux2, lKm1, lKm2,
                              b.dMontant);
    EXPECT_EQ(dRendu, b.dMontant);
    b.lKm1 = lKm1;
    b.lKm2 = lKm2;
    return b;
  }
  static void Verifie(const Bareme& b, double dTaux1, double dTaux2, int lKm1, int lKm2,
                      double dMontant) {
    EXPECT_EQ(b.dTaux1, dTaux1);
    EXPECT_EQ(b.dTaux2, dTaux2);
    EXPECT_EQ(b.lKm1, lKm1);
    EXPECT_EQ(b.lKm2, lKm2);
    EXPECT_NEAR(b.dMontant, dMontant, 1e-9);
  }
};

TEST_F(Kilometres, UnTrajetDansLaPremiereTranche) {
  Verifie(Trajet(500, 5, 1000), 0.529, 0, 500, 0, 264.5);  // 500 x 0.529
}

TEST_F(Kilometres, DeuxMilleKilometresSontEncoreDeLaPremiereTranche) {
  // 2000 km so far: band 1, of which nothing is left; the journey is paid on band 2.
  Verifie(Trajet(100, 5, 2000), 0.529, 0.316, 0, 100, 31.6);  // 100 x 0.316
  Verifie(Trajet(100, 5, 2001), 0.316, 0, 100, 0, 31.6);
}

TEST_F(Kilometres, UnTrajetQuiFranchitDeuxMilleKilometres) {
  // 1900 + 300: 100 km at 0.606, 200 at 0.34
  Verifie(Trajet(300, 7, 1900), 0.606, 0.34, 100, 200, 128.6);  // 60.6 + 68
}

TEST_F(Kilometres, UnTrajetQuiFranchitDixMilleKilometres) {
  // 9950 + 100: 50 km at 0.357, 50 at 0.446
  Verifie(Trajet(100, 8, 9950), 0.357, 0.446, 50, 50, 40.15);  // 17.85 + 22.3
  Verifie(Trajet(100, 8, 10000), 0.357, 0.446, 0, 100, 44.6);
}

TEST_F(Kilometres, LaTroisiemeTrancheNaPasDeSuite) {
  Verifie(Trajet(100, 12, 10001), 0.446, 0, 100, 0, 44.6);
  Verifie(Trajet(100, 6, 50000), 0.425, 0, 100, 0, 42.5);
}

TEST_F(Kilometres, SansTrajetRien) {
  Verifie(Trajet(0, 5, 1000), 0, 0, 0, 0, 0);
  Verifie(Trajet(-20, 5, 1000), 0, 0, 0, 0, 0);
}

TEST_F(Kilometres, LigneDUnTrajetAUnTaux) {
  s.lKmCumule = 1500;  // 1000 before the month's 300 + 200
  s.lKmParcouru1 = 300;
  s.lKmPuissance1 = 5;
  s.lKmParcouru2 = 200;
  s.lKmPuissance2 = 4;
  ASSERT_TRUE(Calcul("INDEMNITE KILOMETRIQUE"));
  Ligne(500, 0.529, 264.5);  // 300 x 0.529 + 200 x 0.529
}

TEST_F(Kilometres, LigneAPlusieursTauxSansTaux) {
  s.lKmCumule = 2200;  // 1900 before the month
  s.lKmParcouru1 = 300;
  s.lKmPuissance1 = 5;
  ASSERT_TRUE(Calcul("INDEMNITE KILOMETRIQUE"));
  Ligne(300, 0, 116.1);  // 100 x 0.529 + 200 x 0.316
}

TEST_F(Kilometres, LigneDeDeuxVehiculesDePuissancesDifferentes) {
  s.lKmCumule = 1500;
  s.lKmParcouru1 = 300;
  s.lKmPuissance1 = 5;
  s.lKmParcouru2 = 200;
  s.lKmPuissance2 = 7;
  ASSERT_TRUE(Calcul("INDEMNITE KILOMETRIQUE"));
  Ligne(500, 0, 279.9);  // 300 x 0.529 + 200 x 0.606
}

TEST_F(Kilometres, LigneSansKilometres) {
  ASSERT_TRUE(Calcul("INDEMNITE KILOMETRIQUE"));
  Ligne(0, 0, 0);
}

}  // namespace
}  // namespace orvalis::salaire_test
