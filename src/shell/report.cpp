// The report: its general block, the day lengths and the order of the other blocks.
#include "shell/report.hpp"

#include <array>
#include <cmath>

#include "numerics/numbers.hpp"
#include "shell/dispatch.hpp"
#include "shell/report_lines.hpp"

namespace dialwright {

namespace {

constexpr double kFromLeftEdge = 10;  // metres to the first line: off the sheet, on purpose

// The dials that have a flat block, in the order of their blocks.
constexpr std::array kFlat = {Item::mnuUni,  Item::mnuVertSph,   Item::M_Frinter,
                              Item::M_Light, Item::M_Proiettivo, Item::M_nProiettivo};

void generalBlock(const Report& r) {
  const SheetPlot& sheet = r.run.sheet;
  const auto typed = [&r](Field field) { return r.run.panel.text(field); };
  const double fromLeft = r.run.trueShadows() ? 0 : kFromLeftEdge;
  r.run.sheet.Dati(r.run.T("DATA: "), -sheet.ShiftX() + fromLeft, -sheet.ShiftY());
  r.say({{"Latitude ", typed(Field::txtLAT), kDegree},
         {"Longitude ", typed(Field::txtLON), kDegree}});
  if (!r.f.level) r.say({{"Declination ", typed(Field::txtDecl), kDegree}});
  if (r.p.ModoDati == 1) {
    r.say({{"Reclination ", cut(r.f.ReclinGradi), kDegree},
           {"Inclination ", cut(r.p.InclinGradi), kDegree}});
  }
}

void dayLengths(const Report& r) {
  const double t = -std::tan(std::abs(r.p.LatRad)) * std::tan(r.p.radians(kSolstice));
  if (!(std::abs(t) < 1)) {
    r.say({{"Shortest day:   0 h "}, {"Longest day:   24 h "}});
    return;
  }
  double arc = 0;
  assign(arc, r.p.LatRad == 0 ? -r.p.PiGreco / 2 : arctan(over(root(1 - t * t), t)));
  const double day = 2 * arc * 12 / r.p.PiGreco;
  r.say({{"Shortest day:    ", hoursMinutesSeconds(std::abs(day))},
         {"Longest day:    ", hoursMinutesSeconds(std::abs(day + 24))}});
}

}  // namespace

void cmdData_Click(Run& run) {
  const Report report{run, run.params, prepareReport(run)};
  generalBlock(report);
  for (const Item dial : kFlat) {
    if (run.panel[dial].checked) flatBlock(report);
  }
  dayLengths(report);
  if (run.params.ModoDati == 0) cylinderBlock(report);
  if (run.params.ModoDati == 1 && run.params.SegnoEmisfero > 0) sunsPathBlock(report);
  if (run.params.ModoDati == 1 && run.params.ReclinRad == 0 && run.on(Field::ckFunction))
    TabelleCoordinate(report);
  run.finish();
}

}  // namespace dialwright
