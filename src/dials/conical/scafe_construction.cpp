// The construction of a conical dial: the section of the stone in the meridian, the dial's edge in
// plan, and the lengths that a stone is cut by.
//
// The section has North on its right; Q stands at twice the summer solstice's distance below the
// development's vertex. Its letters:
//   O  the vertex of the cone             Q  the tip of the style, on the cone's axis
//   B  the foot of the style, where the noon generator OE meets the level top
//   C, P, D  the noon shadows of the winter solstice, the equinox and the summer solstice on OE
//   U, Q, J  the centres of these days' circles, on the axis
//   L, M, N  the other ends of these circles' diameters, on the opposite generator OI
//   E, I  the lower ends of the two generators; TxtDate says how far they run beyond D and N, in
//         tenths of the style
//   H  where the plane of the summer solstice's circle, the front of an ancient dial, meets the top
//   A, F, K  the stone's outline A B E F K: the rear edge of its top, and its foot in front and
//   rear
// The plan has the North on its right, too, and the level top's line of symmetry on the axis:
//   R, S, G  B, Q and H in plan           T  the focus of the edge that lies next to R
#include "dials/conical/scafe_construction.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "dials/pen.hpp"
#include "numerics/numbers.hpp"
#include "shell/dispatch.hpp"

namespace dialwright {

namespace {

constexpr double kTenths = 10;         // of the style to a unit of TxtDate
constexpr double kStoneMargin = 0.5;   // of the style: the stone behind and under the cone
constexpr double kConicStep = 0.0015;  // radians
constexpr double kTipMark = 0.005;     // metres

// The section's lines, letter to letter.
struct SectionLine {
  char from, to;
  int colour, width;
  const char* layer;
};
constexpr SectionLine kSectionLines[] = {
    {'A', 'B', 7, 2, "Section"},  {'B', 'E', 7, 2, "Section"},  {'E', 'F', 7, 2, "Section"},
    {'F', 'K', 7, 2, "Section"},  {'K', 'A', 7, 2, "Section"},  {'O', 'B', 8, 1, "Cone"},
    {'O', 'I', 8, 1, "Cone"},     {'O', 'J', 8, 1, "Cone"},     {'B', 'H', 8, 1, "Cone"},
    {'B', 'Q', 15, 4, "Style"},   {'Q', 'C', 9, 2, "Winter"},   {'C', 'L', 9, 2, "Winter"},
    {'Q', 'P', 10, 2, "Equinox"}, {'P', 'M', 10, 2, "Equinox"}, {'Q', 'D', 12, 4, "Summer"},
    {'D', 'N', 12, 4, "Summer"}};

// The points of the drawing by their letters.
class Letters {
 public:
  Punto& operator[](char letter) { return points_[static_cast<std::size_t>(letter - 'A')]; }
  Punto operator[](char letter) const { return points_[static_cast<std::size_t>(letter - 'A')]; }
  double distance(const char* pair) const {
    const Punto a = (*this)[pair[0]], b = (*this)[pair[1]];
    return std::hypot(a.x - b.x, a.y - b.y);
  }

  static constexpr char kFirst = 'A', kLast = 'U';

 private:
  std::array<Punto, kLast - kFirst + 1> points_{};
};

// A conic by its polar curve r = p / (1 + e * cos(theta)) about the focus next to its vertex.
struct Conic {
  double e = 0;
  double x0 = 0;      // where the plan stands, metres
  double focus = 0;   // x0, but for the parabola
  double second = 0;  // the other focus and the centre; none, and 0, for the parabola
  double centre = 0;
  double a = 0, b = 0, c = 0;
  double p = 0;

  double vertex() const { return focus + over(p, 1 + e); }
};

class Construction {
 public:
  Construction(Run& run, const Cone& cone) : run_(run), sheet_(run.sheet), cone_(cone) {
    solstice_ = run.params.radians(kSolstice);
    assign(rho_, cone.RaggioSviluppo(solstice_));
    const double radius = cone.circleRadius(solstice_);
    assign(top_, cone.style + over(radius * std::tan(solstice_), std::cos(cone.phi)));
  }

  void all();

 private:
  void placeSection();
  void placePlan();
  Conic conicOfEdge() const;

  void section();
  void conic();
  void front();
  void style();
  void letters();
  void usefulSector();
  void table();
  void stroke(Punto from, Punto to, const Ink& ink);

