// Sends the sheet to a printer page by page.
#include "sheet/printing.hpp"

#include <string>

#include "numerics/numbers.hpp"

namespace dialwright {

namespace {

constexpr double kMargin = kTwipsPerMeter * 0.015;

// The sheet on the printer as long as this lives. What was changed meanwhile is put back at the
// end.
class AtPrinter {
 public:
  AtPrinter(SheetPlot& sheet, Printer& printer)
      : sheet_(sheet), was_(sheet.frame()), scale_(sheet.Scala()) {
    sheet_.OutputToPRN(&printer);
  }
  ~AtPrinter() {
    sheet_.OutputToPRN(nullptr);
    const SheetFrame& now = sheet_.frame();
    sheet_.resizeRaw(was_.height, was_.width);
    if (now.shiftX != was_.shiftX) sheet_.ShiftX(was_.shiftX);
    if (now.shiftY != was_.shiftY) sheet_.ShiftY(was_.shiftY);
    if (sheet_.Scala() != scale_) sheet_.Scala(scale_);
  }
  AtPrinter(const AtPrinter&) = delete;
  AtPrinter& operator=(const AtPrinter&) = delete;

 private:
  SheetPlot& sheet_;
  SheetFrame was_;
  int scale_;
};

}  // namespace

void PrintAll(SheetPlot& sheet, Printer& printer) {
  const AtPrinter turn(sheet, printer);
  double y = kMargin;
  const auto print = [&](std::string_view text) {
    printer.text(0, y, text, kBlack);
    y += kTextLine;
  };
  print(sheet.Marchio);
  for (const TextRecord& text : sheet.list().texts) print(text.recorded());
  sheet.Refresh();
  printer.endDocument();
}

void PrintArea(SheetPlot& sheet, Printer& printer, std::span<const SelectedPage> pages) {
  if (pages.empty()) return;
  const AtPrinter turn(sheet, printer);
  sheet.resizeRaw(sheet.PageH(), sheet.PageW());
  sheet.Scala(1);
  bool first = true;
  for (const SelectedPage& page : pages) {
    if (!first) printer.newPage();
    first = false;
    printer.text(kMargin, kMargin, textOf(page.number), kBlack);
    sheet.ShiftX(-page.x);
    sheet.ShiftY(-page.y);
    sheet.Refresh();
  }
  printer.endDocument();
}

}  // namespace dialwright
