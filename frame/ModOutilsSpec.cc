// The rounding, truncations, date texts and calendar counts of the pay rules.
#include "orvalis/ModOutilsSpec.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <locale>
#include <sstream>
#include <string>

#include "frame/arrondi_chiffres.h"
#include "orvalis/dates.h"
#include "orvalis/fault.h"
#include "orvalis/value.h"

namespace orvalis {

thread_local char cSeparateurDecimal = '.';
thread_local char cAutreSeparateur = ',';

namespace {

// The 15 significant digits of |d|, rounded at the fifteenth, and the decimal exponent of
// the first one: 100.99999999999999 gives "101000000000000" and 2. `chiffres` receives
// exactly 15 characters.
void Chiffres15(double d, char (&chiffres)[15], int& exposant) {
  char buf[32];
  const auto fin = std::to_chars(buf, buf + sizeof buf, std::fabs(d), std::chars_format::scientific, 14).ptr;
  // buf holds "d.dddddddddddddde[+-]xx".
  chiffres[0] = buf[0];
  std::copy(buf + 2, buf + 16, chiffres + 1);
  const char* e = buf + 17;
  if (*e == '+') ++e;
  std::from_chars(e, fin, exposant);
}

void Chiffres15(double d, std::string& chiffres, int& exposant) {
  char c[15];
  Chiffres15(d, c, exposant);
  chiffres.assign(c, c + 15);
}

// The double nearest to the decimal digits * 10^-echelle.
double DepuisDecimal(const char* chiffres, std::size_t n, int echelle) {
  char buf[64];
  std::copy(chiffres, chiffres + n, buf);
  char* p = buf + n;
  *p++ = 'e';
  *p++ = '-';
  p = std::to_chars(p, buf + sizeof buf, echelle).ptr;
  double d = 0;
  std::from_chars(buf, p, d);
  return d;
}

// The unit of a rounding to `places` places, built as its text ("1", "0.01", ...) and read
// back through the separators: kept once built, since it depends on the count alone.
double UniteArrondi(int places) {
  auto construit = [](int n) {
    const std::string unite = n == 0 ? "1" : "0." + std::string(n - 1, '0') + "1";
    return Value(sNormaliseDecimale(unite)).Nombre();
  };
  constexpr int kCache = 32;
  static const auto unites = [&] {
    std::array<double, kCache> u{};
    for (int n = 0; n < kCache; ++n) u[n] = construit(n);
    return u;
  }();
  return places < kCache ? unites[places] : construit(places);
}

// The largest value of the 28-digit decimal.
constexpr double kDecimalMax = 79228162514264337593543950335.0;
// The decimal keeps at most 28 places.
constexpr int kEchelleMax = 28;

}  // namespace

std::string TexteNombre(double d) {
  if (!std::isfinite(d)) Faute("overflow");
  if (d == 0) return "0";
  std::string chiffres;
  int exposant = 0;
  Chiffres15(d, chiffres, exposant);
  chiffres.erase(chiffres.find_last_not_of('0') + 1);
  std::string t = d < 0 ? "-" : "";
  if (exposant >= 15 || exposant < -15) {
    t += chiffres[0];
    if (chiffres.size() > 1) t += cSeparateurDecimal + chiffres.substr(1);
    char buf[16];
    std::snprintf(buf, sizeof buf, "E%c%02d", exposant < 0 ? '-' : '+', std::abs(exposant));
    return t + buf;
  }
  if (exposant < 0) return t + "0" + cSeparateurDecimal + std::string(-exposant - 1, '0') + chiffres;
  const std::size_t entiers = static_cast<std::size_t>(exposant) + 1;
  if (chiffres.size() <= entiers) return t + chiffres + std::string(entiers - chiffres.size(), '0');
  return t + chiffres.substr(0, entiers) + cSeparateurDecimal + chiffres.substr(entiers);
}

namespace {

// The sum Arrondi takes the integer part of: |vValeur| in units of the last place, plus a half.
double SommeArrondi(double vValeur, int places) {
  if (places < 0) Faute("invalid procedure call or argument");
  const double somme = Div(std::fabs(vValeur), UniteArrondi(places)) + 0.5;
  if (!std::isfinite(somme) || somme >= kDecimalMax) Faute("overflow");
  return somme;
}

// The integer part of the sum as a decimal of 15 significant digits, times the unit as a
// decimal (exactly 10^-places; past 28 places it is 0), read back as the nearest double.
double ParLesChiffres(double vValeur, double somme, int places) {
  char chiffres[15];
  int exposant = 0;
  Chiffres15(somme, chiffres, exposant);
  if (exposant < 0 || places > kEchelleMax) return 0.0;
  char entier[64];
  std::size_t n = 0;
  if (exposant < 15) {
    n = static_cast<std::size_t>(exposant) + 1;
    std::copy(chiffres, chiffres + n, entier);
  } else {
    std::copy(chiffres, chiffres + 15, entier);
    n = static_cast<std::size_t>(exposant) + 1;
    std::fill(entier + 15, entier + n, '0');
  }
  if (std::all_of(entier, entier + n, [](char c) { return c == '0'; })) return 0.0;
  const double r = DepuisDecimal(entier, n, places);
  return vValeur < 0 ? -r : r;
}

// The same result without the digits, when the sum stands clear of the next integer: its 15
// digits then keep its integer part (an integer below 10^15 is on their grid, and the
// rounding to them moves the sum by half a unit of the fifteenth digit at most), and that
// integer over 10^places, both exact doubles, is the nearest double to their quotient.
// False when the digits must decide.
bool SansLesChiffres(double vValeur, double somme, int places, double& r) {
  static constexpr double kPuissances[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                           1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                           1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
  if (places > 22 || !(somme < 1e15)) return false;
  int k = 0;
  while (kPuissances[k] <= somme) ++k;  // the sum is below 10^k: its fifteenth digit is 10^(k-15)
  const double entier = std::floor(somme);
  // Both sides exact (the two numbers are within a factor 2); a whole unit of margin.
  if ((entier + 1) - somme <= kPuissances[k] * 1e-15) return false;
  if (entier == 0) {
    r = 0.0;
  } else {
    r = entier / kPuissances[places];
    if (vValeur < 0) r = -r;
  }
  return true;
}

}  // namespace

double ArrondiParLesChiffres(double vValeur, Int16 iNbDecimales) {
  const int places = iNbDecimales.value();
  return ParLesChiffres(vValeur, SommeArrondi(vValeur, places), places);
}

double Arrondi(double vValeur, Int16 iNbDecimales) {
  const int places = iNbDecimales.value();
  const double somme = SommeArrondi(vValeur, places);
  double r = 0;
  if (SansLesChiffres(vValeur, somme, places, r)) return r;
  return ParLesChiffres(vValeur, somme, places);
}

double dTronqueAuPas(double dValeur, double vPas, bool bGardeNegatif) {
  const double r = Int(Div(std::fabs(dValeur), vPas)) * vPas;
  if (dValeur >= 0) return r;
  return bGardeNegatif ? -r : 0.0;
}

double dTronqueDecimales(double dValeur, Int16 iNbDecimales) {
  const int places = iNbDecimales.value();
  if (places < 0) Faute("invalid procedure call or argument");
  // A 32-bit power: 10 places and more overflow.
  const Int32 lPuissance = CLng(Value("1" + std::string(places, '0')).Nombre());
  const std::string sTexte = TexteNombre(lPuissance.value() * dValeur);
  const std::size_t iLongueur = TexteNombre(Int(dValeur)).size() + static_cast<std::size_t>(places);
  return Value(sTexte.substr(0, iLongueur)).Nombre() / lPuissance.value();
}

std::string sNormaliseDecimale(const std::string& vTexte) {
  std::string t = vTexte;
  std::replace(t.begin(), t.end(), cAutreSeparateur, cSeparateurDecimal);
  return t;
}

void DetecteSeparateurDecimal() {
  std::istringstream in("1.2");
  in.imbue(std::locale::classic());
  double d = 0;
  in >> d;
  const bool point = !in.fail() && in.eof() && d == 1.2;
  cSeparateurDecimal = point ? '.' : ',';
  cAutreSeparateur = point ? ',' : '.';
}

std::string MajDateEnFormatChaine(std::string& sDate) {
  // A text that is not a date (the empty mask "__/__/____" included) is left as it is.
  if (!EstDate(sDate)) return std::string();
  sDate = TexteDate(LireDate(sDate));
  if (sDate == "__/__/____" || sDate.size() != 10) return std::string();
  return sDate.substr(6, 4) + sDate.substr(3, 2) + sDate.substr(0, 2);
}

std::string MajChaineEnFormatDate(const std::string& sChaine) {
  if (sChaine.size() != 8) return std::string();
  return sChaine.substr(6, 2) + "/" + sChaine.substr(4, 2) + "/" + sChaine.substr(0, 4);
}

Int16 iNbJoursBase30(const std::string& sDateDebut, const std::string& sDateFin) {
  const Date debut = LireDate(sDateDebut);
  const Date fin = LireDate(sDateFin);
  const Int16 jourDebut = Jour(debut);
  const Int16 moisDebut = Mois(debut);
  const Int16 moisFin = Mois(fin);
  // Months compared without their years, as the hosts' data expect.
  if (moisDebut == moisFin) {
    const Date dFin = DernierJourDuMois(debut);
    if (Jour(fin) == Jour(dFin)) return 30 - jourDebut + 1;
    return Jour(fin) - jourDebut + 1;
  }
  const int anneeFin = Annee(fin);
  Int16 total = 0;
  for (Int16 m = moisDebut; m <= moisFin; ++m) {
    Int16 n;
    if (m == moisDebut) {
      n = 30 - jourDebut + 1;
    } else if (m == moisFin) {
      n = Int16(DiffJours(DateSerial(anneeFin, m, 1), fin) + 1);
    } else {
      n = 30 - 1 + Int16(1);
    }
    if (n > 30) n = 30;
    if (m == 2 && n >= JoursDansMois(anneeFin, 2)) n = 30;
    total += n;
  }
  return total;
}

Int16 iNbJoursBase30Commun(const std::string& sDateDebutA, const std::string& sDateFinA,
                           const std::string& sDateDebutB, const std::string& sDateFinB) {
  const Date debutA = LireDate(sDateDebutA), finA = LireDate(sDateFinA);
  const Date debutB = LireDate(sDateDebutB), finB = LireDate(sDateFinB);
  if (debutA > finB || debutB > finA) return 0;
  const std::string& debut = debutA > debutB ? sDateDebutA : sDateDebutB;
  const std::string& fin = finA < finB ? sDateFinA : sDateFinB;
  return iNbJoursBase30(debut, fin);
}

Int16 iNbJoursCommunsMois(const std::string& sDateDebut, const std::string& sDateFin,
                          const std::string& sDateMois) {
  const Date mois = LireDate(sDateMois);
  const Date dDebutMois = PremierJourDuMois(mois);
  const Date dFinMois = DernierJourDuMois(mois);
  const Date debut = LireDate(sDateDebut);
  const Date fin = sDateFin.empty() ? dFinMois : LireDate(sDateFin);
  if (debut > dFinMois || fin < dDebutMois) return 0;
  const Int16 n = Int16(DiffJours(std::max(debut, dDebutMois), std::min(fin, dFinMois))) + 1;
  return n < 0 ? Int16(0) : n;
}

namespace {

// Easter Monday of 2006 to 2050 as date serials. The 2022 entry is 24/04/2022, not the
// 18th: the hosts' payslips of that year were built on it and it is kept.
constexpr long kLundisDePaques[] = {
    38824, 39181, 39531, 39916, 40273, 40658, 41008, 41365, 41750, 42100,  // 2006-2015
    42457, 42842, 43192, 43577, 43934, 44291, 44675, 45026, 45383, 45768,  // 2016-2025
    46118, 46475, 46860, 47210, 47595, 47952, 48302, 48687, 49044, 49394,  // 2026-2035
    49779, 50136, 50521, 50871, 51228, 51613, 51963, 52320, 52705, 53062,  // 2036-2045
    53412, 53797, 54154, 54532, 54889,                                     // 2046-2050
};
constexpr std::size_t kNbLundisDePaques = sizeof kLundisDePaques / sizeof kLundisDePaques[0];
static_assert(kNbLundisDePaques == 45);

constexpr int kFeriesFixes[][2] = {{1, 1},  {1, 5},  {8, 5},   {14, 7},
                                   {15, 8}, {1, 11}, {11, 11}, {25, 12}};

constexpr int kDimanche = 1;
constexpr int kSamedi = 7;
constexpr long kAscension = 38;
constexpr long kDimanchePentecote = 48;
constexpr long kLundiPentecote = 49;

bool JourOuvre(Date d, bool bSamediOuvre, bool bDimanchePentecote) {
  const int semaine = JourSemaine(d);
  if (semaine == kSamedi && !bSamediOuvre) return false;
  if (semaine == kDimanche) return false;
  const int jour = Jour(d), mois = Mois(d);
  for (const auto& f : kFeriesFixes)
    if (f[0] == jour && f[1] == mois) return false;
  // The last entry (2050) is not examined: that year's movable feasts are working days.
  for (std::size_t i = 0; i + 1 < kNbLundisDePaques; ++i) {
    const long paques = kLundisDePaques[i];
    if (d.serial == paques || d.serial == paques + kAscension ||
        d.serial == paques + kLundiPentecote)
      return false;
    if (bDimanchePentecote && d.serial == paques + kDimanchePentecote) return false;
  }
  return true;
}

}  // namespace

bool bJourOuvre(const std::string& sDate, bool bSamediOuvre, bool bDimanchePentecote) {
  return JourOuvre(LireDate(sDate), bSamediOuvre, bDimanchePentecote);
}

Int16 iNbJoursOuvresAnnee(const std::string& sAnnee, bool bSamediOuvre, bool bDimanchePentecote) {
  const Date premier = LireDate("01/01/" + sAnnee);
  const Date dernier = LireDate("31/12/" + sAnnee);
  Int16 n = 0;
  for (Date d = premier; d <= dernier; d = AjouteJours(d, 1))
    if (JourOuvre(d, bSamediOuvre, bDimanchePentecote)) ++n;
  return n;
}

namespace {

struct TauxCPA {
  double coefficient;
  double horaire;
  double pourcentage;
};

struct LigneCPA {
  const char* type;
  TauxCPA taux;
};

constexpr LigneCPA kTauxCPA[] = {
    {"CP", {0.5, 0.5, 50}},
    {"PF", {0.6, 0.5, 50}},
};

// "PD" depends on the length of the period: under two years (730 days) it pays 6/7.
constexpr long kJoursPDLongue = 730;
constexpr TauxCPA kPDLongue = {0.7, 0.6, 60};
constexpr double kPourcentagePDCourte = 80;

}  // namespace

void CoefficientsCPA(const std::string& sTypeCPA, const std::string& sDateDebut,
                     const std::string& sDateFin, double& dCoefficient, double& dCoefficientHoraire,
                     double* dPourcentage) {
  TauxCPA taux{};
  if (sTypeCPA == "PD") {
    if (DiffJours(LireDate(sDateDebut), LireDate(sDateFin)) < kJoursPDLongue) {
      const double sixSeptiemes = Arrondi(6.0 / 7.0, 5);
      taux = {sixSeptiemes, sixSeptiemes, kPourcentagePDCourte};
    } else {
      taux = kPDLongue;
    }
  } else {
    const auto* ligne = std::find_if(std::begin(kTauxCPA), std::end(kTauxCPA),
                                     [&](const LigneCPA& l) { return sTypeCPA == l.type; });
    if (ligne == std::end(kTauxCPA)) return;
    taux = ligne->taux;
  }
  dCoefficient = taux.coefficient;
  dCoefficientHoraire = taux.horaire;
  if (dPourcentage) *dPourcentage = taux.pourcentage;
}

}  // namespace orvalis
