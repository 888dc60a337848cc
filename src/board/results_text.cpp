// Writing the results text.
#include <vector>

#include "board/conversions.hpp"
#include "board/declinazione.hpp"
#include "numerics/numbers.hpp"

namespace dialwright {

namespace {

std::string signOf(double value) { return value < 0 ? "-" : " "; }

std::string spaced(double first, double minutes, double seconds) {
  return textOf(first) + " " + textOf(minutes) + " " + textOf(seconds);
}

// Hours, minutes and seconds of a time, all 0 when it is too large to be split.
HourParts partsOf(double hours) {
  return sound(hours * 15) ? OreDaAngolo(hours * 15) : HourParts{};
}

// A time; what the clock is ahead is added to its whole hours.
std::string timeText(double hours, double clock = 0) {
  const HourParts parts = partsOf(hours);
  return spaced(parts.hours + clock, parts.minutes, parts.seconds);
}

// Degrees, minutes and seconds, each times the sign.
std::string degreesText(double degrees, double sign) {
  double whole = 0, minutes = 0, seconds = 0;
  GradiDecToSex(std::abs(degrees), whole, minutes, seconds);
  return spaced(sign * whole, sign * minutes, sign * seconds);
}

std::string equationText(const BoardFigures& f, const SunOfMoment& sun) {
  const double fraction = std::abs(sun.equationFraction);
  return signOf(f.equation) + textOf(std::abs(sun.equationWhole)) + "  " + textFixed(fraction, 2) +
         "       " + textFixed(fraction * 60, 4);
}

std::string longitudeInTime(double longitude) {
  const HourParts parts = OreDaAngolo(std::abs(longitude));
  return signOf(longitude) + textOf(parts.hours) + " : " + textOf(parts.minutes) + " : " +
         textOf(parts.seconds);
}

}  // namespace

std::string resultsText(const BoardInput& in, const BoardFigures& f, const SunOfMoment& sun,
                        const Translator& T, std::string_view lineEnd) {
  std::vector<std::string> lines = {
      T("Sun's Azimuth   ") + textOf(f.azimuth),
      T("Declination of the dial: ") + textOf(f.wall) + "    " + T(f.wallSense()),
      T("Equation of time: ") + equationText(f, sun),
      "",
      T("Latitude:   ") + degreesText(in.Lat, signOrOne(in.Lat)),
      T("Longitude: ") + signOf(in.Lon) + degreesText(in.Lon, 1),
      "",
      T("Longitude of the standard meridian:  ") + textOf(in.zone * 15),
      T("Local longitude in h m s  ") + longitudeInTime(in.Lon),
      "",
      T("time of the dial:  ") + timeText(f.dialTime),
      T("noon:  ") + timeText(f.noon, f.clock),
      T("hour angle:   ") + textOf(f.hourAngle),
      "",
      T("Right Ascension : ") + spaced(sun.rightAscensionParts.hours,
                                       sun.rightAscensionParts.minutes,
                                       sun.rightAscensionParts.seconds),
      T("declination of the sun:  ") + textOf(f.declination),
      T("height of the sun: ") + textOf(f.height),
      T("Julian Day: ") + textOf(sun.julianDay),
      "",
      T("Daily Arc:      ") + timeText(f.arc)};
  if (f.sunSets()) {
    lines.push_back(T("sunrise at:   ") + timeText(f.sunrise(), f.clock));
    lines.push_back(T("sunset at:   ") + timeText(f.sunset(), f.clock));
  } else {
    lines.push_back(T("no sunset  "));
  }
  lines.push_back(T("declination of the mirror: ") + textOf(f.mirror));
  std::string text;
  for (const std::string& line : lines) text.append(line).append(lineEnd);
  return text;
}

}  // namespace dialwright
