// The number of a text and the text of a number: how fields are read and how figures are written.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace dialwright {

// The longest numeric prefix of a text after leading blanks: digits with "." as the only decimal
// point and an optional exponent. 0 when there is none; a fault (NaN) when the number is too large
// for a double.
double numberOf(std::string_view text);

// Up to 15 significant digits, "." as decimal point, no trailing zeros, an exponent for the very
// small and the very large ("0.2", "15", "1E-05"). An empty text for a fault.
std::string textOf(double number);

// The same, written at `to`, which has room for kNumberLength characters; gives the end of what it
// wrote.
inline constexpr std::size_t kNumberLength = 32;
char* writeNumber(char* to, double number);

// The same with its sign place: a leading blank for numbers that are not negative.
std::string textWithSign(double number);

// A number in a fixed form: that many digits before the point at least (filled with zeros) and
// after it ("0.0000").
std::string textFixed(double number, int decimals, int leastWhole = 1);

// Int(x * 10^decimals) / 10^decimals: floored, so that a negative figure goes down.
double truncated(double x, int decimals);

// Rounded to so many decimals, half to even.
double rounded(double x, int decimals);

}  // namespace dialwright
