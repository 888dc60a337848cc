// Splitting and joining degrees.
#include "board/conversions.hpp"

#include <string>
#include <string_view>

#include "numerics/fault.hpp"
#include "numerics/numbers.hpp"

namespace dialwright {

void GradiDecToSex(double decimal, double& degrees, double& minutes, double& seconds) {
  if (!sound(decimal)) return;
  const double size = std::abs(decimal);
  const double whole = std::floor(size);
  const double sixtieths = (size - whole) * 60;
  degrees = decimal < 0 ? -whole : whole;
  minutes = std::floor(sixtieths);
  seconds = (sixtieths - minutes) * 60;
}

HourParts roundedParts(double value) {
  constexpr double kFine = 1e4, kMinute = 60 * kFine, kWhole = 60 * kMinute;
  if (!sound(value * kWhole)) return {};
  const double total = rounded(value * kWhole, 0);
  const double whole = std::floor(total / kWhole);
  const double rest = total - whole * kWhole;
  const double minutes = std::floor(rest / kMinute);
  return {whole, minutes, (rest - minutes * kMinute) / kFine};
}

double GradiSexToDec(char sign, double degrees, double minutes, double seconds) {
  const double sum = degrees + minutes / 60 + seconds / 3600;
  if (!sound(sum)) return kFault;
  return numberOf((sign == '+' ? "" : "-") + textOf(sum));
}

char SoloNumeri(char key, bool allowSign) {
  constexpr char kBackspace = 8;
  const std::string_view allowed = allowSign ? "0123456789.+-" : "0123456789.";
  return key == kBackspace || allowed.find(key) != std::string_view::npos ? key : '\0';
}

}  // namespace dialwright
