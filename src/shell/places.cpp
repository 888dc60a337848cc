// Projecting places.
#include "shell/places.hpp"

#include <array>
#include <cmath>
#include <optional>

#include "numerics/numbers.hpp"
#include "numerics/projection.hpp"
#include "sheet/pen.hpp"
#include "shell/cities.hpp"
#include "shell/window.hpp"

namespace dialwright {

namespace {

constexpr double kCityDot = 0.0009;  // radius, metres
constexpr double kNameDrop = 0.02;   // from a city to its name
constexpr double kInnerStar = 0.381966;

// The sun over a place, its angles in radians.
struct PlaceSun {
  double H, delta;
  double sinH = std::sin(H), cosH = std::cos(H), tanDelta = std::tan(delta);

  PlaceSun(double hourAngle, double declination) : H(hourAngle), delta(declination) {}
};

// The plane of the dial with its lit side, for suns given in degrees.
class PlaceMap {
 public:
  explicit PlaceMap(const Run& run)
      : p_(run.params), sheet_(run.sheet), projection_(planeOf(run)), onlyTrue_(run.trueShadows()) {
    const double declination = run.number(Field::txtDecl);
    const Piano plane = planeOf(run);
    sinLat_ = std::sin(plane.LatRad);
    cosLat_ = std::cos(plane.LatRad);
    level_ = plane.ZenitPiano == 0;
    backwards_ = std::abs(declination) >= 90;
    tanDecl_ = std::tan(plane.DeclRad);
    depth_ = over(1, std::tan(plane.ZenitPiano) * std::cos(plane.DeclRad));
    reach_ = level_ ? 1 : 1 + std::abs(tanDecl_) + std::abs(depth_);
  }

  // Projects a sun; what fails keeps its value from the sun before. False on the dark side.
  bool litImage(double hourAngle, double declination, Punto& image) {
    if (onlyTrue_) return trueImage(hourAngle, declination, image);
    const PlaceSun sun(p_.radians(hourAngle), p_.radians(declination));
    if (!sound(sun.H) || !sound(sun.delta) || !isLit(sun)) return false;
    assign(image, projection_(sun.sinH, sun.cosH, sun.tanDelta));
    return true;
  }

  // Projects a sun that is up and before the plane, by the plane's normal: false for any other.
  bool trueImage(double hourAngle, double declination, Punto& image) const {
    const double H = p_.radians(hourAngle), delta = p_.radians(declination);
    const double sinH = std::sin(H), cosH = std::cos(H);
    const double sine = std::sin(delta), cosine = std::cos(delta), tangent = std::tan(delta);
    const double height = sinLat_ * sine + cosLat_ * cosine * cosH;
    const bool before = projection_.lit(sinH, cosH, tangent) == (cosine > 0);
    if (!sound(height) || !(height > 0) || !before) return false;
    const Punto shadow = projection_(sinH, cosH, tangent);
    if (!sound(shadow.x) || !sound(shadow.y)) return false;
    image = shadow;
    return isShown(sheet_, image, CurveFamily::Marks, {H, delta});
  }

  // Projects a sun on either side.
  void image(double hourAngle, double declination, Punto& image) const {
    const double H = p_.radians(hourAngle);
    assign(image, projection_(std::sin(H), std::cos(H), std::tan(p_.radians(declination))));
  }

 private:
  // How far a sun in that direction (to the South, to the West, to the zenith) is behind the plane.
  double behind(double south, double west, double up) const {
    return level_ ? -up : -south - west * tanDecl_ - up * depth_;
  }
  bool tellsLit(double behind) const { return backwards_ ? behind > 0 : behind < 0; }

  // The azimuth and the zenith distance of a sun tell its side. Where its direction tells the same
  // beyond all doubt of rounding, they are left until a later sun may need them.
  bool isLit(const PlaceSun& sun) {
    // The sun's direction over the cosine of its declination, and the square of its length.
    const double south = southOf(sun), up = sinLat_ * sun.tanDelta + cosLat_ * sun.cosH;
    const double squared = 1 + sun.tanDelta * sun.tanDelta;
    const double side = behind(south, sun.sinH, up);
    const auto clear = [squared](double part, double whole) {
      constexpr double kDoubt = 1e-6;
      return part * part > kDoubt * kDoubt * whole * whole * squared;
    };
    constexpr double kNearPole = 1.57, kNearZenith = 1 - 1e-6;
    if (clear(side, reach_) && clear(south, 1) && sun.sinH != 0 &&
        std::abs(sun.delta) < kNearPole && up * up < kNearZenith * squared) {
      unlocated_ = sun;
      return tellsLit(side);
    }
    if (unlocated_) locate(*unlocated_);
    unlocated_.reset();
    locate(sun);
    const double level = std::sin(zenithDistance_);
    return tellsLit(
        behind(level * std::cos(azimuth_), level * std::sin(azimuth_), std::cos(zenithDistance_)));
  }

