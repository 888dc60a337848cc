// Programs 38 and 39: a level disc above an upright wall that may decline. The two differ in the
// side of the disc whose shadow is drawn, in hours and colours, and in the report. The origin on
// the wall is the point that the disc touches.
#include "dials/cornice/cornice_piana.hpp"

#include <array>
#include <cmath>
#include <vector>

#include "dials/cornice/cornice_frame.hpp"

namespace dialwright {

namespace {

using namespace cornice;

// The arc of the disc that the plan shows.
struct Arc {
  double start, end;
};

// What sets the two dials apart.
struct Version {
  double side;  // of the disc: -1 away from the wall, +1 next to it
  std::array<DayLine, 2> days;
  std::array<HourLines, 2> hours;  // the step of the declination is the panel's
  Arc (*plan)(double PiGreco, double D);
  bool tellsWall;
  int decimals;  // of circumference and arc in the report
};

constexpr Arc outerPlan(double pi, double D) {
  const double start = D > 0 ? 2 * pi - D : 0 - D;
  return {start, pi - D};
}

// On a wall that looks due South the end is 0: the whole circle is drawn.
constexpr Arc innerPlan(double pi, double D) { return {pi - D, D > 0 ? 2 * pi - D : 0 - D}; }

// The second line of the day has the first one's start: it is drawn from its first sample on.
constexpr Version kEst = {
    -1,
    {{{Half::Morning, -105, -0.001, 0.01, -105, 4, "daylight1"},
      {Half::Afternoon, 0.001, 105, 0.01, -105, 4, "daylight2"}}},
    {{{Half::Afternoon, -15, 105, 0, 12, "afternoon"}, {Half::Morning, -105, 15, 0, 4, "morning"}}},
    outerPlan,
    false,
    4};
constexpr Version kInt = {
    +1,
    {{{Half::Morning, -105, -0.001, 0.01, -105, 4, "daylight1"},
      {Half::Afternoon, 0.001, 105, 0.01, 0.001, 4, "daylight2"}}},
    {{{Half::Afternoon, 0, 90, 0, 10, "afternoon"}, {Half::Morning, -90, 0, 0, 10, "morning"}}},
    innerPlan,
    true,
    5};

// A wall at the distance of the disc's radius from the origin. One that looks due East or West has
// no cosine, whatever the circle constant makes of it: no ray meets it, its points stay on the
// origin, and no curve goes there.
class Parete final : public Surface {
 public:
  Parete(const Run& run, double side, double radius, double distance)
      : side_(side),
        a_(radius),
        r2_(distance),
        cosine_(std::abs(run.params.DeclGradi) == 90 ? 0 : std::cos(run.params.DeclRad)),
        slope_(over(std::sin(run.params.DeclRad), cosine_)),
        window_(run) {}

  Vettore edge(double theta) const override { return PuntoDisco(theta); }
  double sideOfSun() const override { return side_; }

  bool meet(Light& light, const Vettore& edge, const Vettore& ray, Half) const override {
    RaggioPiano(light, edge, ray);
    return true;
  }

  bool keeps(const Light& light) const override {
    return light.point.y < 0 && window_.holds(light.point);
  }

  // Where the two noon lines stand: the disc's ends in the West and the East, carried North.
  double markLeft() const { return -a_ * (over(1, cosine_) + slope_); }
  double markRight() const { return a_ * (over(1, cosine_) - slope_); }
  // The distance between them.
  double projection() const { return over(2 * a_, cosine_); }

 private:
  Vettore PuntoDisco(double theta) const {
    Vettore point = PuntoBordo(side_ * a_, theta);
    point.z += r2_;
    return point;
  }

  // The ray goes both ways: a sun behind the wall and below the horizon has its lines too.
  void RaggioPiano(Light& light, const Vettore& edge, const Vettore& ray) const {
    assign(light.way, over(slope_ * edge.x - over(a_, cosine_) - edge.z, ray.z - ray.x * slope_));
    light.travel(edge, ray);
    assign(light.point, {over(ray.x * light.way + edge.x, cosine_) - a_ * slope_, light.at.y});
  }

