// Reading a fuzz input as a stream of choices. Past its end every read gives zeros, so any
// input, even empty, builds something; the same bytes always build the same thing.
#ifndef ORVALIS_FUZZ_OCTETS_H_
#define ORVALIS_FUZZ_OCTETS_H_

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

namespace orvalis::fuzz {

class Octets {
 public:
  Octets(const std::uint8_t* data, std::size_t size) : d_(data), n_(size) {}

  bool Fini() const { return i_ >= n_; }

  std::uint8_t Octet() { return i_ < n_ ? d_[i_++] : 0; }

  std::uint64_t Entier(int octets) {
    std::uint64_t v = 0;
    for (int k = 0; k < octets; ++k) v = (v << 8) | Octet();
    return v;
  }

  // In [0, n); 0 when n is 0.
  std::size_t Choix(std::size_t n) {
    if (n == 0) return 0;
    return static_cast<std::size_t>(Entier(n <= 256 ? 1 : n <= 65536 ? 2 : 4) % n);
  }

  bool Booleen() { return Octet() & 1; }

  double DoubleBrut() {
    const std::uint64_t bits = Entier(8);
    double d;
    std::memcpy(&d, &bits, sizeof d);
    return d;
  }

  // Bytes as they come, up to a length read first.
  std::string Texte(std::size_t max) {
    std::size_t n = Choix(max + 1);
    std::string s;
    while (n-- > 0 && !Fini()) s.push_back(static_cast<char>(Octet()));
    return s;
  }

  // All that is left.
  std::string Reste() {
    std::string s(reinterpret_cast<const char*>(d_ + i_), n_ - i_);
    i_ = n_;
    return s;
  }

 private:
  const std::uint8_t* d_;
  std::size_t n_;
  std::size_t i_ = 0;
};

}  // namespace orvalis::fuzz

#endif  // ORVALIS_FUZZ_OCTETS_H_
