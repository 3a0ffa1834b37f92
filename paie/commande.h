// The pay run's commands of `orvalis`: demo, paie, bulletins.
#ifndef ORVALIS_PAIE_COMMANDE_H_
#define ORVALIS_PAIE_COMMANDE_H_

#include <iosfwd>
#include <string>
#include <vector>

namespace orvalis::paie {

// True for the first arguments that these commands answer.
bool EstCommandePaie(const std::string& commande);

// Exit statuses besides 0 (done), each with one line on standard error. Bad input: the
// command line, the month, a store that is absent, not a store, of a newer schema, or whose
// contents cannot be used as written, a month already computed. Access: the store's file
// cannot be used now (locked by another process, full disk, read-only, input/output error,
// a payslip folder that cannot be written); nothing was written. (1 is an internal error.)
inline constexpr int kStatutEntree = 2;
inline constexpr int kStatutAcces = 3;

// Runs one of them (arguments after the program name); gives the exit status.
int CommandePaie(const std::vector<std::string>& arguments, std::ostream& sortie,
                 std::ostream& erreurs, bool terminal);

}  // namespace orvalis::paie

#endif  // ORVALIS_PAIE_COMMANDE_H_
