#include "tools/command_line.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <istream>
#include <ostream>

#include "tools/case_runner.h"
#include "tools/version.h"

namespace orvalis::tools {

namespace {

constexpr const char* kUsage =
    "usage: orvalis run CASE.json\n"
    "       orvalis run -\n"
    "       orvalis --help\n"
    "       orvalis --version\n";

constexpr const char* kAide =
    "orvalis: runs a case file through the Orvalis payroll engine.\n"
    "\n"
    "  orvalis run CASE.json   run the case and print what the engine wrote, as JSON\n"
    "  orvalis run -           read the case from standard input\n"
    "  orvalis --help          print this help\n"
    "  orvalis --version       print the version\n"
    "\n"
    "A case sets the engine's sources and the employee record, then runs its steps\n"
    "(prepare, calc, set, sources, call) on one engine object. Exit status: 0 when the\n"
    "case ran, whatever the engine returned; 2 when the case or the command line is\n"
    "wrong, with one line on standard error and nothing on standard output.\n"
    "The format of case files: docs/case-files.md.\n"
    "\n"
    "The pay run of a commune over an SQLite store (orvalis COMMAND --help for each):\n"
    "  orvalis demo STORE [--agents N]                 create the sample commune\n"
    "  orvalis paie STORE MONTH [--replace] [--payslips FOLDER]\n"
    "                                                  compute a month, e.g. 2024-03\n"
    "  orvalis bulletins STORE MONTH FOLDER            write the payslips of a month\n"
    "The store's schema: docs/paie-store.md.\n";

int Usage(std::ostream& erreurs, const std::string& probleme) {
  erreurs << "orvalis: " << probleme << '\n' << kUsage;
  return 2;
}

// Reads at most one byte past the largest case: enough for the case reader to refuse it.
// False when the stream fails other than by ending.
bool LitBorne(std::istream& entree, std::string& texte) {
  char tampon[65536];
  while (texte.size() <= kCasTailleMax && entree.read(tampon, sizeof tampon).gcount() > 0)
    texte.append(tampon, static_cast<std::size_t>(entree.gcount()));
  return !entree.bad();
}

}  // namespace

int Principal(const std::vector<std::string>& arguments, std::istream& entree,
              std::ostream& sortie, std::ostream& erreurs) {
  if (arguments.empty()) return Usage(erreurs, "no command");
  const std::string& commande = arguments[0];
  if (commande == "--help" || commande == "-h" || commande == "help") {
    if (arguments.size() != 1) return Usage(erreurs, "--help takes no argument");
    sortie << kAide << kUsage;
    return 0;
  }
  if (commande == "--version") {
    if (arguments.size() != 1) return Usage(erreurs, "--version takes no argument");
    sortie << "orvalis " << Version() << '\n';
    return 0;
  }
  if (commande != "run") return Usage(erreurs, "unknown command '" + commande + "'");
  if (arguments.size() == 2 && (arguments[1] == "--help" || arguments[1] == "-h")) {
    sortie << kAide << kUsage;
    return 0;
  }
  if (arguments.size() != 2) return Usage(erreurs, "run takes one case file, or - for standard input");

  const std::string& chemin = arguments[1];
  std::string texte;
  if (chemin == "-") {
    if (!LitBorne(entree, texte)) {
      erreurs << "-: cannot read standard input\n";
      return 2;
    }
    return LanceCas(texte, "-", sortie, erreurs);
  }
  if (!chemin.empty() && chemin[0] == '-') return Usage(erreurs, "unknown option '" + chemin + "'");
  errno = 0;
  std::ifstream fichier(chemin, std::ios::binary);
  if (!fichier.is_open() || !LitBorne(fichier, texte)) {
    erreurs << chemin << ": cannot read: " << std::strerror(errno != 0 ? errno : EIO) << '\n';
    return 2;
  }
  return LanceCas(texte, chemin, sortie, erreurs);
}

}  // namespace orvalis::tools
