// The tables of an upright dial's coordinates, for drawing it without a plotter: the hours on the
// equinoctial, along their lines and on the window's edges, and the ends of the other lines.
#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "numerics/numbers.hpp"
#include "shell/dispatch.hpp"
#include "shell/report_lines.hpp"
#include "shell/substyle_frame.hpp"
#include "shell/window.hpp"

namespace dialwright {

namespace {

constexpr double kObliquity = 23.439033;  // degrees
constexpr double kLastHourAngle = 120;    // degrees before and after noon
constexpr double kHour = 15;              // degrees
constexpr double kMostDivisions = 1000;   // of an hour: 100,000 lines of text
constexpr double kLetterReach = 10.0 / 9;
constexpr double kBeyond = 1e5;  // metres from which on a crossing counts as infinitely far
constexpr std::string_view kNoFigure = "-";

constexpr std::array<std::string_view, 4> kHeadings = {
    "Equinoxial coordinates of the hours. The origin is the crossing point of the equinoxial and "
    "substyle lines",
    "Coo equinoziali delle ore. L'origine è l'incontro equinoziale-sustilare",
    "Coo équinoxiales des heures. L'origine est le point de rencontre des lignes équinoxiale-sous "
    "stylaire",
    "Aequinoktialkoordinaten der Stunden: Ursprung ist der Schnittpunkt von Aequinoktialline und "
    "Substilare"};
constexpr std::array<std::string_view, 5> kKey = {
    "  h hour, ora, heure, heur, Stunde", "  c center, centro, centre, Zentrum",
    "  ss summer solstice, solstizio estivo, solstice d'été, Sommersonnenwende",
    "  ws winter solstice, solstizio d'inverno, solstice d'hiver,Wintersonnenwende",
    "  e  equinoctial line, equinoziale, ligne des équinoxes, Aequinoktioallinie  "};
constexpr std::string_view kEnds = "  x             y            x            y";

// Italic and babylonian hours: the side of the tangent that they are, and the hour of the day that
// begins where the equinoctial meets the noon line.
struct DayHours {
  std::string_view heading;
  double side;
  double atNoon;
};
constexpr std::array<DayHours, 2> kDayHours = {
    {{"Italic Hour  Ora Italica  Heure Italique Italinische Stunden ", -1, 18},
     {"Babylonic Hour  Ora Babilonica  Heure Babylonique Babylonische Stunden ", +1, 6}}};

// A corner of the window: an upright edge and a level one.
struct Corner {
  double x, y;
  std::string_view heading;
};

// A point of an hour line, if the shadow ever falls on it.
struct Shadow {
  bool falls = false;
  Punto at;
};

std::string row(std::initializer_list<std::string> columns) {
  std::string text;
  for (const std::string& column : columns) {
    if (&column != columns.begin()) text += kColumnGap;
    text += column;
  }
  return text;
}

std::string shown(double value) { return textOf(truncated(value, 4)); }

bool near(double value) { return sound(value) && std::abs(value) < kBeyond; }

class Tables {
 public:
  explicit Tables(const Report& report)
      : r_(report),
        p_(report.p),
        window_(report.run),
        plane_(Piano{p_.Stilo, p_.LatRad, p_.DeclRad, p_.PiGreco / 2}),
        step_(over(kHour, report.run.number(Field::TxtHour))),
        correction_(correctionOf(report)),
        corners_{{{window_.x1, window_.y1, "h            x1          y         y1           x "},
                  {window_.x2, window_.y2, "h            x2          y         y2           x "}}} {
  }

  void all() const;

 private:
  void say(std::string_view text) const { r_.say(text); }
  Sweep hours() const {
    return r_.run.sweep(-kLastHourAngle, kLastHourAngle, step_, {.step = Field::TxtHour});
  }
  // CorrLon is that of the zone of the first meridian to the East.
  static double correctionOf(const Report& report) {
    if (!report.run.on(Field::ck_Etna)) return 0;
    return report.run.trueShadows() ? report.p.CorrFuso : report.p.CorrLon;
  }
  // The sun's hour angle of the line of a clock's hour angle; degrees to radians.
  double hourAngle(double H) const { return p_.radians(H) - correction_; }
  std::string edge(double value) const { return near(value) ? shown(value) : r_.run.T("inf"); }

