// Program 8: an upright cylinder of circular cross-section by its tangent planes. The angle theta
// runs round the section; in each of its samples the surface is the plane dial that touches it
// there, and the curves are dots.
#include "dials/cylindrical/parametrico.hpp"

#include <array>
#include <cmath>

#include "dials/cylindrical/cylinder.hpp"
#include "dials/cylindrical/dotted.hpp"
#include "dials/flat/substyle_frame.hpp"
#include "dials/pen.hpp"
#include "dials/site.hpp"
#include "dials/sun.hpp"

namespace dialwright {

namespace {

class Drawing {
 public:
  explicit Drawing(Run& run) : run_(run), p_(run.params), sheet_(run.sheet) {}

  void all();

 private:
  bool on(Field field) const { return run_.on(field); }
  void LeggiCilindroParam();
  void touch(double theta);
  SubstyleTurn turn() const { return {p_.Sustilare, p_.DistPiedeCentro}; }
  double hourOrdinate(double H);
  void plot(double ordinate, int colour);
  void plot(Roots ordinates, int colour);
  // A curve round the section. Each sample gets its plane before its dots.
  template <class Sample>
  void trace(Sample sample);

  void ParamOre();
  void ParamDeclinazioni();
  void ParamEquinoziale();
  void ParamSustilare();
  void ParamItaliche();
  void ParamBabiloniche();
  void oldHours(double side, int colour);

  Run& run_;
  DialParams& p_;
  SheetPlot& sheet_;
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

void Drawing::plot(double ordinate, int colour) {
  if (sound(ordinate)) dot(sheet_, {x_, ordinate}, palette(colour));
}

void Drawing::plot(Roots ordinates, int colour) {
  plot(ordinates.minus, colour);
  plot(ordinates.plus, colour);
}

// --- Hours

// Those of the sun, whatever the box of the zone's time says.
void Drawing::ParamOre() {
  readUsaLongitudine(run_);
  double y = 0;
  for (const double t : run_.sweep(-90, 90, p_.PassoOre, {.step = Field::TxtHour})) {
    trace([&] {
      assign(y, hourOrdinate(p_.radians(t)));
      plot(y, hourInk(t));
    });
  }
}

void Drawing::oldHours(double side, int colour) {
  for (const double t : run_.sweep(-kLastOldHour, kLastOldHour, 15)) {
    trace([&] {
      const OldHourLine line(p_.LatRad, distance_, p_.ElevStilo, p_.OrarioSustilare + p_.radians(t),
                             side);
      plot(line.ordinate(turn(), across_), colour);
    });
  }
}

// With the conic that they touch: the days without a sunset.
void Drawing::ParamItaliche() {
  oldHours(-1, 14);
  const double t = std::tan(p_.LatRad);
  trace([&] {
    ConicSet& conic = p_.conic(Declination::Latitude);
    setConic(conic, distance_, p_.ElevStilo, t * t);
    plot(conicOrdinates(conic, turn(), across_), 11);
  });
}

void Drawing::ParamBabiloniche() { oldHours(1, 11); }

// --- The lines of a day, and the substyle

void Drawing::ParamDeclinazioni() {
  std::array<double, kDeclinationPairs.size()> K{};
  for (std::size_t i = 0; i < K.size(); ++i) K[i] = coneOf(p_, kDeclinationPairs[i].declination);
  trace([&] {
    for (std::size_t i = 0; i < K.size(); ++i) {
      ConicSet& conic = p_.conic(kDeclinationPairs[i].conic);
      setConic(conic, distance_, p_.ElevStilo, K[i]);
      plot(conicOrdinates(conic, turn(), across_), kDeclinationPairs[i].colour);
    }
  });
}

void Drawing::ParamEquinoziale() {
  trace([this] {
    plot(std::tan(p_.Sustilare) * across_ - over(p_.DistPiedeCentro, std::cos(p_.Sustilare)), 9);
  });
}

// Of the plane in the foot: everywhere the hour of its substyle.
void Drawing::ParamSustilare() {
  const double H = hourOfSubstyle(run_);
  trace([&] { plot(hourOrdinate(H), 9); });
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
  DisegnaCornice(run);
  run.hourglass(true);
  run.sheet.Messaggio(run.T(
      "Cylindrical sundial of circular cross-section as a set of points : parametric method"));
  LeggiParametriSito(run);
  Drawing(run).all();
  run.hourglass(false);
}

}  // namespace dialwright