  double side_, a_, r2_;
  double cosine_, slope_;
  Window window_;
};

// The hour angle (radians) at which the border runs along the wall where it is next to it. The
// angle of the border's point is then the wall's declination D, so that
// tan D = -1/(tan H * sin(latitude)). A wall that looks due South gets the morning's six o'clock of
// the two.
double hourOfTangentPoint(const DialParams& p) {
  const double D = p.DeclRad;
  const double H = std::atan2(std::cos(D), std::abs(std::sin(D)) * std::sin(p.LatRad));
  return D < 0 ? H : -H;
}

// The border's shadow at one moment as a row of dots, wherever they fall, and the line between its
// ends.
void shadowOfDisc(Run& run, Cornice& dial) {
  const double quarter = run.params.PiGreco / 2;
  for (const double theta : run.sweep(-quarter, quarter, 0.005)) {
    dot(run.sheet, dial.shadowOfBorder(theta),
        {.colour = palette(11), .family = CurveFamily::Marks}, dial.borderSun());
  }
  const Punto first = dial.shadowOfBorder(-quarter);
  line(run.sheet, first, dial.shadowOfBorder(quarter), palette(5));
}

void drawDisc(Run& run, const Version& version, const Parete& wall, double a, double r2) {
  SheetPlot& sheet = run.sheet;
  const double pi = run.params.PiGreco;
  const double D = run.params.DeclRad;
  const Arc arc = version.plan(pi, D);
  sheet.xCircle(0, -(a + r2), a, palette(15), {.startAngle = arc.start, .endAngle = arc.end});
  const double sine = std::sin(D), cosine = std::cos(D);
  sheet.xLine(a * cosine, a * sine - a - r2, -a * cosine, -(a * sine + a + r2), palette(5));
  sheet.xLine(1, 0.009, -1, 0.009, palette(14));  // two metres long, whatever the dial's size
  for (const double x : {wall.markLeft(), wall.markRight()})
    sheet.xCircle(x, 0, a / 50, palette(7), {.fill = palette(5), .endAngle = pi});
}

void tellDisc(Run& run, const Version& version, const Parete& wall, double a, double r2) {
  const DialParams& p = run.params;
  std::vector<ReportLine> lines = {{"FLAT VERTICAL DAM DIAL "},
                                   {"latitude ", p.LatGradi, " °"},
                                   {"r2 ", r2},
                                   {"radius of border ", a}};
  if (version.tellsWall) {
    const double H = p.degrees(hourOfTangentPoint(p));
    lines.insert(lines.end(), {{"declination ", p.DeclGradi},
                               {"projection ", wall.projection(), {}, 5},
                               {"hour angle of the tangent point ", H},
                               {"hour of the tangent point ", 12 + H / 15}});
  }
  lines.insert(lines.end(), {{"circumference ", 2 * p.PiGreco * a, {}, version.decimals},
                             {"useful arc ", 180, " °"},
                             {"lenght of the useful arc ", p.PiGreco * a, {}, version.decimals}});
  report(run, lines);
  reportOptions(run);
}

void tellCaption(Run& run, double r2) {
  run.sheet.Messaggio(run.T("Dam or Cornice dial by vectors"));
  run.sheet.Messaggio(run.T("Vertical plane, Horizontal disc"));
  if (r2 != 0) run.sheet.Messaggio(run.T("THE WHOLE CIRCLE IS NOT TANGENT!!!!"));
}

void draw(Run& run, const Version& version) {
  DialParams& p = run.params;
  const double a = numberOr0(run, Field::TxtRadius);
  const double r2 = numberOr0(run, Field::txt_R2);
  assign(p.PassoCurva, run.number(Field::txt_Definition));
  tellCaption(run, r2);
  run.hourglass(true);
  DisegnaCornice(run);

  const Parete wall(run, version.side, a, r2);
  Cornice dial(run, wall, Cornice::kAllDays);
  if (run.on(Field::Ck_DayLightCurves)) {
    for (const DayLine& line : version.days) dial.dayLine(line);
  }
  for (HourLines lines : version.hours) {
    lines.declinationStep = 0.02 * p.PassoCurva / 10;
    dial.hourLines(lines, Field::txt_Definition);
  }
  dial.numerals(r2 < a);
  if (run.on(Field::ckFunction)) shadowOfDisc(run, dial);
  drawDisc(run, version, wall, a, r2);
  tellDisc(run, version, wall, a, r2);
  run.hourglass(false);
}

}  // namespace

void DisegnaCornicePianaEst(Run& run) {
  if (readLatitude(run)) draw(run, kEst);
}

void DisegnaCornicePianaInt(Run& run) {
  if (!readLatitude(run)) return;
  DialParams& p = run.params;
  assign(p.DeclGradi, run.number(Field::txtDecl));
  assign(p.DeclRad, p.radians(p.DeclGradi));
  p.ReclinRad = 0;
  draw(run, kInt);
}

}  // namespace dialwright
