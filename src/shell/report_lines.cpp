// The forms of the report's figures.
#include "shell/report_lines.hpp"

#include <cmath>

#include "numerics/numbers.hpp"

namespace dialwright {

namespace {

HourParts partsOf(double hours) { return OreDaAngolo(std::abs(hours) * 15); }

std::string hoursOf(const HourParts& parts, double hours) {
  return (hours < 0 ? "-" : "") + textOf(parts.hours) + "h " + textOf(parts.minutes) + "' ";
}

}  // namespace

void Report::say(std::initializer_list<ReportRow> rows) const {
  for (const ReportRow& row : rows) {
    std::string text = run.T(row.label);
    text += row.figure;
    text += row.unit;
    say(text);
  }
}

std::string cut(double value) { return textOf(truncated(value, 5)); }

std::string cutDegrees(const Angles& angles, double radians) {
  return cut(angles.degrees(radians));
}

std::string roundedText(double value, int decimals) { return textOf(rounded(value, decimals)); }

std::string roundedDegrees(const Angles& angles, double radians, int decimals) {
  return roundedText(angles.degrees(radians), decimals);
}

std::string hoursMinutes(double hours) { return hoursOf(partsOf(hours), hours); }

std::string hoursMinutesSeconds(double hours) {
  const HourParts parts = partsOf(hours);
  return hoursOf(parts, hours) + textOf(std::floor(parts.seconds)) + " ''";
}

}  // namespace dialwright
