// Program 13: a filtering hat. A cylinder carries a round brim whose edge lets the sun in; the
// light falls on the generator of the sun's azimuth, as deep below the brim as the sun is high. The
// origin of the development is the South on the level of the brim.
#include "dials/cylindrical/cappello.hpp"

#include <array>
#include <cmath>
#include <string>

#include "dials/cylindrical/sun_angles.hpp"
#include "dials/drawing.hpp"
#include "dials/site.hpp"
#include "dials/sun.hpp"
#include "lettering/arabic.hpp"
#include "lettering/roman.hpp"
#include "numerics/numbers.hpp"

namespace dialwright {

namespace {

constexpr double kStep = 0.05;           // degrees from sample to sample
constexpr double kDayGap = 0.02;         // longest segment of a declination curve, metres
constexpr double kCentralMeridian = 15;  // degrees East: of all zones, but for true shadows
constexpr double kOuterHour = 105;       // degrees either side of noon of the whole hours

// Lines of one hour through the days.
struct HourLines {
  double first, last, step;  // degrees
  int colour, width;
  const char* layer;
};
constexpr HourLines kWholeHours{-kOuterHour, kOuterHour, 15, 12, 4, "Ore"};
constexpr HourLines kCappelloMezzeOre{-112.5, 112.5, 15, 6, 2, "mezze"};
constexpr HourLines kCappelloQuarti{-116.25, 112.5, 7.5, 3, 1, "mezze"};

// Curves of one day through the hours.
struct DayCurve {
  double declination, lastHour;  // degrees
  int colour;
  const char* layer;
};
constexpr std::array<DayCurve, 7> kDays = {{{-kSolstice, 112.5, 12, "-23.445°"},
                                            {kSolstice, 120, 12, "23.445°"},
                                            {-kTwentieth, 112.5, 13, "-20.1552°"},
                                            {kTwentieth, 120, 13, "20.1552°"},
                                            {-kEleventh, 112.5, 11, "-11.4746°"},
                                            {kEleventh, 112.5, 11, "11.4746°"},
                                            {0, 112.5, 9, "eq"}}};
constexpr std::size_t kDaysOfFunction = 2;  // with ckFunction, the solstices only

// The factor of the azimuth, which is positive to the West: the East on the right, or mirrored.
constexpr double kEastRight = -1;
constexpr double kMirrored = +1;

// Hours counted from the horizon: the hour angle of hour k for a semi-diurnal arc a.
struct OldHours {
  Field box;
  double first, last;
  int colour;
  const char* above;  // the layer with the horizon on
  const char* all;    // and off
  double side;
  CurveFamily family;
  double (*hourAngle)(double PiGreco, double k, double a);
};
constexpr double italicHour(double pi, double k, double a) { return k * pi / 12 + a - 2 * pi; }
constexpr double temporaryHour(double, double k, double a) { return a * (k / 6 - 1); }
// Babylonian hours are the italic ones of the mirrored sun, numbered backwards.
constexpr OldHours kCappelloBabiloniche{
    Field::ck_babiloniche,   10,        24, 13, "bab1", "bab2", kMirrored,
    CurveFamily::Babylonian, italicHour};
constexpr OldHours kCappelloItaliche{
    Field::ck_Italiche, 10, 24, 12, "ita1", "ita2", kEastRight, CurveFamily::Italic, italicHour};
constexpr OldHours kCappelloTemporarie{
    Field::ckTemp, 0, 12, 11, "temp1", "temp2", kEastRight, CurveFamily::Temporary, temporaryHour};

// Where the light falls, and what it was found by; what fails in a sample keeps the value of the
// sample before.
struct Light {
  double azimuth = 0, altitude = 0;
  Punto point;

  bool aboveHorizon() const { return point.y <= 0; }
};

class Drawing : PanelDrawing {
 public:
  explicit Drawing(Run& run) : PanelDrawing(run), trueShadows_(run.trueShadows()) { read(); }

  void all();

 private:
  double numberOr0(Field field) const;

  void read();
  void PuntoCappello(const Trig& hour, const SunDeclination& sun, Light& light,
                     double side = kEastRight) const;
  Verdict verdict(const Light& light, bool notFirst) const;
  Pen pen(double gap = Pen::kNoLimit) const;

