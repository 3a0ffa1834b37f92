// Civil calendar on date serials (days since 30 December 1899), proleptic Gregorian.
#include "orvalis/dates.h"

#include <cstdio>
#include <cstring>
#include <string>

#include "orvalis/fault.h"

namespace orvalis {

namespace {

// Serial of 1 January 1970 in the host's numbering.
constexpr long kSerial1970 = 25569;

long FloorDiv(long a, long b) { return a / b - ((a % b != 0) && ((a < 0) != (b < 0))); }

// Days since 1 January 1970 of a valid civil date.
long JoursCivils(long y, int m, int d) {
  y -= m <= 2;
  const long ere = FloorDiv(y, 400);
  const long annee_ere = y - ere * 400;
  const long jour_annee = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
  const long jour_ere = annee_ere * 365 + annee_ere / 4 - annee_ere / 100 + jour_annee;
  return ere * 146097 + jour_ere - 719468;
}

struct Civil {
  long y;
  int m;
  int d;
};

Civil DepuisJours(long z) {
  z += 719468;
  const long ere = FloorDiv(z, 146097);
  const long jour_ere = z - ere * 146097;
  const long annee_ere = (jour_ere - jour_ere / 1460 + jour_ere / 36524 - jour_ere / 146096) / 365;
  const long jour_annee = jour_ere - (365 * annee_ere + annee_ere / 4 - annee_ere / 100);
  const long mp = (5 * jour_annee + 2) / 153;
  const int d = static_cast<int>(jour_annee - (153 * mp + 2) / 5 + 1);
  const int m = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
  const long y = annee_ere + ere * 400 + (m <= 2);
  return {y, m, d};
}

Civil DeSerie(Date d) { return DepuisJours(d.serial - kSerial1970); }

bool EstBissextile(long y) { return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0; }

// Reads 'n' digits at s[i..], n between mini and maxi, stopping at the first non-digit.
bool LitChiffres(const std::string& s, std::size_t& i, std::size_t mini, std::size_t maxi,
                 int& valeur) {
  std::size_t n = 0;
  valeur = 0;
  while (i < s.size() && s[i] >= '0' && s[i] <= '9' && n < maxi) {
    valeur = valeur * 10 + (s[i] - '0');
    ++i;
    ++n;
  }
  return n >= mini && !(i < s.size() && s[i] >= '0' && s[i] <= '9');
}

// Day first "d/m/yyyy"; false when the text is not such a date or the day does not exist.
bool Analyse(const std::string& s, int& jour, int& mois, int& annee) {
  const auto chiffre = [&s](std::size_t k) { return s[k] >= '0' && s[k] <= '9'; };
  if (s.size() == 10 && s[2] == '/' && s[5] == '/' && chiffre(0) && chiffre(1) && chiffre(3) &&
      chiffre(4) && chiffre(6) && chiffre(7) && chiffre(8) && chiffre(9)) {
    // The usual "dd/mm/yyyy", read in one go; the checks below are the same.
    const auto n = [&s](std::size_t k) { return s[k] - '0'; };
    jour = n(0) * 10 + n(1);
    mois = n(3) * 10 + n(4);
    annee = n(6) * 1000 + n(7) * 100 + n(8) * 10 + n(9);
    if (annee < 100 || mois < 1 || mois > 12) return false;
    return jour >= 1 && jour <= JoursDansMois(annee, mois);
  }
  std::size_t i = 0;
  if (!LitChiffres(s, i, 1, 2, jour)) return false;
  if (i >= s.size() || s[i] != '/') return false;
  ++i;
  if (!LitChiffres(s, i, 1, 2, mois)) return false;
  if (i >= s.size() || s[i] != '/') return false;
  ++i;
  if (!LitChiffres(s, i, 4, 4, annee)) return false;
  if (i != s.size()) return false;
  // The host's date values run from year 100 to 9999.
  if (annee < 100 || mois < 1 || mois > 12) return false;
  return jour >= 1 && jour <= JoursDansMois(annee, mois);
}

}  // namespace

Date DateSerial(int year, int month, int day) {
  if (year >= 1 && month >= 1 && month <= 12) {
    // A month of the calendar in a year from 1: the civil days without carrying months.
    return Date{JoursCivils(year, month, 1) + kSerial1970 + day - 1};
  }
  const long mois0 = static_cast<long>(month) - 1;
  const long y = year + FloorDiv(mois0, 12);
  const int m = static_cast<int>(mois0 - FloorDiv(mois0, 12) * 12) + 1;
  return Date{JoursCivils(y, m, 1) + kSerial1970 + day - 1};
}

int Annee(Date d) { return static_cast<int>(DeSerie(d).y); }
int Mois(Date d) { return DeSerie(d).m; }
int Jour(Date d) { return DeSerie(d).d; }

int JourSemaine(Date d) {
  // Serial 0 (30/12/1899) was a Saturday.
  long r = (d.serial + 6) % 7;
  if (r < 0) r += 7;
  return static_cast<int>(r) + 1;
}

int JoursDansMois(int year, int month) {
  static constexpr int kJours[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (month >= 1 && month <= 12) return month == 2 && EstBissextile(year) ? 29 : kJours[month - 1];
  const long mois0 = static_cast<long>(month) - 1;
  const long y = year + FloorDiv(mois0, 12);
  const int m = static_cast<int>(mois0 - FloorDiv(mois0, 12) * 12) + 1;
  if (m == 2 && EstBissextile(y)) return 29;
  return kJours[m - 1];
}

Date DernierJourDuMois(Date d) {
  const Civil c = DeSerie(d);
  return DateSerial(static_cast<int>(c.y), c.m + 1, 0);
}

Date PremierJourDuMois(Date d) {
  const Civil c = DeSerie(d);
  return DateSerial(static_cast<int>(c.y), c.m, 1);
}

Date AjouteMois(Date d, int months) {
  const Civil c = DeSerie(d);
  const Date premier = DateSerial(static_cast<int>(c.y), c.m + months, 1);
  const int longueur = JoursDansMois(Annee(premier), Mois(premier));
  return AjouteJours(premier, (c.d < longueur ? c.d : longueur) - 1);
}

Date AjouteJours(Date d, long days) { return Date{d.serial + days}; }

long DiffJours(Date a, Date b) { return b.serial - a.serial; }

long DiffMois(Date a, Date b) {
  const Civil ca = DeSerie(a), cb = DeSerie(b);
  return (cb.y - ca.y) * 12 + cb.m - ca.m;
}

bool EstDate(const std::string& s) {
  int j = 0, m = 0, a = 0;
  return Analyse(s, j, m, a);
}

// The dates read last on this thread, "dd/mm/yyyy" only: the same few texts (the pay month,
// the employee's dates) come back at every line.
class DatesLues {
 public:
  const Date* Trouve(const std::string& s) const {
    for (std::size_t i = 0; i < pleines_; ++i)
      if (std::memcmp(lues_[i].texte, s.data(), kLongueur) == 0) return &lues_[i].date;
    return nullptr;
  }
  void Garde(const std::string& s, Date d) {
    Lue& l = lues_[prochaine_];
    std::memcpy(l.texte, s.data(), kLongueur);
    l.date = d;
    prochaine_ = (prochaine_ + 1) % kTaille;
    if (pleines_ < kTaille) ++pleines_;
  }
  static constexpr std::size_t kLongueur = 10;

 private:
  static constexpr std::size_t kTaille = 8;
  struct Lue {
    char texte[kLongueur];
    Date date;
  };
  Lue lues_[kTaille];
  std::size_t pleines_ = 0, prochaine_ = 0;
};

Date LireDate(const std::string& s) {
  thread_local DatesLues lues;
  const bool usuelle = s.size() == DatesLues::kLongueur;
  if (usuelle)
    if (const Date* d = lues.Trouve(s)) return *d;
  int j = 0, m = 0, a = 0;
  if (!Analyse(s, j, m, a)) Faute("not a date: '" + s + "'");
  const Date d = DateSerial(a, m, j);
  if (usuelle) lues.Garde(s, d);
  return d;
}

std::string TexteDate(Date d) {
  const Civil c = DeSerie(d);
  if (c.y >= 0 && c.y <= 9999) {
    // The usual date written digit by digit: "dd/mm/yyyy" without formatting.
    const auto chiffre = [](long n) { return static_cast<char>('0' + n); };
    const long y = c.y;
    return {chiffre(c.d / 10), chiffre(c.d % 10), '/', chiffre(c.m / 10), chiffre(c.m % 10), '/',
            chiffre(y / 1000), chiffre(y / 100 % 10), chiffre(y / 10 % 10), chiffre(y % 10)};
  }
  char buf[32];
  std::snprintf(buf, sizeof buf, "%02d/%02d/%04ld", c.d, c.m, c.y);
  return buf;
}

}  // namespace orvalis
