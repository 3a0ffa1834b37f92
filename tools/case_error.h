// A case file that cannot be run as written: the place in the case and what is wrong there.
//
// The place is a path from the root of the case, "steps[3].rubrique.dBasee"; the root itself
// is "case". The command line prints "place: message" on one line and exits with status 2.
#ifndef ORVALIS_TOOLS_CASE_ERROR_H_
#define ORVALIS_TOOLS_CASE_ERROR_H_

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

namespace orvalis::tools {

class ErreurCas : public std::runtime_error {
 public:
  ErreurCas(const std::string& lieu, const std::string& message);
  const std::string& Lieu() const { return lieu_; }
  const std::string& Message() const { return message_; }

 private:
  std::string lieu_;
  std::string message_;
};

// "steps" under the root, "steps[3].rubrique" under "steps[3]".
std::string Sous(const std::string& lieu, std::string_view cle);
// "steps[3]" under "steps".
std::string Indice(const std::string& lieu, std::size_t i);

}  // namespace orvalis::tools

#endif  // ORVALIS_TOOLS_CASE_ERROR_H_
