// Arrondi without formatting gives, bit for bit, what the route through the 15 digits of the
// decimal gives: on random values of every magnitude, on the halves that decide a rounding,
// next to the integers where the fifteenth digit carries, and at the bounds.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <vector>

#include "frame/arrondi_chiffres.h"
#include "orvalis/ModOutilsSpec.h"

namespace orvalis {
namespace {

// Equal bits, or both the same fault.
void CommeParLesChiffres(double v, int places) {
  bool fauteAttendue = false, faute = false;
  double attendu = 0, obtenu = 0;
  try {
    attendu = ArrondiParLesChiffres(v, Int16(places));
  } catch (...) {
    fauteAttendue = true;
  }
  try {
    obtenu = Arrondi(v, Int16(places));
  } catch (...) {
    faute = true;
  }
  ASSERT_EQ(faute, fauteAttendue) << v << " at " << places;
  if (!faute) {
    ASSERT_EQ(std::bit_cast<std::uint64_t>(obtenu), std::bit_cast<std::uint64_t>(attendu))
        << std::hexfloat << v << " at " << places << ": " << obtenu << " != " << attendu;
  }
}

TEST(ArrondiTest, TheKnownFigures) {
  // 1.005 is 1.00499999999999989...: its 15 digits are 1.00500000000000, so 1.01.
  EXPECT_EQ(Arrondi(1.005, 2), 1.01);
  EXPECT_EQ(Arrondi(-2.675, 2), -2.68);
  EXPECT_EQ(Arrondi(0.5, 0), 1.0);
  EXPECT_EQ(Arrondi(-0.5, 0), -1.0);
  EXPECT_EQ(Arrondi(0.49, 0), 0.0);
  // Rounded to nothing, a negative value gives +0, never -0.
  EXPECT_FALSE(std::signbit(Arrondi(-0.004, 2)));
  EXPECT_EQ(Arrondi(164.4508107, 2), 164.45);
  EXPECT_EQ(Arrondi(2418.394275, 4), 2418.3943);
}

TEST(ArrondiTest, RandomValuesOfEveryMagnitude) {
  std::mt19937_64 g(20261123);
  std::uniform_real_distribution<double> mantisse(1.0, 10.0);
  std::uniform_int_distribution<int> exposant(-20, 20);
  std::uniform_int_distribution<int> places(0, 30);
  for (int i = 0; i < 200000; ++i) {
    const double v = mantisse(g) * std::pow(10.0, exposant(g)) * ((i & 1) ? -1 : 1);
    CommeParLesChiffres(v, places(g));
  }
}

TEST(ArrondiTest, HalvesAndTheirNeighbours) {
  std::mt19937_64 g(15);
  std::uniform_int_distribution<std::int64_t> entier(0, 99999999);
  for (int places = 0; places <= 6; ++places) {
    for (int i = 0; i < 20000; ++i) {
      // n + 0.5 units of the last place, and the doubles either side of it.
      const double v = (static_cast<double>(entier(g)) + 0.5) / std::pow(10.0, places);
      for (double w : {v, std::nextafter(v, 0.0), std::nextafter(v, 1e300), -v})
        CommeParLesChiffres(w, places);
    }
  }
}

TEST(ArrondiTest, JustBelowTheNextIntegerWhereTheFifteenthDigitCarries) {
  for (int places = 0; places <= 4; ++places) {
    for (double n = 1; n < 1e15; n *= 7.3) {
      const double unite = std::pow(10.0, -places);
      const double haut = (std::floor(n) + 1) * unite;
      double w = haut;
      // The sixty doubles below a multiple of the unit, where the sum's digits may carry.
      for (int k = 0; k < 60; ++k) {
        w = std::nextafter(w, 0.0);
        CommeParLesChiffres(w, places);
        CommeParLesChiffres(w - 0.5 * unite, places);
      }
    }
  }
}

TEST(ArrondiTest, Bounds) {
  const std::vector<double> valeurs = {0.0,
                                       -0.0,
                                       1e-300,
                                       std::numeric_limits<double>::denorm_min(),
                                       0.49999999999999994,
                                       0.9999999999999999,
                                       99999999999999.99,
                                       999999999999999.4,
                                       1e15,
                                       123456789012345678.0,
                                       4503599627370495.5,
                                       9007199254740993.0,
                                       7.9e28,
                                       1e300,
                                       std::numeric_limits<double>::max(),
                                       std::numeric_limits<double>::infinity(),
                                       std::numeric_limits<double>::quiet_NaN()};
  for (double v : valeurs)
    for (int places = 0; places <= 32; ++places) {
      CommeParLesChiffres(v, places);
      CommeParLesChiffres(-v, places);
    }
  // A negative count of places is a fault on both routes.
  CommeParLesChiffres(1.5, -1);
}

}  // namespace
}  // namespace orvalis
