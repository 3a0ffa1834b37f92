// The version of the engine and its tools.
#include "tools/version.h"

namespace orvalis::tools {
const char* Version() { return "0.1.0"; }
}  // namespace orvalis::tools
