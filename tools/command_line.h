// The `orvalis` command line: `orvalis run CASE.json`, `orvalis run -`, --help, --version.
#ifndef ORVALIS_TOOLS_COMMAND_LINE_H_
#define ORVALIS_TOOLS_COMMAND_LINE_H_

#include <iosfwd>
#include <string>
#include <vector>

namespace orvalis::tools {

// The arguments after the program name; gives the exit status.
int Principal(const std::vector<std::string>& arguments, std::istream& entree,
              std::ostream& sortie, std::ostream& erreurs);

}  // namespace orvalis::tools

#endif  // ORVALIS_TOOLS_COMMAND_LINE_H_
