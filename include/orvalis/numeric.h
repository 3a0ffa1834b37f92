// Checked integers and the conversions of the pay rules.
//
// Day counts are 16-bit (`Int16`), ids are 32-bit (`Int32`). Their +, -, * and unary minus
// are carried in their own width: a result out of range is a Fault, never a wrap. A plain
// C++ integer mixed with a checked one takes the checked one's width, as a literal day count
// does in the rules (iNBJ + 1 is 16-bit); an Int16 mixed with an Int32 gives an Int32.
// `/` between integers is the payroll division: it gives a double, and a zero divisor is a
// Fault. A double never turns into an integer silently: use CInt or CLng, which round half
// to even and fault out of range.
#ifndef ORVALIS_NUMERIC_H_
#define ORVALIS_NUMERIC_H_

#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <utility>

#include "orvalis/fault.h"

namespace orvalis {

template <typename Rep>
class CheckedInt;

template <typename T>
struct IsChecked : std::false_type {};
template <typename Rep>
struct IsChecked<CheckedInt<Rep>> : std::true_type {};

template <typename T>
concept CheckedOrIntegral =
    IsChecked<std::remove_cvref_t<T>>::value ||
    (std::integral<std::remove_cvref_t<T>> && !std::same_as<std::remove_cvref_t<T>, bool>);

namespace detail {
template <typename Rep, typename T>
constexpr Rep Narrow(T v) {
  if (!std::in_range<Rep>(v)) Faute("overflow");
  return static_cast<Rep>(v);
}
}  // namespace detail

template <typename Rep>
class CheckedInt {
 public:
  using rep = Rep;
  constexpr CheckedInt() = default;
  // Range-checked: 40000 into an Int16 is a Fault.
  template <typename T>
    requires(std::integral<T> && !std::same_as<T, bool>)
  constexpr CheckedInt(T v) : v_(detail::Narrow<Rep>(v)) {}
  template <typename R2>
  constexpr CheckedInt(CheckedInt<R2> o) : v_(detail::Narrow<Rep>(o.value())) {}
  template <typename T>
    requires std::floating_point<T>
  CheckedInt(T) = delete;  // use CInt / CLng

  constexpr Rep value() const { return v_; }
  constexpr operator Rep() const { return v_; }

  CheckedInt& operator+=(CheckedInt o) { return *this = *this + o; }
  CheckedInt& operator-=(CheckedInt o) { return *this = *this - o; }
  CheckedInt& operator*=(CheckedInt o) { return *this = *this * o; }
  CheckedInt& operator++() { return *this += CheckedInt(1); }
  CheckedInt& operator--() { return *this -= CheckedInt(1); }
  CheckedInt operator-() const { return CheckedInt(-static_cast<std::int64_t>(v_)); }

 private:
  Rep v_ = 0;
};

using Int16 = CheckedInt<std::int16_t>;
using Int32 = CheckedInt<std::int32_t>;

namespace detail {
template <typename A, typename B>
struct Wider;
template <typename R>
struct Wider<CheckedInt<R>, CheckedInt<R>> { using type = CheckedInt<R>; };
template <>
struct Wider<Int16, Int32> { using type = Int32; };
template <>
struct Wider<Int32, Int16> { using type = Int32; };
template <typename A, typename B>
  requires(IsChecked<A>::value && !IsChecked<B>::value)
struct Wider<A, B> { using type = A; };
template <typename A, typename B>
  requires(!IsChecked<A>::value && IsChecked<B>::value)
struct Wider<A, B> { using type = B; };
template <typename A, typename B>
  requires(!IsChecked<A>::value && !IsChecked<B>::value)
struct Wider<A, B> { using type = void; };
template <typename A, typename B>
using WiderT = typename Wider<std::remove_cvref_t<A>, std::remove_cvref_t<B>>::type;
// Deduced, never converted: a double beside a checked integer takes the built-in
// double arithmetic.
template <typename A, typename B>
concept MixedChecked = CheckedOrIntegral<A> && CheckedOrIntegral<B> &&
                       (IsChecked<std::remove_cvref_t<A>>::value ||
                        IsChecked<std::remove_cvref_t<B>>::value);
}  // namespace detail

template <typename A, typename B>
  requires detail::MixedChecked<A, B>
detail::WiderT<A, B> operator+(A a, B b) {
  using W = detail::WiderT<A, B>;
  return W(static_cast<std::int64_t>(W(a).value()) + W(b).value());
}
template <typename A, typename B>
  requires detail::MixedChecked<A, B>
detail::WiderT<A, B> operator-(A a, B b) {
  using W = detail::WiderT<A, B>;
  return W(static_cast<std::int64_t>(W(a).value()) - W(b).value());
}
template <typename A, typename B>
  requires detail::MixedChecked<A, B>
detail::WiderT<A, B> operator*(A a, B b) {
  using W = detail::WiderT<A, B>;
  return W(static_cast<std::int64_t>(W(a).value()) * W(b).value());
}
// The payroll division of two integers: a double; a zero divisor is a Fault.
template <typename A, typename B>
  requires(CheckedOrIntegral<A> && CheckedOrIntegral<B> &&
           (IsChecked<std::remove_cvref_t<A>>::value || IsChecked<std::remove_cvref_t<B>>::value))
double operator/(A a, B b) {
  const double d = static_cast<double>(static_cast<std::int64_t>(b));
  if (d == 0) Faute("division by zero");
  return static_cast<double>(static_cast<std::int64_t>(a)) / d;
}

// a / b in doubles; a zero divisor is a Fault (the rules never divide by zero silently).
inline double Div(double a, double b) {
  if (b == 0) Faute("division by zero");
  return a / b;
}

// Double to 16-bit integer: half to even (2.5 gives 2, 3.5 gives 4), a Fault out of range.
Int16 CInt(double d);
// Double to 32-bit integer: half to even, a Fault out of range.
Int32 CLng(double d);

// Integer part towards minus infinity, and towards zero.
inline double Int(double d) { return std::floor(d); }
inline double Fix(double d) { return std::trunc(d); }

}  // namespace orvalis

#endif  // ORVALIS_NUMERIC_H_
