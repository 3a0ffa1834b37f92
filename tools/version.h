#ifndef ORVALIS_TOOLS_VERSION_H_
#define ORVALIS_TOOLS_VERSION_H_
namespace orvalis::tools {
const char* Version();
}  // namespace orvalis::tools
#endif  // ORVALIS_TOOLS_VERSION_H_