  // Towards the South, over the cosine of the declination.
  double southOf(const PlaceSun& sun) const { return sinLat_ * sun.cosH - cosLat_ * sun.tanDelta; }

  void locate(const PlaceSun& sun) {
    assign(azimuth_, arctan(over(sun.sinH, southOf(sun))));
    // The hour angle tells which half turn is meant. At noon itself it doesn't: the sun then counts
    // as in the South.
    if (Sgn(std::sin(azimuth_)) != Sgn(sun.sinH)) {
      azimuth_ += azimuth_ <= 0 ? p_.PiGreco : -p_.PiGreco;
    }
    assign(zenithDistance_,
           p_.ArcCos(sinLat_ * std::sin(sun.delta) + cosLat_ * std::cos(sun.delta) * sun.cosH));
  }

  // A dial without a field for its inclination is an upright wall, whatever an earlier dial has
  // left in the record.
  static Piano planeOf(const Run& run) {
    const DialParams& p = run.params;
    const double inclination = run.panel[Field::txtReclinZ].visible ? p.InclinGradi : 90;
    const double declination = inclination == 0 ? 0 : run.number(Field::txtDecl);
    return {p.Stilo, p.radians(run.number(Field::txtLAT)), p.radians(declination),
            p.radians(inclination)};
  }

  const DialParams& p_;
  const SheetPlot& sheet_;
  Projection projection_;
  double sinLat_ = 0, cosLat_ = 0, tanDecl_ = 0, depth_ = 0;
  double reach_ = 0;  // the most that a side of a direction of length 1 can be
  double azimuth_ = 0, zenithDistance_ = 0;
  std::optional<PlaceSun> unlocated_;  // the sun before, when these are not its own
  bool level_ = false;
  bool backwards_ = false;
  bool onlyTrue_;
};

// Without "Inv" the stored declinations count as they are, minus the latitude: the map is upside
// down, unless only true shadows are drawn.
double mapSign(const Run& run) { return run.on(Field::ckAssi) || run.trueShadows() ? -1 : 1; }

std::string withoutDigits(std::string_view text) {
  std::string name;
  for (const char c : text) {
    if (c < '0' || c > '9') name += c;
  }
  return name;
}

template <class Wanted>
void drawRows(Run& run, const WorldTable& world, Rgb colour, Wanted wanted) {
  PlaceMap map(run);
  const Window window(run);
  const double sigma = mapSign(run);
  double filter = 0;
  assign(filter, run.number(Field::Filtertxt));
  Pen pen(run.sheet, filter);
  pen.dip({colour});
  Punto image;
  std::uint32_t stretch = 0;
  bool first = true;
  for (const WorldTable::Row& row : world.rows) {
    if (!wanted(row)) continue;
    first = first || row.Tratto != stretch;
    stretch = row.Tratto;
    if (!map.litImage(row.AngoloOrario, sigma * row.Declinazione, image)) {
      first = first || run.trueShadows();  // the dark side parts a run
      continue;
    }
    pen.visit(image, drawIf(!first && window.holds(image)));
    first = false;
  }
}

}  // namespace

WorldTable readWorld(std::string_view text, double longitude) {
  WorldTable world;
  std::string_view lastStretch;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    const std::size_t first = line.find(';');
    const std::size_t second = first == std::string_view::npos ? first : line.find(';', first + 1);
    if (second == std::string_view::npos) continue;
    const std::string_view stretch = line.substr(0, first);
    const double latitude = numberOf(line.substr(first + 1, second - first - 1));
    const double east = numberOf(line.substr(second + 1));
    if (!sound(latitude) || !sound(east)) continue;
    if (world.rows.empty() || stretch != lastStretch) {
      std::string country = withoutDigits(stretch);
      if (world.countries.empty() || country != world.countries.back())
        world.countries.push_back(std::move(country));
    }
    const std::uint32_t previous = world.rows.empty() ? 0 : world.rows.back().Tratto;
    const std::uint32_t number =
        !world.rows.empty() && stretch == lastStretch ? previous : previous + 1;
    lastStretch = stretch;
    world.rows.push_back({-east - longitude, -latitude,
                          static_cast<std::uint32_t>(world.countries.size() - 1), number});
  }
  return world;
}

