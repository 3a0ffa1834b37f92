// The pay run's commands of `orvalis`: demo, paie, bulletins.
#ifndef ORVALIS_PAIE_COMMANDE_H_
#define ORVALIS_PAIE_COMMANDE_H_

#include <iosfwd>
#include <string>
#include <vector>

namespace orvalis::paie {

// True for the first arguments that these commands answer.
bool EstCommandePaie(const std::string& commande);

// Runs one of them (arguments after the program name); gives the exit status: 0 done,
// 1 the store refused (with one line on `erreurs`), 2 a wrong command line.
int CommandePaie(const std::vector<std::string>& arguments, std::ostream& sortie,
                 std::ostream& erreurs, bool terminal);

}  // namespace orvalis::paie

#endif  // ORVALIS_PAIE_COMMANDE_H_
