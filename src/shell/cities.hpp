// The built-in list of cities that a flat dial can show as points of its map.
#pragma once

#include <span>
#include <string_view>

namespace dialwright {

// One city, with its coordinates turned into the sun that stands at its zenith.
struct City {
  std::string_view name;  // UTF-8, as it is written on the dial
  double longitudeTerm;   // degrees: the longitude with West positive
  double
      storedDeclination;  // degrees: minus the latitude, but the latitude itself for the two poles

  // Degrees, North positive, of the poles as of all others.
  constexpr double latitude() const {
    const bool pole = storedDeclination == 90 || storedDeclination == -90;
    return pole ? storedDeclination : -storedDeclination;
  }
};

// All 166 cities in the order in which a dial draws them, roughly from East to West.
std::span<const City> cities();

}  // namespace dialwright
