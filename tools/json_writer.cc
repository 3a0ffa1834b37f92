#include "tools/json_writer.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>

namespace orvalis::tools {

using Json = nlohmann::ordered_json;

namespace {

constexpr std::size_t kLargeurLigne = 100;

// Length of a valid UTF-8 sequence starting at s[i], or 0.
std::size_t SequenceUtf8(const std::string& s, std::size_t i) {
  const auto o = [&](std::size_t k) { return static_cast<unsigned char>(s[k]); };
  const unsigned char c = o(i);
  std::size_t n;
  std::uint32_t cp;
  if (c >= 0xC2 && c <= 0xDF) { n = 2; cp = c & 0x1F; }
  else if (c >= 0xE0 && c <= 0xEF) { n = 3; cp = c & 0x0F; }
  else if (c >= 0xF0 && c <= 0xF4) { n = 4; cp = c & 0x07; }
  else return 0;
  if (i + n > s.size()) return 0;
  for (std::size_t k = 1; k < n; ++k) {
    if ((o(i + k) & 0xC0) != 0x80) return 0;
    cp = (cp << 6) | (o(i + k) & 0x3F);
  }
  if ((n == 3 && cp < 0x800) || (n == 4 && (cp < 0x10000 || cp > 0x10FFFF)) ||
      (cp >= 0xD800 && cp <= 0xDFFF))
    return 0;
  return n;
}

void EcritTexte(std::string& out, const std::string& s) {
  out += '"';
  for (std::size_t i = 0; i < s.size();) {
    const unsigned char c = static_cast<unsigned char>(s[i]);
    if (c < 0x80) {
      switch (c) {
        case '"': out += "\\\""; break;
        case '\\': out += "\\\\"; break;
        case '\n': out += "\\n"; break;
        case '\r': out += "\\r"; break;
        case '\t': out += "\\t"; break;
        case '\b': out += "\\b"; break;
        case '\f': out += "\\f"; break;
        default:
          if (c < 0x20) {
            char buf[8];
            std::snprintf(buf, sizeof buf, "\\u%04x", c);
            out += buf;
          } else {
            out += static_cast<char>(c);
          }
      }
      ++i;
      continue;
    }
    // A text cut inside a character by the engine still prints as valid JSON.
    const std::size_t n = SequenceUtf8(s, i);
    if (n == 0) {
      out += "\\ufffd";
      ++i;
    } else {
      out.append(s, i, n);
      i += n;
    }
  }
  out += '"';
}

bool EstScalaire(const Json& j) { return !j.is_structured(); }

// An array of scalars, or an object of scalars and arrays of scalars.
bool EstPlat(const Json& j) {
  if (j.is_array()) {
    for (const auto& e : j)
      if (!EstScalaire(e)) return false;
    return true;
  }
  if (j.is_object()) {
    for (const auto& [k, v] : j.items()) {
      (void)k;
      if (!EstScalaire(v) && !(v.is_array() && EstPlat(v))) return false;
    }
    return true;
  }
  return true;
}

void Ecrit(std::string& out, const Json& j, std::size_t retrait);

void EcritEnLigne(std::string& out, const Json& j) {
  if (j.is_array()) {
    out += '[';
    bool premier = true;
    for (const auto& e : j) {
      if (!premier) out += ", ";
      premier = false;
      EcritEnLigne(out, e);
    }
    out += ']';
  } else if (j.is_object()) {
    out += '{';
    bool premier = true;
    for (const auto& [k, v] : j.items()) {
      if (!premier) out += ", ";
      premier = false;
      EcritTexte(out, k);
      out += ": ";
      EcritEnLigne(out, v);
    }
    out += '}';
  } else {
    Ecrit(out, j, 0);
  }
}

void Ecrit(std::string& out, const Json& j, std::size_t retrait) {
  switch (j.type()) {
    case Json::value_t::null: out += "null"; return;
    case Json::value_t::boolean: out += j.get<bool>() ? "true" : "false"; return;
    case Json::value_t::number_integer: out += std::to_string(j.get<std::int64_t>()); return;
    case Json::value_t::number_unsigned: out += std::to_string(j.get<std::uint64_t>()); return;
    case Json::value_t::number_float: {
      const double d = j.get<double>();
      out += std::isfinite(d) ? TexteDouble(d) : "null";
      return;
    }
    case Json::value_t::string: EcritTexte(out, j.get_ref<const std::string&>()); return;
    default: break;
  }
  if (j.empty()) {
    out += j.is_array() ? "[]" : "{}";
    return;
  }
  if (EstPlat(j)) {
    std::string ligne;
    EcritEnLigne(ligne, j);
    if (j.is_array() || retrait + ligne.size() <= kLargeurLigne) {
      out += ligne;
      return;
    }
  }
  const std::string dedans(retrait + 2, ' ');
  out += j.is_array() ? "[\n" : "{\n";
  bool premier = true;
  for (auto it = j.begin(); it != j.end(); ++it) {
    if (!premier) out += ",\n";
    premier = false;
    out += dedans;
    if (j.is_object()) {
      EcritTexte(out, it.key());
      out += ": ";
    }
    Ecrit(out, it.value(), retrait + 2);
  }
  out += '\n';
  out.append(retrait, ' ');
  out += j.is_array() ? ']' : '}';
}

}  // namespace

std::string TexteDouble(double d) {
  char buf[64];
  const auto r = std::to_chars(buf, buf + sizeof buf, d);
  return std::string(buf, r.ptr);
}

std::string EcritJson(const Json& j) {
  std::string out;
  Ecrit(out, j, 0);
  out += '\n';
  return out;
}

}  // namespace orvalis::tools
