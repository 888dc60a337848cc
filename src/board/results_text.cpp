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

// How figures are split: with all their digits, or rounded first.
class Splitter {
 public:
  explicit Splitter(bool rounding) : rounding_(rounding) {}

  // Hours, minutes and seconds of a time, all 0 when it is too large to be split.
  HourParts hours(double hours) const {
    if (rounding_) return roundedParts(hours);
    return sound(hours * 15) ? OreDaAngolo(hours * 15) : HourParts{};
  }

  // A time; what the clock is ahead is added to its whole hours.
  std::string timeText(double time, double clock = 0) const {
    const HourParts parts = hours(time);
    return spaced(parts.hours + clock, parts.minutes, parts.seconds);
  }

  // Degrees, minutes and seconds, each times the sign.
  std::string degreesText(double degrees, double sign) const {
    HourParts parts{};
    if (rounding_) {
      parts = roundedParts(std::abs(degrees));
    } else {
      GradiDecToSex(std::abs(degrees), parts.hours, parts.minutes, parts.seconds);
    }
    return spaced(sign * parts.hours, sign * parts.minutes, sign * parts.seconds);
  }

  std::string longitudeInTime(double longitude) const {
    const HourParts parts =
        rounding_ ? roundedParts(std::abs(longitude) / 15) : OreDaAngolo(std::abs(longitude));
    return signOf(longitude) + textOf(parts.hours) + " : " + textOf(parts.minutes) + " : " +
           textOf(parts.seconds);
  }

 private:
  bool rounding_;
};

std::string equationText(const BoardFigures& f, const SunOfMoment& sun) {
  const double fraction = std::abs(sun.equationFraction);
  return signOf(f.equation) + textOf(std::abs(sun.equationWhole)) + "  " + textFixed(fraction, 2) +
         "       " + textFixed(fraction * 60, 4);
}

}  // namespace

std::string resultsText(const BoardInput& in, const BoardFigures& f, const SunOfMoment& sun,
                        const Translator& T, std::string_view lineEnd) {
  const Splitter split(in.onlyTrue);
  const HourParts& alpha = sun.rightAscensionParts;
  std::vector<std::string> lines = {
      T("Sun's Azimuth   ") + textOf(f.azimuth),
      T("Declination of the dial: ") + textOf(f.wall) + "    " + T(f.wallSense()),
      T("Equation of time: ") + equationText(f, sun),
      "",
      T("Latitude:   ") + split.degreesText(in.Lat, signOrOne(in.Lat)),
      T("Longitude: ") + signOf(in.Lon) + split.degreesText(in.Lon, 1),
      "",
      T("Longitude of the standard meridian:  ") + textOf(in.zone * 15),
      T("Local longitude in h m s  ") + split.longitudeInTime(in.Lon),
      "",
      T("time of the dial:  ") + split.timeText(f.dialTime),
      T("noon:  ") + split.timeText(f.noon, f.clock),
      T("hour angle:   ") + textOf(f.hourAngle),
      "",
      T("Right Ascension : ") + (in.onlyTrue ? split.timeText(sun.rightAscension)
                                             : spaced(alpha.hours, alpha.minutes, alpha.seconds)),
      T("declination of the sun:  ") + textOf(f.declination),
      T("height of the sun: ") + textOf(f.height),
      T("Julian Day: ") + textOf(sun.julianDay),
      "",
      T("Daily Arc:      ") + split.timeText(f.arc)};
  if (f.sunSets()) {
    lines.push_back(T("sunrise at:   ") + split.timeText(f.sunrise(), f.clock));
    lines.push_back(T("sunset at:   ") + split.timeText(f.sunset(), f.clock));
  } else {
    lines.push_back(T("no sunset  "));
  }
  lines.push_back(T("declination of the mirror: ") + textOf(f.mirror));
  if (in.onlyTrue) lines.push_back(T("normal of the mirror: ") + textOf(f.mirrorNormal));
  std::string text;
  for (const std::string& line : lines) text.append(line).append(lineEnd);
  return text;
}

}  // namespace dialwright
