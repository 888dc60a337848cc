// Reading and writing numbers without a locale.
#include "numerics/numbers.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "numerics/fault.hpp"

namespace dialwright {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::size_t digitsFrom(std::string_view text, std::size_t at) {
  while (at < text.size() && isDigit(text[at])) ++at;
  return at;
}

// End of the numeric prefix that starts at 0 (after the sign), or 0 when there is no digit.
std::size_t prefixEnd(std::string_view text) {
  std::size_t end = digitsFrom(text, 0);
  std::size_t digits = end;
  if (end < text.size() && text[end] == '.') {
    const std::size_t after = digitsFrom(text, end + 1);
    digits += after - end - 1;
    end = after;
  }
  if (digits == 0) return 0;
  if (end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
    std::size_t at = end + 1;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
    const std::size_t after = digitsFrom(text, at);
    if (after > at) end = after;
  }
  return end;
}

double powerOfTen(int decimals) { return std::pow(10.0, decimals); }

// True when a number beyond the range of a double is too small for it, not too large.
bool isTiny(std::string_view number) {
  const std::size_t exponentAt = std::min(number.find_first_of("eE"), number.size());
  const std::string_view mantissa = number.substr(0, exponentAt);
  const auto whole = static_cast<long>(std::min(mantissa.find('.'), mantissa.size()));
  const auto first = static_cast<long>(mantissa.find_first_not_of("0."));
  const long power = first < whole ? whole - first - 1 : whole - first;
  if (exponentAt == number.size()) return power < 0;
  std::string_view digits = number.substr(exponentAt + 1);
  const bool negative = digits.front() == '-';
  if (negative || digits.front() == '+') digits.remove_prefix(1);
  long exponent = 0;
  constexpr long kBeyond = 1'000'000'000;
  if (std::from_chars(digits.data(), digits.data() + digits.size(), exponent).ec != std::errc())
    exponent = kBeyond;
  return power + (negative ? -exponent : exponent) < 0;
}

}  // namespace

double numberOf(std::string_view text) {
  const std::size_t start = text.find_first_not_of(" \t");
  if (start == std::string_view::npos) return 0;
  text.remove_prefix(start);
  const bool negative = text.front() == '-';
  if (negative || text.front() == '+') text.remove_prefix(1);
  const std::size_t end = prefixEnd(text);
  if (end == 0) return 0;
  double value = 0;
  const auto read = std::from_chars(text.data(), text.data() + end, value);
  if (read.ec == std::errc::result_out_of_range) return isTiny(text.substr(0, end)) ? 0 : kFault;
  return negative ? -value : value;
}

std::string textOf(double number) {
  std::array<char, kNumberLength> buffer{};
  return {buffer.data(), writeNumber(buffer.data(), number)};
}

char* writeNumber(char* to, double number) {
  if (!sound(number)) return to;
  if (number == 0) number = 0;  // no sign of a negative zero
  char* end = std::to_chars(to, to + kNumberLength, number, std::chars_format::general, 15).ptr;
  for (const std::ptrdiff_t back : {4, 5}) {  // e+16 or e-100
    if (end - to > back && end[-back] == 'e') end[-back] = 'E';
  }
  return end;
}

std::string textWithSign(double number) {
  return number < 0 ? textOf(number) : ' ' + textOf(number);
}

std::string textFixed(double number, int decimals, int leastWhole) {
  if (!sound(number)) return {};
  const double shown = rounded(number, decimals);
  std::array<char, 400> buffer{};
  const auto written =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                    std::abs(sound(shown) ? shown : number), std::chars_format::fixed, decimals);
  std::string text(buffer.data(), written.ptr);
  const std::size_t whole = text.find('.') == std::string::npos ? text.size() : text.find('.');
  if (static_cast<int>(whole) < leastWhole)
    text.insert(0, static_cast<std::size_t>(leastWhole) - whole, '0');
  return shown < 0 ? '-' + text : text;
}

double truncated(double x, int decimals) {
  return std::floor(x * powerOfTen(decimals)) / powerOfTen(decimals);
}

double rounded(double x, int decimals) {
  return std::nearbyint(x * powerOfTen(decimals)) / powerOfTen(decimals);
}

}  // namespace dialwright
