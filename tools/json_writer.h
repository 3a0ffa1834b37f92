// The printed form of the runner's JSON output.
//
// Doubles are printed in the shortest form that reads back to the same double (343, 1.01,
// 1e+22); a value with no finite form is printed as null. Objects and arrays holding only
// flat values stay on one line when short; records and tables open one line per member,
// so that a golden output reads and diffs field by field.
#ifndef ORVALIS_TOOLS_JSON_WRITER_H_
#define ORVALIS_TOOLS_JSON_WRITER_H_

#include <string>

#include <nlohmann/json.hpp>

namespace orvalis::tools {

// Shortest round-trip text of a finite double.
std::string TexteDouble(double d);

// The whole document, ending with a newline.
std::string EcritJson(const nlohmann::ordered_json& j);

}  // namespace orvalis::tools

#endif  // ORVALIS_TOOLS_JSON_WRITER_H_
