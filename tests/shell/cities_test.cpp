// Checks the built-in list of cities: its size, its order, and coordinates known from elsewhere.
#include "shell/cities.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace dialwright {
namespace {

const City* find(std::string_view name) {
  const auto found = std::ranges::find(cities(), name, &City::name);
  return found == cities().end() ? nullptr : &*found;
}

TEST(Cities, HoldEveryNameOnceFromWellingtonToThePoles) {
  ASSERT_EQ(cities().size(), 166u);
  std::set<std::string_view> names;
  for (const City& city : cities()) EXPECT_TRUE(names.insert(city.name).second) << city.name;
  EXPECT_FALSE(names.contains(""));
  EXPECT_EQ(cities()[163].name, "Midway Island");
  // Both coordinates turn their sign, but for the poles.
  for (const auto& [name, longitudeTerm, declination] :
       {std::tuple{"Wellington", -174.7752, 41.2855},
        {"Midway Island", 177.3761, -28.2101},
        {"North Pole", 0, 90},
        {"South Pole", 0, -90}}) {
    const City* city = find(name);
    ASSERT_TRUE(city) << name;
    EXPECT_EQ(city->longitudeTerm, longitudeTerm) << name;
    EXPECT_EQ(city->storedDeclination, declination) << name;
  }
}

// A swapped pair, a lost sign or a place of the same name elsewhere shows as a step back to the
// East.
TEST(Cities, RunFromEastToWest) {
  const auto places = cities().first(164);
  const City* previous = &places.front();
  for (const City& city : places.subspan(1)) {
    if (city.name == "Madison")
      continue;  // Wisconsin's capital stands among the towns of the Ohio valley
    EXPECT_GT(city.longitudeTerm, previous->longitudeTerm)
        << city.name << " after " << previous->name;
    previous = &city;
  }
}

// Degrees of a sexagesimal number written without a point: 15302 is 153 degrees and 2 minutes.
double degrees(int sexagesimal) { return sexagesimal / 100 + sexagesimal % 100 / 60.0; }

// The time zone database knows some of the cities to the minute of arc.
TEST(Cities, AgreeWithTheTimeZoneDatabase) {
  const struct {
    std::string_view name;
    int latitude, longitude;  // North and East positive
  } rows[] = {{"Brisbane", -2728, 15302}, {"Tokio", 3539, 13945},    {"Perth", -3157, 11551},
              {"Singapore", 117, 10351},  {"Moscow", 5545, 3737},    {"Nairobi", -117, 3649},
              {"Roma", 4154, 1229},       {"Paris", 4852, 220},      {"Lisboa", 3843, -908},
              {"Dakar", 1440, -1726},     {"New York", 4043, -7400}, {"Buenos Aires", -3436, -5827},
              {"Lima", -1203, -7703},     {"Mexico", 1924, -9909},   {"Los Angeles", 3403, -11814},
              {"Juneau", 5818, -13425},   {"Papeete", -1732, -14934}};
  for (const auto& row : rows) {
    const City* city = find(row.name);
    ASSERT_TRUE(city) << row.name;
    EXPECT_NEAR(-city->storedDeclination, degrees(row.latitude), 0.1) << row.name;
    EXPECT_NEAR(-city->longitudeTerm, degrees(row.longitude), 0.1) << row.name;
  }
}

}  // namespace
}  // namespace dialwright
