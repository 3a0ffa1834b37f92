// orvalis: the command-line host of the engine.
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include <unistd.h>

#include "paie/commande.h"
#include "tools/command_line.h"

int main(int argc, char** argv) {
  // Nothing escapes to the shell as a crash: an unforeseen failure is one line and status 1.
  try {
    std::ios::sync_with_stdio(false);
    const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    if (!arguments.empty() && orvalis::paie::EstCommandePaie(arguments[0]))
      return orvalis::paie::CommandePaie(arguments, std::cout, std::cerr, isatty(STDERR_FILENO) == 1);
    return orvalis::tools::Principal(arguments, std::cin, std::cout, std::cerr);
  } catch (const std::exception& e) {
    std::cerr << "orvalis: internal error: " << e.what() << '\n';
  } catch (...) {
    std::cerr << "orvalis: internal error\n";
  }
  return 1;
}
