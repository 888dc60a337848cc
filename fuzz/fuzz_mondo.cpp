// Files of coastlines, drawn on a plane.
#include <cmath>

#include "fuzz/support.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace dialwright;
  fuzz::folder().put("mondo.csv", fuzz::textOf(data, size));
  Program program(fuzz::config());
  program.click(Item::mnuUni);
  program.CmdRun_Click();
  program.press("cmdStati");
  program.press("cmdPlot");
  for (const LineRecord& line : program.sheet().list().lines)
    fuzz::demand(std::isfinite(line.x1 + line.y1 + line.x2 + line.y2), "lines have places");
  return 0;
}
