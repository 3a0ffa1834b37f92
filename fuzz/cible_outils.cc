// Fuzz target: the date texts and number conversions of the utilities, and Arrondi over the
// whole range of doubles. The first byte picks the routine; each either answers or faults,
// and what it answers is checked against what the routine promises.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "fuzz/octets.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/dates.h"
#include "orvalis/fault.h"
#include "orvalis/numeric.h"
#include "orvalis/value.h"

namespace {

using namespace orvalis;

void Verifie(bool ok) {
  if (!ok) std::abort();
}

// A double: raw bits (NaN, infinities, subnormals all come), or one of the values where
// rounding is decided.
double Nombre(fuzz::Octets& in) {
  static const double kBords[] = {0.0,    -0.0,   0.5,    -0.5,  1.005, 2.5,
                                  1e15,   1e16,   9.22e18, 1e300, 32767.5, -32768.5,
                                  2147483647.5, -2147483648.5, INFINITY, -INFINITY, NAN};
  if (in.Booleen()) return kBords[in.Choix(std::size(kBords))];
  return in.DoubleBrut();
}

void UnArrondi(fuzz::Octets& in) {
  const double x = Nombre(in);
  const int places = static_cast<std::int16_t>(in.Entier(2));
  double r;
  try {
    r = Arrondi(x, Int16(places));
  } catch (const Fault&) {
    return;
  }
  // Half away from zero on a 15-digit decimal: within half a unit of the last place (plus
  // the 15-digit step), same sign. The decimal keeps 28 places: past them everything is 0.
  Verifie(std::isfinite(r));
  Verifie(!(r > 0 && x < 0) && !(r < 0 && x > 0));
  if (places > 28) {
    Verifie(r == 0);
    return;
  }
  const double unite = std::pow(10.0, -places);
  Verifie(std::fabs(r - x) <= unite * 0.5000001 + std::fabs(x) * 1e-14);
}

void UneConversion(fuzz::Octets& in) {
  const double x = Nombre(in);
  try {
    const Int16 i = CInt(x);
    Verifie(std::fabs(i.value() - x) <= 0.5);
    Verifie(i.value() == std::nearbyint(x));
  } catch (const Fault&) {
    Verifie(!(std::nearbyint(x) >= -32768 && std::nearbyint(x) <= 32767));
  }
  try {
    const Int32 l = CLng(x);
    Verifie(std::fabs(l.value() - x) <= 0.5);
  } catch (const Fault&) {
  }
  try {
    (void)dTronqueAuPas(x, Nombre(in), in.Booleen());
  } catch (const Fault&) {
  }
  try {
    (void)dTronqueDecimales(x, Int16(static_cast<std::int16_t>(in.Octet() % 24)));
  } catch (const Fault&) {
  }
  // The text of a number reads back to the same number to 15 significant digits.
  if (std::isfinite(x)) {
    const std::string t = TexteNombre(x);
    const double y = Value(t).Nombre();
    Verifie(std::fabs(y - x) <= std::fabs(x) * 1e-14);
  }
}

void UnTexte(const std::string& t) {
  double d = 0;
  try {
    d = Value(t).Nombre();
  } catch (const Fault&) {
    return;
  }
  (void)sNormaliseDecimale(t);
  try {
    (void)CInt(d);
  } catch (const Fault&) {
  }
}

void UneDate(const std::string& t) {
  const bool estDate = EstDate(t);
  try {
    const Date d = LireDate(t);
    Verifie(estDate);
    // The text of a date reads back to the same date.
    Verifie(LireDate(TexteDate(d)) == d);
    Verifie(JourSemaine(d) >= 1 && JourSemaine(d) <= 7);
  } catch (const Fault&) {
    Verifie(!estDate);
  }
  std::string s = t;
  const std::string aaaammjj = MajDateEnFormatChaine(s);
  if (!aaaammjj.empty()) Verifie(MajChaineEnFormatDate(aaaammjj) == s);
  try {
    (void)bJourOuvre(t, true, false);
  } catch (const Fault&) {
  }
  try {
    (void)iNbJoursOuvresAnnee(t, false, true);
  } catch (const Fault&) {
  }
}

void DeuxDates(fuzz::Octets& in) {
  const std::string a = in.Texte(24), b = in.Texte(24), c = in.Texte(24), d = in.Texte(24);
  try {
    (void)iNbJoursBase30(a, b);
  } catch (const Fault&) {
  }
  try {
    (void)iNbJoursBase30Commun(a, b, c, d);
  } catch (const Fault&) {
  }
  try {
    (void)iNbJoursCommunsMois(a, b, c);
  } catch (const Fault&) {
  }
  double k = 0, kh = 0, p = 0;
  try {
    CoefficientsCPA(d, a, b, k, kh, &p);
  } catch (const Fault&) {
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Octets in(data, size);
  switch (in.Octet() % 6) {
    case 0: UnArrondi(in); break;
    case 1: UneConversion(in); break;
    case 2: UnTexte(in.Reste()); break;
    case 3: UneDate(in.Reste()); break;
    case 4: DeuxDates(in); break;
    case 5: {
      // Calendar arithmetic with any year, month and day.
      const int an = static_cast<std::int16_t>(in.Entier(2));
      const int mois = static_cast<std::int8_t>(in.Octet());
      const int jour = static_cast<std::int16_t>(in.Entier(2));
      try {
        const Date d = DateSerial(an, mois, jour);
        (void)TexteDate(AjouteMois(d, static_cast<std::int16_t>(in.Entier(2))));
        (void)DiffMois(d, DernierJourDuMois(d));
      } catch (const Fault&) {
      }
      break;
    }
  }
  return 0;
}
