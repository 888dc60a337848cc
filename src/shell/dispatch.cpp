// The run's dispatch.
#include "shell/dispatch.hpp"

#include "sheet/pen.hpp"

namespace dialwright {

bool CmdRun_Click(Run& run, std::span<const DriverRow> drivers) {
  DialParams& p = run.params;
  run.panel[Field::cmdData].visible = true;
  p.SegnoEmisfero = 1;
  p.SegnoLon = run.number(Field::txtLON) < 0 ? 1 : -1;
  p.SegnoEmisfero = run.number(Field::txtLAT) < 0 ? -1 : 1;
  assign(p.DeclGradi, run.number(Field::txtDecl));
  assign(p.DeclRad, p.radians(p.DeclGradi));
  p.SegnoDecl = signOrOne(p.DeclGradi);
  assign(p.ReclinGradi, run.number(Field::txtReclinZ));
  p.InclinGradi = 90 - p.ReclinGradi * p.SegnoEmisfero;
  if (run.on(Field::OptHorizontal)) {
    p.InclinGradi = p.ReclinGradi;
    p.ReclinGradi = (90 - p.ReclinGradi) * p.SegnoEmisfero;
  }
  // The first checked dial of the chain draws; the one with a variable to choose is tried after the
  // chain in any case.
  bool drawn = false;
  for (const DriverRow& row : drivers) {
    const bool apart = row.item == Item::M_Inclinati;
    if (!run.panel[row.item].checked || (drawn && !apart)) continue;
    row.draw(run);
    drawn = true;
  }
  run.finish();
  return drawn;
}

void DisegnaCornice(Run& run) {
  if (!run.on(Field::ckFrame)) return;
  const double x1 = run.number(Field::x1txt);
  const double y1 = run.number(Field::y1txt);
  const double x2 = run.number(Field::x2txt);
  const double y2 = run.number(Field::y2txt);
  run.sheet.xBox(x1, sheetY(y1), x2, sheetY(y2), palette(3), false, run.sheet.layer("Quadro"));
}

}  // namespace dialwright