  Run& run_;
  SheetPlot& sheet_;
  const Cone& cone_;
  double solstice_ = 0;  // radians
  double rho_ = 0;       // the summer solstice's distance from the vertex
  double top_ = 0;       // of the style's foot from the front, along the level top
  Letters at_;
  Conic conic_;
};

void Construction::all() {
  placeSection();
  conic_ = conicOfEdge();
  placePlan();
  section();
  conic();
  style();
  letters();
  usefulSector();
  table();
}

void Construction::stroke(Punto from, Punto to, const Ink& ink) {
  if (sound(from.x + from.y + to.x + to.y)) line(sheet_, from, to, ink);
}

// --- The section

void Construction::placeSection() {
  const double S = cone_.style, phi = cone_.phi, sigma = cone_.sigma;
  const auto along = [](Punto from, double way, double below) {  // southwards, down by an angle
    Punto to = from;
    assign(to, {from.x - way * std::cos(below), from.y - way * std::sin(below)});
    return to;
  };
  const Punto tip{0, -2 * rho_};
  const Punto vertex = along(tip, -over(S * std::sin(phi + sigma), std::sin(sigma)), phi);
  at_['Q'] = tip;
  at_['O'] = vertex;
  at_['B'] = along(vertex, cone_.styleFoot(), phi + sigma);
  at_['H'] = {at_['B'].x - top_, tip.y};
  const auto day = [&](double delta, char noon, char centre, char opposite) {
    const double rho = cone_.RaggioSviluppo(delta);
    at_[noon] = along(vertex, rho, phi + sigma);
    at_[opposite] = along(vertex, rho, phi - sigma);
    if (centre != 'Q') at_[centre] = along(vertex, rho * std::cos(sigma), phi);
  };
  day(-solstice_, 'C', 'U', 'L');
  day(0, 'P', 'Q', 'M');
  day(solstice_, 'D', 'J', 'N');

  double further = 0;
  assign(further, run_.number(Field::TxtDate) * S / kTenths);
  at_['E'] = along(vertex, rho_ + further, phi + sigma);
  at_['I'] = along(vertex, rho_ + further, phi - sigma);
  const double margin = kStoneMargin * S;
  at_['A'] = {std::max(at_['B'].x, at_['E'].x) + margin, at_['B'].y};
  at_['F'] = {at_['E'].x, at_['E'].y - margin};
  at_['K'] = {at_['A'].x, at_['F'].y};
}

void Construction::section() {
  for (const SectionLine& l : kSectionLines) {
    stroke(at_[l.from], at_[l.to], {palette(l.colour), sheet_.layer(l.layer), l.width});
  }
}

// --- The edge in plan

// The level plane through the style cuts the cone in a conic whose vertex is the style's foot. The
// ellipse has the eccentricity of the edge but not its size: its half axis is worked out with
// cos(sigma) on purpose, where the section of the cone has sin(phi - sigma).
Conic Construction::conicOfEdge() const {
  const double S = cone_.style, phi = cone_.phi, sigma = cone_.sigma;
  Conic k;
  assign(k.e, cone_.eccentricity());
  if (k.e == 1) {
    k.x0 = 10 * S;
    k.p = 2 * S * std::sin(phi) * std::sin(phi);
    k.focus = k.x0 - (-k.p / 2 + top_);
    return k;
  }
  const bool ellipse = k.e < 1;
  k.x0 = (ellipse ? 9 : 12) * S;
  k.focus = k.x0;
  if (ellipse) {
    assign(k.a, std::abs(S / 2 * (over(std::sin(phi + sigma), std::cos(sigma)) + 1)));
  } else {
    assign(k.a, std::abs(over(S * std::sin(phi) * std::cos(sigma), std::sin(sigma - phi))));
  }
  assign(k.c, k.e * k.a);
  assign(k.b, root(ellipse ? k.a * k.a - k.c * k.c : k.c * k.c - k.a * k.a));
  assign(k.p, over(k.b * k.b, k.a));
  const double inwards = ellipse ? -1 : 1;
  k.centre = k.focus + inwards * k.c;
  k.second = k.focus + inwards * 2 * k.c;
  return k;
}

void Construction::placePlan() {
  at_['T'] = {conic_.focus, 0};
  assign(at_['R'].x, conic_.vertex());
  at_['S'] = {at_['R'].x - cone_.style, 0};
  at_['G'] = {at_['R'].x - top_, 0};
}

// Lines to a point beyond an asymptote, on the other branch, are left out.
void Construction::conic() {
  Pen pen(sheet_);
  pen.dip({palette(10)});
  Punto point;
  double before = 0;
  const Sweep angles = run_.sweep(0, 2 * run_.params.PiGreco, kConicStep);
  for (const double theta : angles) {
    const double facing = 1 + conic_.e * std::cos(theta);
    const double r = over(conic_.p, facing);
    assign(point, {r * std::cos(theta) + conic_.focus, r * std::sin(theta)});
    pen.visit(point, drawIf(theta > angles.first() && Sgn(facing) == Sgn(before)));
    before = facing;
  }
  for (const double x : {conic_.focus, conic_.second}) {
    if (x != 0) circle(sheet_, {x, 0}, cone_.style / 100, palette(12));
  }
  front();
}

// The front's line across the edge: the edge's half width at G, by the conic's distance from the
// focus.
void Construction::front() {
  const double x = at_['G'].x - conic_.focus;
  const double r = conic_.p - conic_.e * x;
  const double half = root(r * r - x * x);
  stroke({at_['G'].x, half}, {at_['G'].x, -half}, {palette(12), sheet_.layer("Front")});
}

void Construction::style() {
  stroke(at_['R'], at_['S'], {palette(15), sheet_.layer("STILO"), 4});
  circle(sheet_, at_['S'], kTipMark, palette(15), {.layer = sheet_.layer("tip")});
}

// --- Texts

void Construction::letters() {
  sheet_.ForeColor = palette(14);
  for (char letter = Letters::kFirst; letter <= Letters::kLast; ++letter) {
    const Punto p = at_[letter];
    sheet_.Dati(std::string(1, letter), p.x, sheetY(p.y));
  }
}

// Where the development of the whole cone ends.
void Construction::usefulSector() {
  const double psi = run_.params.PiGreco * std::sin(cone_.sigma);
  for (const double below : {1.0, -1.0}) {
    stroke({0, 0}, {cone_.side * rho_ * std::cos(psi), below * rho_ * std::sin(psi)},
           {palette(12)});
  }
}

void Construction::table() {
  const auto row = [this](const char* label, double value, int decimals) {
    return run_.T(label) + textOf(rounded(value, decimals));
  };
  const auto length = [&](const char* pair) {
    return row((std::string(pair) + " ").c_str(), at_.distance(pair), 4);
  };
  const DialParams& p = run_.params;
  sheet_.ForeColor = kWhite;
  // The stone: how much the circles grow from C to D, then the section.
  sheet_.Dati(row("deltacd ", at_.distance("DJ") - at_.distance("CU"), 4), 0.9, 0.6);
  for (const char* pair : {"AQ", "AB", "BC", "BE", "DE", "CD", "EF", "FK", "KA"}) {
    sheet_.Dati(length(pair));
  }
  sheet_.Dati(row("generator ", at_.distance("OE"), 4));
  sheet_.Dati(row("ecc ", conic_.e, 5));
  sheet_.Dati(row("style ", cone_.style, 4));
  sheet_.Dati(row("semi-amplitude ", p.degrees(cone_.sigma), 5));
  sheet_.Dati(row("lat. ", p.degrees(cone_.phi), 5));
  sheet_.Dati(row("ro ", rho_, 4));
  // The edge: where its points stand on the plan's axis, then its lengths.
  sheet_.Dati(row("x0 ", conic_.x0, 4), 0.9, 0);
  sheet_.Dati(row("focus 1   ", conic_.focus, 5));
  sheet_.Dati(row("focus 2   ", conic_.second, 5));
  sheet_.Dati(row("circle center   ", conic_.centre, 5));
  sheet_.Dati(row("xsin ", at_['G'].x, 5));
  sheet_.Dati(row("a ", conic_.a, 5));
  sheet_.Dati(row("b ", conic_.b, 5));
  sheet_.Dati(row("c ", conic_.c, 5));
  for (const char* pair : {"RG", "OU", "OJ"}) sheet_.Dati(length(pair));
}

}  // namespace

void CostruzioneScafe(Run& run, const Cone& cone) { Construction(run, cone).all(); }

}  // namespace dialwright
