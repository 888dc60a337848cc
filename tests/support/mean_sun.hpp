// The equation of time from Kepler's ellipse, for the analemmas of the shadow models.
#pragma once

#include <algorithm>
#include <cmath>

#include "support/sky.hpp"

namespace dialwright::sky {

// Radians of hour angle at a true longitude of the sun (radians), good to a quarter of a minute in
// our century.
inline double equationOfTime(double trueLongitude) {
  constexpr double eccentricity = 0.0167;
  const double anomaly = trueLongitude - rad(282.9);
  const double meanLongitude = trueLongitude - 2 * eccentricity * std::sin(anomaly) +
                               0.75 * eccentricity * eccentricity * std::sin(2 * anomaly);
  const double rightAscension =
      std::atan2(std::cos(rad(23.44)) * std::sin(trueLongitude), std::cos(trueLongitude));
  return std::remainder(meanLongitude - rightAscension, 2 * std::numbers::pi);
}

// How far (seconds of time) an apparent less mean hour angle (radians) lies from the equation of
// time of the nearer one of the two days that have the declination.
inline double secondsFromEquationOfTime(double apparentLessMean, double declination) {
  const double sine = std::clamp(std::sin(declination) / std::sin(rad(23.4464)), -1.0, 1.0);
  const auto miss = [&](double longitude) {
    return std::abs(
        std::remainder(apparentLessMean - equationOfTime(longitude), 2 * std::numbers::pi));
  };
  return deg(std::min(miss(std::asin(sine)), miss(std::numbers::pi - std::asin(sine)))) * 240;
}

}  // namespace dialwright::sky
