// Civil calendar dates for the pay rules.
//
// A Date is a serial day number: days since 30 December 1899 (so 1 January 1900 is 2),
// the serial the host's date values use. Date texts are always read day first,
// "d/m/yyyy" with one or two digits for day and month; anything else is not a date.
#ifndef ORVALIS_DATES_H_
#define ORVALIS_DATES_H_

#include <string>

namespace orvalis {

struct Date {
  long serial = 0;
  friend bool operator==(Date a, Date b) = default;
  friend auto operator<=>(Date a, Date b) = default;
};

// Builds a date; month and day may run over and roll forward or back, as in DateSerial
// (month 13 is January of the next year, day 0 the last day of the month before).
Date DateSerial(int year, int month, int day);
int Annee(Date d);
int Mois(Date d);
int Jour(Date d);
// 1 = Sunday ... 7 = Saturday.
int JourSemaine(Date d);
int JoursDansMois(int year, int month);
Date DernierJourDuMois(Date d);
Date PremierJourDuMois(Date d);

// Adds months keeping the day, clamped to the length of the target month.
Date AjouteMois(Date d, int months);
Date AjouteJours(Date d, long days);
// Whole calendar days, b minus a.
long DiffJours(Date a, Date b);
// Months, b minus a, by year and month only.
long DiffMois(Date a, Date b);

// True when the text reads as a date, day first.
bool EstDate(const std::string& s);
// Reads a date text, day first; not a date is a Fault naming the text.
Date LireDate(const std::string& s);
// "dd/mm/yyyy".
std::string TexteDate(Date d);

}  // namespace orvalis

#endif  // ORVALIS_DATES_H_