void chooseCountry(Panel& panel, std::string_view country) {
  panel.setText(Field::cmbStati, country);
  panel[Field::Distance1].visible = false;
  panel[Field::lblFiltro].visible = true;
}

void CaricaMondo(Run& run) {
  run.sheet.Messaggio(run.T("Map"));
  run.panel.show(Field::Filtertxt, true);
  chooseCountry(run.panel, kWholeWorld);
  run.panel[Field::cmbStati].enabled = true;
  run.panel[Field::cmdPlot].enabled = true;
}

void DisegnaMondo(Run& run, const WorldTable& world) {
  run.hourglass(true);
  run.sheet.Messaggio(run.T("Map"));
  const std::string& chosen = run.panel.text(Field::cmbStati);
  if (chosen == kWholeWorld) {
    drawRows(run, world, palette(11), [](const WorldTable::Row&) { return true; });
  } else {
    drawRows(run, world, palette(12),
             [&](const WorldTable::Row& row) { return world.countries[row.Paese] == chosen; });
  }
  run.panel.setState(Field::Option_P, false);
  run.hourglass(false);
}

void MappaCitta(Run& run) {
  run.sheet.Messaggio(run.T("Map"));
  PlaceMap map(run);
  const double sigma = mapSign(run);
  const double longitude = run.number(Field::txtLON);
  const double east = run.number(Field::txt_R2), west = run.number(Field::TxtRadius);
  Punto image;
  const auto draw = [&](std::string_view name, double hourAngle, double declination) {
    if (!(hourAngle > east && hourAngle < west)) return;
    if (!map.litImage(hourAngle, sigma * declination, image)) return;
    circle(run.sheet, image, kCityDot, palette(14), {.fill = palette(12)});
    run.sheet.ForeColor = palette(10);
    run.sheet.Dati(name, image.x, -(image.y - kNameDrop));
  };
  for (const City& city : cities()) {
    const bool straight = run.trueShadows();  // the poles too
    draw(city.name, city.longitudeTerm - longitude,
         straight ? sigma * city.latitude() : city.storedDeclination);
  }
  if (!run.trueShadows()) draw("", 0, 0);  // the list is read one row past its last city
}

void PuntoOpzionale(Run& run) {
  run.sheet.Messaggio(run.T("Optional position"));
  const DialParams& p = run.params;
  Punto image;
  const double hourAngle = run.number(Field::txtAO) - run.number(Field::txtLON);
  const double declination = run.number(Field::txtDelta);
  if (run.trueShadows()) {
    if (!PlaceMap(run).trueImage(hourAngle, declination, image)) return;
  } else {
    PlaceMap(run).image(hourAngle, declination, image);
  }
  const double radius = (p.Stilo / 20) * std::sin(p.radians(18)) / std::sin(p.radians(126));
  circle(run.sheet, image, radius, palette(14), {.fill = palette(9)});
  StellaCinquePunte(run.sheet, image.x, image.y, p.Stilo / 20, palette(15));
}

void StellaCinquePunte(SheetPlot& sheet, double x, double y, double R, Rgb colour) {
  const Angles angles;
  // Outer vertices at 0, 72 ... degrees, inner ones half way between.
  const auto vertex = [&](int degrees) {
    const double radius = degrees % 72 == 0 ? R : kInnerStar * R;
    return Punto{x + radius * std::cos(angles.radians(degrees)),
                 y + radius * std::sin(angles.radians(degrees))};
  };
  constexpr std::array kRound = {72, 108, 144, 180, 216, 252, 288, 324, 0, 36, 72};
  for (std::size_t i = 0; i + 1 < kRound.size(); ++i)
    line(sheet, vertex(kRound[i]), vertex(kRound[i + 1]), colour);
}

}  // namespace dialwright