  void plan();
  void hours();
  void hourLines(const HourLines& lines);
  void CappelloDeclinazioni();
  void oldHours(const OldHours& family);
  void CappelloAnalemma();
  void CappelloAnalemmaOre();
  Pen analemmaPen();
  void analemma(Pen& pen, double meridian, double beforeNoon, Light& light);
  void CappelloLineaDecl();
  void CappelloNumeri();
  void fillPanel() const;
  void legend() const;

  const bool trueShadows_;
  double R_ = 0, R2_ = 0;     // radii of the cylinder and of the hat
  double g_ = 0;              // how far the hat stands out: the style
  double longitude_ = 0;      // degrees from the clock's meridian, West positive
  double zoneLongitude_ = 0;  // and from the zone's
  double vertex_ = 0;         // ordinate of the lowest point
  Trig latitude_{0};
};

void Drawing::all() {
  if (on(Field::ck_Triangolo)) plan();
  if (on(Field::chkOreAstronomiche)) hours();
  if (on(Field::Ck_DayLightCurves)) CappelloDeclinazioni();
  if (on(Field::ck_babiloniche)) oldHours(kCappelloBabiloniche);
  if (on(Field::ck_Lemniscate)) {
    if (on(Field::Ck_Section))
      CappelloAnalemmaOre();
    else
      CappelloAnalemma();
  }
  if (on(Field::ck_Italiche)) oldHours(kCappelloItaliche);
  if (on(Field::ckTemp)) oldHours(kCappelloTemporarie);
  // With both boxes on, the numerals are drawn twice.
  if (on(Field::ckArabi)) CappelloNumeri();
  if (on(Field::ckRomani)) CappelloNumeri();
  if (!on(Field::ckArabi) && !on(Field::ckRomani)) CappelloLineaDecl();
  fillPanel();
  legend();
}

double Drawing::numberOr0(Field field) const {
  double value = 0;
  assign(value, run_.number(field));
  return value;
}

void Drawing::read() {
  R_ = numberOr0(Field::TxtRadius);
  R2_ = numberOr0(Field::txt_R2);
  assign(p_.LatRad, p_.radians(run_.number(Field::txtLAT)));
  latitude_ = Trig(p_.LatRad);
  const double longitude = numberOr0(Field::txtLON);
  zoneLongitude_ = longitude - 15 * numberOr0(Field::TxtFuso);
  longitude_ = trueShadows_ ? zoneLongitude_ : longitude + kCentralMeridian;
  readUsaLongitudine(run_);
  assign(g_, R2_ - R_);
  p_.Stilo = g_;
  double AltezzaMax = 0;
  const double solstice = p_.radians(kSolstice);
  assign(AltezzaMax,
         p_.ArcSin(latitude_.sine * std::sin(solstice) + latitude_.cosine * std::cos(solstice)));
  assign(vertex_, -g_ * std::tan(AltezzaMax));
}

// The light's point for a sun.
void Drawing::PuntoCappello(const Trig& hour, const SunDeclination& sun, Light& light,
                            double side) const {
  if (trueShadows_) {
    light.azimuth = azimuth(latitude_, hour, sun);
  } else {
    assign(light.azimuth, azimuthByTangent(latitude_, hour, sun));
    if (onOtherSide(hour, light.azimuth)) light.azimuth += hour.sine < 0 ? -p_.PiGreco : p_.PiGreco;
  }
  assign(light.altitude, p_.ArcSin(sineOfAltitude(latitude_, hour, sun)));
  assign(light.point, {side * R_ * light.azimuth, -g_ * std::tan(light.altitude)});
}

// The first sample of a loop never draws; with the horizon on, nor does the sun below it.
Verdict Drawing::verdict(const Light& light, bool notFirst) const {
  return drawIf(notFirst && (!on(Field::ck_Orizzonte) || light.aboveHorizon()));
}

// A curve's pen. No true line crosses half the development: those that seem to do so leave it at
// one end and come in at the other.
Pen Drawing::pen(double gap) const {
  const double half = p_.PiGreco * R_;
  return Pen(sheet_, trueShadows_ && half < gap ? half : gap, Stroke::FromPrevious);
}

// The plan of the cylinder and of the hat, above the development.
void Drawing::plan() {
  sheet_.xCircle(0, -R_, R_, palette(14));
  sheet_.xCircle(0, -R_, R2_, palette(9));
}

// --- Hours

void Drawing::hours() {
  hourLines(kWholeHours);
  const double divisions = run_.number(Field::TxtHour);
  if (divisions == 2 || divisions == 4) hourLines(kCappelloMezzeOre);
  if (divisions == 4) hourLines(kCappelloQuarti);
}

void Drawing::hourLines(const HourLines& lines) {
  Pen pen = this->pen();
  pen.dip({palette(lines.colour), sheet_.layer(lines.layer), lines.width, CurveFamily::Hours});
  Light light;
  for (const double t : run_.sweep(lines.first, lines.last, lines.step)) {
    const Trig hour(p_.radians(t - longitude_ * p_.UsaLongitudine));
    const Sweep days = run_.sweep(-kSolstice, kSolstice, kStep);
    for (const double declination : days) {
      const SunDeclination sun(p_.radians(declination));
      PuntoCappello(hour, sun, light);
      pen.visit(light.point, verdict(light, declination > days.first()), {hour.angle, sun.angle});
    }
  }
}

// Samples below the horizon are left out whatever the horizon's box says, and nothing limits a
// segment: a line that starts below the horizon is joined to the end of the line before it.
void Drawing::oldHours(const OldHours& family) {
  Pen pen = this->pen();
  pen.dip({palette(family.colour),
           sheet_.layer(on(Field::ck_Orizzonte) ? family.above : family.all), 4, family.family});
  Light light;
  for (const double k : run_.sweep(family.first, family.last, 1)) {
    const Sweep days = run_.sweep(-kSolstice, kSolstice, kStep);
    for (const double declination : days) {
      const SunDeclination sun(p_.radians(declination));
      const double semiArc = semiDiurnalArc(p_, cosineOfSemiArc(p_.LatRad, sun.angle));
      if (!sound(semiArc)) continue;
      const Trig hour(family.hourAngle(p_.PiGreco, k, semiArc));
      PuntoCappello(hour, sun, light, family.side);
      // The mirrored sun's hour is the opposite one.
      const Sun claimed{family.side == kMirrored ? -hour.angle : hour.angle, sun.angle};
      const Verdict kept = verdict(light, declination > days.first());
      pen.visit(light.point, light.aboveHorizon() ? kept : Verdict::Drop, claimed);
    }
  }
}

void Drawing::CappelloNumeri() {
  const SunDeclination sun(p_.radians(numberOr0(Field::txtLineofdeclination)));
  Light light;
  for (const double t : run_.sweep(-kOuterHour, kOuterHour, 15)) {
    PuntoCappello(Trig(p_.radians(t - longitude_ * p_.UsaLongitudine)), sun, light);
    if (trueShadows_ && !light.aboveHorizon()) continue;
    const int hour = static_cast<int>(t > 0 ? t / 15 : 12 + t / 15);
    if (on(Field::ckRomani)) {
      DisegnaNumeroRomano(run_, light.point.x, light.point.y, p_.PiGreco / 2, hour, 1);
    } else {
      DisegnaNumeroArabo(run_, light.point.x, light.point.y, 90, hour, hour >= 10 ? 2 : 1);
    }
  }
}

// --- Declination curves

// The first curve draws in any case. The others start anew by their first hour with the horizon on;
// with it off they draw the sample of the hour -120 alone, which the gap then leaves out.
void Drawing::CappelloDeclinazioni() {
  const bool anew = on(Field::ck_Orizzonte) || trueShadows_;
  const std::size_t count = on(Field::ckFunction) ? kDaysOfFunction : kDays.size();
  Punto last;
  Light light;
  for (std::size_t i = 0; i < count; ++i) {
    const DayCurve& day = kDays[i];
    Pen pen = this->pen(i == 0 ? Pen::kNoLimit : kDayGap);
    const CurveFamily family =
        day.declination == 0 ? CurveFamily::Equinoctial : CurveFamily::Declinations;
    pen.dip({palette(day.colour), sheet_.layer(day.layer), 4, family});
    pen.visit(last, Verdict::Move);
    const SunDeclination sun(p_.radians(day.declination));
    const Sweep hours = run_.sweep(-day.lastHour, day.lastHour, kStep);
    for (const double t : hours) {
      const Trig hour(p_.radians(t));
      PuntoCappello(hour, sun, light);
      pen.visit(light.point, verdict(light, i == 0 || anew ? t > hours.first() : t == -120),
                {hour.angle, sun.angle});
    }
    last = pen.previous();
  }
}

// This curve stands on the central meridian, and always has the horizon.
void Drawing::CappelloLineaDecl() {
  const double declination = numberOr0(Field::txtLineofdeclination);
  const SunDeclination sun(p_.radians(declination));
  Pen pen = this->pen(kDayGap);
  pen.dip({palette(10), sheet_.layer(textOf(declination)), 4, CurveFamily::Declinations});
  Light light;
  const Sweep hours = run_.sweep(-120, 121, kStep);
  for (const double t : hours) {
    const Trig hour(p_.radians(t - kCentralMeridian * p_.UsaLongitudine));
    PuntoCappello(hour, sun, light);
    pen.visit(light.point, drawIf(light.aboveHorizon() && t > hours.first()),
              {hour.angle, sun.angle});
  }
}

// --- Analemmas, by the mirrored sun

// The record's correction is that of an earlier dial's run, in degrees that the true shadows leave
// out: this one has no zone in it.
Pen Drawing::analemmaPen() {
  p_.LonAbs = trueShadows_ ? 0 : p_.CorrFuso;
  Pen pen = this->pen();
  pen.dip({palette(10), sheet_.layer("analemma"), 4, CurveFamily::Analemma});
  return pen;
}

void Drawing::CappelloAnalemma() {
  Pen pen = analemmaPen();
  Light light;
  analemma(pen, longitude_, zoneLongitude_, light);
}

// One analemma for each division of the hours that have an hour line, five in the morning to seven
// in the evening, and one more for each whole hour. The panel has no field for their range; who
// asks for them expects one on every hour line. Their hours are the place's own, but for true
// shadows.
void Drawing::CappelloAnalemmaOre() {
  const double noon = trueShadows_ ? zoneLongitude_ : 0;
  Pen pen = analemmaPen();
  Light light;
  for (const double step : {over(15, run_.number(Field::TxtHour)), 15.0}) {
    for (const double t : run_.sweep(-kOuterHour, kOuterHour, step, {.step = Field::TxtHour})) {
      analemma(pen, noon + t, noon + t, light);
    }
  }
}

// The mean sun's place through the year, or through the half that the options choose, drawn so many
// degrees from the meridian. It stands for the sun so many degrees before the place's noon.
void Drawing::analemma(Pen& pen, double meridian, double beforeNoon, Light& light) {
  const bool half = on(Field::CheckL);
  const bool firstHalf = on(Field::Optconcave);
  const double tilt = p_.radians(obliquity(47));
  const Sweep longitudes =
      run_.sweep(half && !firstHalf ? 91 : -90, half && firstHalf ? 90 : 270, 360 / kDaysOfYear);
  for (const double L : longitudes) {
    const SunOfDay sun = sunAtMeanLongitude(p_, p_.radians(L), tilt);
    PuntoCappello(Trig(p_.LonAbs - sun.equationOfTime + p_.radians(meridian)),
                  SunDeclination(sun.declination), light, kMirrored);
    pen.visit(light.point, verdict(light, L > longitudes.first()),
              {sun.equationOfTime - p_.radians(beforeNoon), sun.declination});
  }
}

// --- What the panel and the reader are told

void Drawing::fillPanel() const {
  const auto put = [this](Field field, double value) {
    if (sound(value)) run_.panel.setText(field, textOf(value));
  };
  put(Field::TxtStilo, g_);
  put(Field::x1txt, -R_ * p_.PiGreco);
  put(Field::x2txt, R_ * p_.PiGreco);
  put(Field::y1txt, 0);
  put(Field::y2txt, vertex_);
  put(Field::txtV1, vertex_);
}

void Drawing::legend() const {
  const auto say = [this](std::string_view text, const std::string& value = {}) {
    sheet_.Dati(run_.T(text) + value);
  };
  const auto metres = [](double value) { return textOf(value) + " m"; };
  const double right = truncated(R_ * p_.PiGreco, 4);
  sheet_.Dati("");
  say("Sundial Data ");
  say("latitude  = ", run_.panel.text(Field::txtLAT));
  say("longitude  = ", run_.panel.text(Field::txtLON));
  say("radius  = ", metres(R_));
  say("radius of the hat  = ", metres(R2_));
  say("style = ", metres(g_));
  say("right = ", metres(right));
  say("left = ", metres(-right));
  say("vertex ordinate = ", metres(truncated(vertex_, 4)));
}

}  // namespace

void QuadranteCappello(Run& run) {
  run.sheet.Messaggio(run.T("Filtering Hat Sundial"));
  run.hourglass(true);
  Drawing(run).all();
  DisegnaCornice(run);
  run.hourglass(false);
}

}  // namespace dialwright
