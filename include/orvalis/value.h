// A cell of a tabular source: null, a boolean, a number or a text.
//
// Null is a value of its own. Reading a null as a number or a text is a Fault; the lookups
// that allow a null say so and use NombreOuZero / TexteOuVide.
#ifndef ORVALIS_VALUE_H_
#define ORVALIS_VALUE_H_

#include <string>
#include <variant>

namespace orvalis {

class Value {
 public:
  Value() = default;  // null
  Value(std::nullptr_t) {}
  Value(bool b) : v_(b) {}
  Value(double d) : v_(d) {}
  Value(int i) : v_(static_cast<double>(i)) {}
  Value(long i) : v_(static_cast<double>(i)) {}
  Value(long long i) : v_(static_cast<double>(i)) {}
  Value(std::string s) : v_(std::move(s)) {}
  Value(const char* s) : v_(std::string(s)) {}

  static Value Null() { return Value(); }

  bool EstNull() const { return std::holds_alternative<std::monostate>(v_); }
  bool EstBooleen() const { return std::holds_alternative<bool>(v_); }
  bool EstNombre() const { return std::holds_alternative<double>(v_); }
  bool EstTexte() const { return std::holds_alternative<std::string>(v_); }

  // As a number: a number as it is, a boolean as -1 or 0, a numeric text converted
  // (either decimal separator). A null or a text that is not a number is a Fault.
  double Nombre() const;
  // As a text: a text as it is, a number in its shortest form of 15 significant digits,
  // a boolean as "True"/"False". A null is a Fault.
  std::string Texte() const;
  // The same, a null giving 0 or the empty text.
  double NombreOuZero() const { return EstNull() ? 0.0 : Nombre(); }
  std::string TexteOuVide() const { return EstNull() ? std::string() : Texte(); }

  // Raw access for hosts that copy values out.
  bool Booleen() const { return std::get<bool>(v_); }
  double Double() const { return std::get<double>(v_); }
  const std::string& Chaine() const { return std::get<std::string>(v_); }

  friend bool operator==(const Value& a, const Value& b) { return a.v_ == b.v_; }

 private:
  std::variant<std::monostate, bool, double, std::string> v_;
};

}  // namespace orvalis

#endif  // ORVALIS_VALUE_H_
