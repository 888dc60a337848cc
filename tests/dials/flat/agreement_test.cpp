// The flat dials against each other: what several of them draw, each by its own method, is the same
// figure to 0.01 mm.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

#include "dials/flat/frinter.hpp"
#include "dials/flat/inclinati.hpp"
#include "dials/flat/nuovo_proiettivo.hpp"
#include "dials/flat/proiettivo.hpp"
#include "dials/flat/universale.hpp"
#include "dials/flat/verticale_luce.hpp"
#include "dials/flat/verticale_sferica.hpp"
#include "support/flat_wall.hpp"

namespace dialwright {
namespace {

using sky::Spot;
constexpr double kAgreement = 1e-5;  // metres

struct Method {
  const char* name;
  Item item;
  Driver driver;
  Field variable = Field::None;
};
const Method kLight{"1", Item::M_Light, DisegnaVerticaleLuce};
const Method kSpaceX{"2 X", Item::M_Inclinati, DisegnaInclinati, Field::optX};
const Method kSpaceY{"2 Y", Item::M_Inclinati, DisegnaInclinati, Field::optY};
const Method kFormer{"3", Item::M_Proiettivo, DisegnaProiettivo};
const Method kLatter{"4", Item::M_nProiettivo, DisegnaNuovoProiettivo};
const Method kPlane{"5", Item::M_Frinter, DisegnaFrinter};
const Method kSphere{"6", Item::mnuVertSph, DisegnaVerticale};
const Method kUniversal{"7", Item::mnuUni, DisegnaUniversale};

enum class Family { Hours, Curves, Equinoctial };

// A family's lines or curves by what they stand for: the hour, or the colour and side of the
// equinoctial.
using Figures = std::map<int, std::vector<Spot>>;

Figures figuresOf(const Method& method, const FlatSite& site, Family family) {
  FlatWall wall(method.item, method.driver, site);
  wall.set(Field::x1txt, "-1")
      .set(Field::x2txt, "1")
      .set(Field::y1txt, "1")
      .set(Field::y2txt, "-1");
  if (method.variable != Field::None) wall.check(method.variable);
  wall.set(Field::txt_Definition, "1").set(Field::TxtInizio, "7").set(Field::TxtFine, "17");
  wall.check(family == Family::Hours    ? Field::chkOreAstronomiche
             : family == Family::Curves ? Field::Ck_DayLightCurves
                                        : Field::ck_Equinoziale);
  wall.run();
  Figures figures;
  const auto add = [&](double x, double y, Rgb colour) {
    const double H = std::remainder(wall.hourAngle(x, y), 180);
    const double d = wall.declination(x, y);
    int key = 0;
    if (family == Family::Hours) {
      if (colour != palette(7)) return;
      key = static_cast<int>(std::lround(H / 7.5));
      // Lines that are no hours: to the light graph's centre.
      if (wall.offHour(7.5 * key, x, y) > 1e-3) return;
    } else if (family == Family::Curves) {
      // The solstice stands at 23.45 degrees in program 2 and is left out.
      if (colour != palette(13) && colour != palette(11)) return;
      key = static_cast<int>(std::lround(d));
    } else {
      if (std::abs(d) > 1e-3) return;
    }
    figures[key].push_back({x, -y});
  };
  for (const PointRecord& p : wall.sheet.list().points) add(p.x, p.y, p.colour);
  for (const LineRecord& l : wall.sheet.list().lines) {
    if (family == Family::Curves) {
      // A curve's short segments by an end; longer lines in these colours are the style's.
      if (std::hypot(l.x2 - l.x1, l.y2 - l.y1) < 0.01) add(l.x1, l.y1, l.colour);
      continue;
    }
    for (const double part : {0.2, 0.7}) {
      add(l.x1 + part * (l.x2 - l.x1), l.y1 + part * (l.y2 - l.y1), l.colour);
    }
  }
  return figures;
}

// The line through a row's first spot and the one farthest from it, as a conic: its last three
// coefficients.
std::array<double, 6> lineThrough(const std::vector<Spot>& row) {
  const Spot a = row.front();
  const Spot b = *std::max_element(row.begin(), row.end(), [a](Spot s, Spot t) {
    return sky::distance(a, s) < sky::distance(a, t);
  });
  return {0, 0, 0, a.y - b.y, b.x - a.x, a.x * b.y - b.x * a.y};
}

// The conic through five spots of a curve, as its six coefficients.
std::array<double, 6> monomials(Spot p) { return {p.x * p.x, p.x * p.y, p.y * p.y, p.x, p.y, 1}; }
std::array<double, 6> conicThrough(const std::vector<Spot>& curve) {
  std::array<std::array<double, 6>, 5> m;
  for (std::size_t i = 0; i < 5; ++i) m[i] = monomials(curve[i * (curve.size() - 1) / 4]);
  std::array<std::size_t, 6> column{0, 1, 2, 3, 4, 5};
  for (std::size_t i = 0; i < 5; ++i) {  // elimination with full pivoting
    std::size_t row = i, col = i;
    for (std::size_t r = i; r < 5; ++r) {
      for (std::size_t c = i; c < 6; ++c) {
        if (std::abs(m[r][column[c]]) > std::abs(m[row][column[col]])) row = r, col = c;
      }
    }
    std::swap(m[i], m[row]);
    std::swap(column[i], column[col]);
    for (std::size_t r = 0; r < 5; ++r) {
      if (r == i) continue;
      const double factor = m[r][column[i]] / m[i][column[i]];
      for (std::size_t c = i; c < 6; ++c) m[r][column[c]] -= factor * m[i][column[c]];
    }
  }
  std::array<double, 6> conic{};
  conic[column[5]] = 1;
  for (std::size_t i = 0; i < 5; ++i) conic[column[i]] = -m[i][column[5]] / m[i][column[i]];
  return conic;
}

double distanceTo(const std::array<double, 6>& k, Spot p) {
  const std::array<double, 6> m = monomials(p);
  double value = 0;
  for (std::size_t i = 0; i < 6; ++i) value += k[i] * m[i];
  return std::abs(value) /
         std::hypot(2 * k[0] * p.x + k[1] * p.y + k[3], k[1] * p.x + 2 * k[2] * p.y + k[4]);
}

void expectAgreement(const Method& a, const Method& b, const FlatSite& site, Family family,
                     std::size_t least) {
  SCOPED_TRACE(std::string(a.name) + " and " + b.name + " at " + textOf(site.latitude) + ' ' +
               textOf(site.declination) + ' ' + textOf(site.reclination));
  const Figures ours = figuresOf(a, site, family), theirs = figuresOf(b, site, family);
  std::size_t shared = 0;
  for (const auto& [key, spots] : ours) {
    const auto other = theirs.find(key);
    if (other == theirs.end() || other->second.size() < (family == Family::Curves ? 20u : 2u))
      continue;
    ++shared;
    const std::vector<Spot>& row = other->second;
    const std::array<double, 6> shape =
        family == Family::Curves ? conicThrough(row) : lineThrough(row);
    for (const Spot& s : spots) {
      if (std::hypot(s.x, s.y) > 1) continue;
      ASSERT_LT(distanceTo(shape, s), kAgreement) << key;
    }
  }
  EXPECT_GE(shared, least);
}

void expectAll(const Method& a, const Method& b, const FlatSite& site, std::size_t hours) {
  expectAgreement(a, b, site, Family::Hours, hours);
  expectAgreement(a, b, site, Family::Curves, 2);
  expectAgreement(a, b, site, Family::Equinoctial, 1);
}

TEST(Agreement, VerticalWalls) {
  for (const FlatSite& site : {FlatSite{45.7438, -14.57}, {40, 50}, {60, -30}}) {
    expectAll(kLight, kPlane, site, 16);
    expectAll(kFormer, kPlane, site, 10);
    expectAll(kLatter, kPlane, site, 14);
    expectAll(kSpaceX, kPlane, site, 10);
    expectAll(kLight, kLatter, site, 14);
    expectAll(kUniversal, kPlane, site, 14);
    expectAll(kSphere, kUniversal, site, 13);
    expectAll(kSphere, kLight, site, 13);
  }
}

TEST(Agreement, InclinedPlanes) {
  for (const FlatSite& site :
       {FlatSite{45.7438, -14.57, 30}, {40, 50, -20}, {55, 150, 50}, {30, -100, 60}}) {
    expectAll(kSpaceX, kSpaceY, site, 10);
    expectAll(kFormer, kSpaceX, site, 10);
    expectAll(kLatter, kSpaceY, site, 10);
    expectAll(kLatter, kFormer, site, 10);
    expectAll(kUniversal, kLatter, site, 8);
    expectAll(kUniversal, kSpaceX, site, 8);
  }
}

// One figure in both variables, sample by sample.
TEST(Agreement, TheAnalemmaOfBothVariables) {
  std::vector<PointRecord> drawn[2];
  for (const bool y : {false, true}) {
    FlatWall wall(Item::M_Inclinati, DisegnaInclinati, {45.7438, -14.57, 30});
    wall.check(y ? Field::optY : Field::optX).check(Field::ck_Lemniscate).run();
    drawn[y] = wall.pointsIn(palette(y ? 12 : 14));
  }
  ASSERT_EQ(drawn[0].size(), 366u);
  ASSERT_EQ(drawn[1].size(), 366u);
  for (std::size_t i = 0; i < 366; ++i) {
    ASSERT_LT(sky::distance({drawn[0][i].x, drawn[0][i].y}, {drawn[1][i].x, drawn[1][i].y}), 1e-8);
  }
}

}  // namespace
}  // namespace dialwright
