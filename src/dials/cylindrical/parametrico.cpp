// Program 8: an upright cylinder of circular cross-section by its tangent planes. The angle theta
// runs round the section; in each of its samples the surface is the plane dial that touches it
// there, and the curves are dots.
#include "dials/cylindrical/parametrico.hpp"

#include <array>
#include <cmath>

#include "dials/cylindrical/cylinder.hpp"
#include "dials/cylindrical/dotted.hpp"
#include "dials/drawing.hpp"
#include "dials/flat/substyle_frame.hpp"
#include "dials/site.hpp"
#include "dials/sun.hpp"

namespace dialwright {

namespace {

class Drawing : PanelDrawing {
 public:
  explicit Drawing(Run& run) : PanelDrawing(run) {}

  void all();

 private:
  void LeggiCilindroParam();
  void touch(double theta);
  SubstyleTurn frame() const { return {p_.Sustilare, p_.DistPiedeCentro}; }
  double hourOrdinate(double H);
  // The sun behind the tip as a dot of that ordinate sees it.
  Sun behindTip(double ordinate) const {
    return sunBehindTip(Trig(p_.LatRad), levelWay(Trig(theta_), across_, distance_), ordinate);
  }
  void plot(double ordinate, const Ink& ink, const Sun& sun);
  // Both branches of the cone of a declination, radians.
  void plot(Roots ordinates, int colour, double declination);
  // A curve round the section. Each sample gets its plane before its dots.
  template <class Sample>
  void trace(Sample sample);

  void ParamOre();
  void ParamDeclinazioni();
  void ParamEquinoziale();
  void ParamSustilare();
  void ParamItaliche();
  void ParamBabiloniche();
  void oldHours(double side, const Ink& ink);

