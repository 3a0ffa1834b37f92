// Field-by-field equality of two records, through their field tables (for tests and tools).
#ifndef ORVALIS_FRAME_RECORDS_COMPARE_H_
#define ORVALIS_FRAME_RECORDS_COMPARE_H_

#include <cstring>
#include <type_traits>
#include <variant>

#include "orvalis/fields.h"

namespace orvalis {

// True when every field holds the same value (recordsets: the same reference).
template <typename R>
bool MemesChamps(const R& a, const R& b) {
  for (const auto& c : Champs<R>()) {
    const bool egal = std::visit(
        [&](auto membre) {
          using T = std::remove_cvref_t<decltype(a.*membre)>;
          if constexpr (std::is_same_v<T, double>) {
            // Bitwise identity, so that 0 and -0 or two NaN are told apart as stored.
            return std::memcmp(&(a.*membre), &(b.*membre), sizeof(double)) == 0;
          } else {
            return a.*membre == b.*membre;
          }
        },
        c.membre);
    if (!egal) return false;
  }
  return true;
}

}  // namespace orvalis

#endif  // ORVALIS_FRAME_RECORDS_COMPARE_H_
