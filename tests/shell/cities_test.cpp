// Checks the built-in list of cities: its size, its order, and coordinates known from elsewhere.
#include "shell/cities.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace dialwright {
namespace {

TEST(Cities, HoldEveryNameOnceFromEastToWest) {
  ASSERT_EQ(cities().size(), 166u);
  std::set<std::string_view> names = {""};
  const City* previous = nullptr;
  for (const City& city : cities()) {
    EXPECT_TRUE(names.insert(city.name).second) << city.name;
    // Wisconsin's capital stands among the towns of the Ohio valley, and the poles come last. A
    // swapped pair, a lost sign or a place of the same name elsewhere is a step back to the East.
    if (city.name == "Madison" || city.name.ends_with(" Pole")) continue;
    EXPECT_TRUE(previous == nullptr || city.longitudeTerm > previous->longitudeTerm) << city.name;
    previous = &city;
  }
}

// Degrees of a sexagesimal number written without a point: 15302 is 153 degrees and 2 minutes.
double degrees(int sexagesimal) { return sexagesimal / 100 + sexagesimal % 100 / 60.0; }

// The time zone database knows some of the cities to the minute of arc. Both coordinates turn their
// sign, but for the poles.
TEST(Cities, AgreeWithTheTimeZoneDatabase) {
  const struct {
    std::string_view name;
    int latitude, longitude;  // North and East positive
  } rows[] = {{"Brisbane", -2728, 15302},     {"Singapore", 117, 10351}, {"Moscow", 5545, 3737},
              {"Nairobi", -117, 3649},        {"Roma", 4154, 1229},      {"Lisboa", 3843, -908},
              {"Buenos Aires", -3436, -5827}, {"New York", 4043, -7400}, {"Papeete", -1732, -14934},
              {"North Pole", 9000, 0},        {"South Pole", -9000, 0}};
  for (const auto& row : rows) {
    const auto city = std::ranges::find(cities(), row.name, &City::name);
    ASSERT_NE(city, cities().end()) << row.name;
    const bool pole = row.name.ends_with(" Pole");
    EXPECT_NEAR(city->storedDeclination, (pole ? 1 : -1) * degrees(row.latitude), 0.1) << row.name;
    EXPECT_NEAR(city->latitude(), degrees(row.latitude), 0.1) << row.name;
    EXPECT_NEAR(-city->longitudeTerm, degrees(row.longitude), 0.1) << row.name;
  }
}

}  // namespace
}  // namespace dialwright