  double signedRadius_ = 0;  // negative outside
  double OffsetParam_ = 0;   // of theta in the foot, with the opposite sign
  // The plane of the sample. What it has of a plane dial stands in the record.
  double theta_ = 0;     // its declination, radians
  double distance_ = 0;  // of the tip
  double across_ = 0;    // its touching generator, to the right of the tip
  double x_ = 0;         // and on the development
};

void Drawing::all() {
  LeggiCilindroParam();
  CilGeneratriceCentro(run_);
  if (on(Field::ck_Equinoziale)) ParamEquinoziale();
  if (on(Field::chkOreAstronomiche)) ParamOre();
  CilGeneratriceMezzodi(run_, palette(9));
  if (on(Field::Ck_DayLightCurves)) ParamDeclinazioni();
  if (on(Field::ck_Italiche)) ParamItaliche();
  if (on(Field::ck_babiloniche)) ParamBabiloniche();
  if (on(Field::ck_Orizzonte)) CilOrizzonte(run_);
  if (on(Field::ck_Triangolo)) CilTriangolo(run_);
  if (on(Field::ck_Sustilare)) ParamSustilare();
  if (on(Field::Ck_Section)) CilSezione(run_);
  footRows(run_);
}

void Drawing::LeggiCilindroParam() {
  LeggiCilindro(run_);
  signedRadius_ = -p_.Raggio * p_.SegnoCilindro;
  OffsetParam_ = -p_.radians(p_.DeclGradi);
}

// --- The tangent planes

void Drawing::touch(double theta) {
  const double a = -OffsetParam_ - theta;  // from the foot
  const double toCentre = p_.Stilo - signedRadius_;
  theta_ = theta;
  assign(p_.Sustilare, p_.ArcTanPieno(std::sin(theta), std::tan(p_.LatRad)));
  assign(p_.ElevStilo, p_.ArcSin(std::cos(theta) * std::cos(p_.LatRad)));
  assign(distance_, toCentre * std::cos(a) + signedRadius_);
  assign(p_.DistPiedeCentro, distance_ * std::tan(p_.ElevStilo));
  assign(p_.OrarioSustilare,
         -arctan(over(std::tan(p_.Sustilare), std::cos(p_.LatRad) * std::cos(theta))));
  assign(across_, toCentre * std::sin(a));
  assign(x_, -signedRadius_ * a);
}

template <class Sample>
void Drawing::trace(Sample sample) {
  const Sweep thetas = run_.sweep(-p_.PiGreco, p_.PiGreco, p_.PassoCurva,
                                  {.step = Field::txt_Definition, .bound = Field::txt_Definition});
  for (const double theta : thetas) {
    touch(theta);
    sample();
  }
}

// The ordinate of an hour angle on the plane, at the touching generator.
double Drawing::hourOrdinate(double H) {
  const double A =
      arctan(std::cos(p_.LatRad) * std::cos(theta_) * std::tan(p_.OrarioSustilare + H));
  return HourLine(p_, distance_, std::tan(A)).ordinate(across_);
}

void Drawing::plot(double ordinate, const Ink& ink, const Sun& sun) {
  if (sound(ordinate)) dot(sheet_, {x_, ordinate}, ink, sun);
}

void Drawing::plot(Roots ordinates, int colour, double declination) {
  const Ink ink{.colour = palette(colour), .family = CurveFamily::Declinations};
  for (const double y : {ordinates.minus, ordinates.plus})
    plot(y, ink, sunOfCone(declination, behindTip(y)));
}

// --- Hours

// Those of the sun, whatever the box of the zone's time says.
void Drawing::ParamOre() {
  readUsaLongitudine(run_);
  double y = 0;
  for (const double t : run_.sweep(-90, 90, p_.PassoOre, {.step = Field::TxtHour})) {
    const double H = p_.radians(t);
    const Ink ink{.colour = palette(hourInk(t)), .family = CurveFamily::Hours};
    trace([&] {
      assign(y, hourOrdinate(H));
      plot(y, ink, {H});
    });
  }
}

// An hour stands for the horizon turned by a quarter turn from where it meets the equinoctial.
void Drawing::oldHours(double side, const Ink& ink) {
  for (const double t : run_.sweep(-kLastOldHour, kLastOldHour, 15)) {
    const double turn = p_.radians(t) + side * p_.PiGreco / 2;
    trace([&] {
      const OldHourLine line(p_.LatRad, distance_, p_.ElevStilo, p_.OrarioSustilare + p_.radians(t),
                             side);
      const double y = line.ordinate(frame(), across_);
      plot(y, ink, sunOfTurnedHorizon(p_, turn, -side, behindTip(y)));
    });
  }
}

// With the conic that they touch: the days without a sunset.
void Drawing::ParamItaliche() {
  oldHours(-1, {.colour = palette(14), .family = CurveFamily::Italic});
  const double t = std::tan(p_.LatRad);
  trace([&] {
    ConicSet& conic = p_.conic(Declination::Latitude);
    setConic(conic, distance_, p_.ElevStilo, t * t);
    plot(conicOrdinates(conic, frame(), across_), 11, p_.PiGreco / 2 - p_.LatRad);
  });
}

void Drawing::ParamBabiloniche() {
  oldHours(1, {.colour = palette(11), .family = CurveFamily::Babylonian});
}

// --- The lines of a day, and the substyle

void Drawing::ParamDeclinazioni() {
  std::array<double, kDeclinationPairs.size()> K{};
  for (std::size_t i = 0; i < K.size(); ++i) K[i] = coneOf(p_, kDeclinationPairs[i].declination);
  trace([&] {
    for (std::size_t i = 0; i < K.size(); ++i) {
      ConicSet& conic = p_.conic(kDeclinationPairs[i].conic);
      setConic(conic, distance_, p_.ElevStilo, K[i]);
      plot(conicOrdinates(conic, frame(), across_), kDeclinationPairs[i].colour,
           p_.radians(kDeclinationPairs[i].declination));
    }
  });
}

void Drawing::ParamEquinoziale() {
  const Ink ink{.colour = palette(9), .family = CurveFamily::Equinoctial};
  trace([&] {
    plot(std::tan(p_.Sustilare) * across_ - over(p_.DistPiedeCentro, std::cos(p_.Sustilare)), ink,
         {Sun::kOpen, 0});
  });
}

// Of the plane in the foot: everywhere the hour of its substyle.
void Drawing::ParamSustilare() {
  const double H = hourOfSubstyle(p_);
  const Ink ink{.colour = palette(9), .family = CurveFamily::Hours};
  trace([&] { plot(hourOrdinate(H), ink, {H}); });
}

}  // namespace

void QuadranteCilindricoParam(Run& run) {
  const double latitude = run.number(Field::txtLAT);
  if (latitude < 0) {
    run.refuse(kSouthernMessage);
    return;
  }
  if (latitude == 0) {
    run.refuse(run.T("Sorry, unable to work at the equator "));
    return;
  }
  run.message(run.T(kDefinitionNotice));
  drawFramed(run,
             "Cylindrical sundial of circular cross-section as a set of points : parametric method",
             [&run] {
               LeggiParametriSito(run);
               Drawing(run).all();
             });
}

}  // namespace dialwright