  void equinoctialTable() const;
  void distanceTable() const;
  Shadow shadow(double h, double declination) const;
  std::string between(const Shadow& a, const Shadow& b) const;
  void edgeTable(const Corner& corner) const;
  void endsOf(std::string_view heading, const Retta& line) const;
  void pointsOfStyle() const;
  void letter(std::string_view name, Punto at) const;
  void dayHours(const DayHours& system, const Corner& corner, const ConicSet& conic) const;
  void solsticesOnHorizon() const;

  const Report& r_;
  const DialParams& p_;
  Window window_;
  Projection plane_;
  double step_;
  double correction_;
  std::array<Corner, 2> corners_;
};

void Tables::all() const {
  equinoctialTable();
  distanceTable();
  for (const Corner& corner : corners_) edgeTable(corner);
  const Retta equinoctial = plane_.equinoctial();
  endsOf("  Equinoctial line - Equinoziale - Ligne des équinoxes - Aequinoktioallinie",
         equinoctial);
  endsOf("  Substyle line - Sustilare - Sous-stylaire - Substilare", equinoctial.normal());
  for (const std::string_view line : kKey) say(line);
  pointsOfStyle();
  const double t = std::tan(p_.LatRad);
  ConicSet conic;
  setConic(conic, p_.Stilo, -p_.ElevStilo, t * t);
  for (const DayHours& system : kDayHours) {
    say(system.heading);
    for (const Corner& corner : corners_) dayHours(system, corner, conic);
  }
  solsticesOnHorizon();
}

void Tables::equinoctialTable() const {
  for (const std::string_view heading : kHeadings) say(heading);
  say("HA-AO-AH          h       eq-x");
  const double reach = over(-p_.Stilo, std::cos(p_.ElevStilo));
  const auto form = [](double value) { return textFixed(value, 2, 2); };
  for (const double H : hours()) {
    const double x = reach * std::tan(p_.OrarioSustilare - hourAngle(H));
    say(row({form(H), form(12 + H / kHour), near(x) ? form(x) : r_.run.T("inf")}));
  }
}

// --- Along the hour lines

Shadow Tables::shadow(double h, double declination) const {
  const double sinH = std::sin(h), cosH = std::cos(h), tangent = std::tan(declination);
  Shadow shadow;
  shadow.falls = plane_.lit(sinH, cosH, tangent);
  shadow.at = plane_(sinH, cosH, tangent);
  return shadow;
}

std::string Tables::between(const Shadow& a, const Shadow& b) const {
  if (!a.falls || !b.falls) return std::string(kNoFigure);
  return edge(std::hypot(a.at.x - b.at.x, a.at.y - b.at.y));
}

void Tables::distanceTable() const {
  double delta = 0;
  assign(delta, std::min(std::abs(r_.run.number(Field::txtLineofdeclination)), kSolstice));
  r_.ink(palette(14));
  say("  delta = " + std::string(kPlusMinus) + textOf(delta));
  say("  h         c-ss      c-ws         ss-ws       c-e       ss-e      ws-e");
  const Shadow centre{r_.f.hasCentre(), r_.f.centre};
  for (const double H : hours()) {
    const double h = hourAngle(H);
    const Shadow summer = shadow(h, p_.radians(delta));
    const Shadow winter = shadow(h, -p_.radians(delta));
    const Shadow equinox = shadow(h, 0);
    say(row({shown(12 + H / kHour), between(centre, summer), between(centre, winter),
             between(summer, winter), between(centre, equinox), between(summer, equinox),
             between(winter, equinox)}));
  }
}

// --- On the edges of the window

void Tables::edgeTable(const Corner& corner) const {
  say(" h             x            y           y            x  ");
  for (const double H : hours()) {
    const Retta line = plane_.hourLine(hourAngle(H));
    say(row({shown(12 + H / kHour), shown(corner.x), edge(line.yAt(corner.x)), shown(corner.y),
             edge(line.xAt(corner.y))}));
  }
}

void Tables::endsOf(std::string_view heading, const Retta& line) const {
  say(heading);
  say(kEnds);
  say(row({shown(window_.x1), edge(line.yAt(window_.x1)), shown(window_.x2),
           edge(line.yAt(window_.x2))}));
}

// P, where the substyle meets the equinoctial, and C, the centre. The letters on the drawing leave
// the list's place as it is.
void Tables::pointsOfStyle() const {
  const Punto P = plane_.equinoctial().foot();
  const Punto C = r_.f.centre;
  const bool hasCentre = r_.f.hasCentre();
  const double CP = hasCentre ? std::hypot(C.x - P.x, C.y - P.y) : kFault;
  say(" CP = " + (near(CP) ? roundedText(CP, 4) : r_.run.T("inf")));
  say(" px = " + roundedText(P.x, 4));
  say(" py = " + roundedText(P.y, 4));
  r_.ink(palette(12));
  letter("P", P);
  if (hasCentre) letter("C", C);
}

void Tables::letter(std::string_view name, Punto at) const {
  SheetPlot& sheet = r_.run.sheet;
  const double perMetre = kTwipsPerMeter / sheet.Scala();
  const double x = (sheet.xCurrentX() + sheet.ShiftX()) * perMetre;
  const double y = (sheet.xCurrentY() + sheet.ShiftY()) * perMetre;
  sheet.Dati(name, at.x * kLetterReach, -at.y);
  sheet.moveCursor(x, y);
}

// --- Italic and babylonian hours: tangents to the conic of the latitude from the equinoctial

void Tables::dayHours(const DayHours& system, const Corner& corner, const ConicSet& conic) const {
  say(corner.heading);
  const double divisions = r_.run.number(Field::TxtHour);
  const double last = 75 + 15 * over(divisions - 1, divisions);
  const SubstyleTurn turn(arctan(over(std::sin(p_.DeclRad), std::tan(p_.LatRad))),
                          -p_.Stilo * std::tan(p_.ElevStilo));
  const double reach = over(p_.Stilo, std::cos(p_.ElevStilo));
  const auto form = [this](double value) {
    return near(value) ? textFixed(value, 3) : r_.run.T("inf");
  };
  double slope = 0;
  for (const double H : r_.run.sweep(-90, last, step_, {.step = Field::TxtHour})) {
    const double angle = p_.radians(H) - p_.OrarioSustilare;
    // Past a quarter turn the tangents change sides; at the quarter itself where the tangent does.
    const double g = std::cos(angle) < 0 ? -1 : 1;
    const double u = reach * std::tan(angle);
    assign(slope, tangentSlope(conic, u, system.side * g));
    const Punto from = turn(u, 0), to = turn(u + 1, slope);
    const Retta line{to.y - from.y, from.x - to.x,
                     (to.y - from.y) * from.x + (from.x - to.x) * from.y};
    say(row({shown(system.atNoon + H / kHour), form(corner.x), form(line.yAt(corner.x)),
             form(corner.y), form(line.xAt(corner.y))}));
  }
}

// --- The solstices on the horizon: the sun rises and sets as far from East and West

void Tables::solsticesOnHorizon() const {
  say(r_.run.T("Abscissas of the solstices-horizon intersections"));
  const double amplitude = p_.ArcSin(over(std::sin(p_.radians(kObliquity)), std::cos(p_.LatRad)));
  const double azimuth = p_.PiGreco / 2 - amplitude;
  const auto abscissa = [this](double fromSouth) {
    const double x = p_.Stilo * std::tan(fromSouth - p_.DeclRad);
    return near(x) ? textFixed(x, 6) : std::string(kNoFigure);
  };
  say(row({abscissa(-azimuth), abscissa(azimuth)}));
}

}  // namespace

void TabelleCoordinate(const Report& report) {
  if (!(report.p.LatRad * report.p.SegnoEmisfero > 0)) return;
  if (!(report.run.number(Field::TxtHour) <= kMostDivisions)) {
    report.run.message(
        report.run.T("Tables are left out: more than 1000 parts of an hour, see the field ") +
        std::string(rowOf(Field::TxtHour).name));
    return;
  }
  report.p.PiGreco = Angles{}.PiGreco;
  Tables(report).all();
}

}  // namespace dialwright
