// The engine's one fault type.
//
// Every run-time failure of a calculation (overflow of a 16- or 32-bit day count or id,
// division by zero, a null where a number or text is needed, an impossible date, a missing
// column or source) is thrown as a Fault. Nothing below the two entry points catches it:
// they trap it and return false.
#ifndef ORVALIS_FAULT_H_
#define ORVALIS_FAULT_H_

#include <stdexcept>
#include <string>

namespace orvalis {

class Fault : public std::runtime_error {
 public:
  explicit Fault(const std::string& what) : std::runtime_error(what) {}
};

// Throws a Fault with a short text ("division by zero", "overflow", ...).
[[noreturn]] void Faute(const std::string& what);

}  // namespace orvalis

#endif  // ORVALIS_FAULT_H_
