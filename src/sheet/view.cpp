// What the sheet's commands, lists, bars and clicks do to the model.
#include "sheet/view.hpp"

#include <algorithm>
#include <cmath>

#include "numerics/numbers.hpp"
#include "numerics/sweep.hpp"

namespace dialwright {

namespace {

constexpr std::array kScales = {1, 2, 3, 4, 5, 10, 20, 100};

constexpr Rgb kAxesColour = palette(12);
constexpr Rgb kGridColour = 0x808080;
constexpr Rgb kSelectionColour = 33023;  // an orange

// Where the letters of the axes and the number of a page stand, in metres.
constexpr double kLetterGap = 0.04;
constexpr double kLetterRise = 0.06;
constexpr double kNumberGap = 0.003;

std::optional<Rgb> lookFor(double sign) {
  if (sign == 1) return {};
  return kInvertedLook;
}

}  // namespace

std::optional<char32_t> InputSoloNumeri(char32_t key, const std::function<void()>& beep) {
  constexpr char32_t kBackspace = 8;
  constexpr std::u32string_view kTaken = U"0123456789,.-";
  if (key == kBackspace) return key;
  if (kTaken.find(key) == std::u32string_view::npos) {
    if (beep) beep();
    return {};
  }
  return key == U',' ? U'.' : key;
}

SheetView::SheetView(SheetPlot& sheet) : sheet_(sheet) {
  sheet_.watch(this);
  sizeSet();
  shiftSet();
}

SheetView::~SheetView() { sheet_.watch(nullptr); }

void SheetView::press(SheetCommand command) {
  switch (command) {
    case SheetCommand::cmdInvX: invertX(); break;
    case SheetCommand::cmdInvY: invertY(); break;
    case SheetCommand::cmdDxf: call(ports.exportDxf); break;
    case SheetCommand::cmdSave: call(ports.saveBitmap); break;
    case SheetCommand::cmdDim: dimensionsPanel_ = true; break;
    case SheetCommand::cmdPulisci: sheet_.Clear(); break;
    case SheetCommand::CmdGriglia: xPlotA4(); break;
    case SheetCommand::cmdAssi: drawAxes(); break;
    case SheetCommand::cmdStampa: print(); break;
    case SheetCommand::cmdAssiAgg: updateAxes(); break;
    case SheetCommand::cmdAssiChiudi: axesPanel_ = false; break;
    case SheetCommand::cmdQAggiorna: updateDimensions(); break;
    case SheetCommand::cmdQAnnulla: dimensionsPanel_ = false; break;
    case SheetCommand::optAll: wholeArea_ = true; break;
    case SheetCommand::optSelected: wholeArea_ = false; break;
    case SheetCommand::cmdPOk: printChosen(); break;
    case SheetCommand::cmdPCancel: printPanel_ = false; break;
  }
  changed();
}

void SheetView::call(const std::function<void()>& port) const {
  if (port) port();
}

double SheetView::number(SheetField field) const { return numberOf(text(field)); }

// --- What the sheet tells

void SheetView::shiftSet() {
  setText(SheetField::txtX, textOf(sheet_.ShiftX()));
  setText(SheetField::txtY, textOf(sheet_.ShiftY()));
  changed();
}

void SheetView::sizeSet() {
  setText(SheetField::txtQH, textOf(rounded(sheet_.QuadranteH(), 2)));
  setText(SheetField::txtQL, textOf(rounded(sheet_.QuadranteL(), 2)));
  CaricaComboScala(sheet_.ScalaMinima(), sheet_.Scala());
  ResizeSurface();
}

void SheetView::scaleSet() { ResizeSurface(); }

void SheetView::cleared() {
  printPanel_ = false;
  selected_.clear();
  hasAxes_ = hasGrid_ = false;
  lookX_.reset();
  lookY_.reset();
  changed();
}

// --- Scale and surface

void SheetView::CaricaComboScala(int minimum, int current) {
  scaleItems_.clear();
  scaleText_.clear();
  for (const int n : kScales) {
    if (n < minimum) continue;
    scaleItems_.push_back({"1:" + std::to_string(n), n});
    if (n == current) scaleText_ = scaleItems_.back().text;
  }
}

void SheetView::chooseScale(std::size_t index) {
  if (index >= scaleItems_.size()) return;
  scaleText_ = scaleItems_[index].text;
  sheet_.Scala(scaleItems_[index].n);
  sheet_.Refresh();
  changed();
}

void SheetView::ResizeSurface() {
  if (sheet_.OutputToPRN()) return;
  surfaceHeight_ = sheet_.QuadranteH() * kTwipsPerMeter / sheet_.Scala();
  surfaceWidth_ = sheet_.QuadranteL() * kTwipsPerMeter / sheet_.Scala();
  vertical_ = {0, surfaceHeight_, controlHeight_};
  horizontal_ = {0, surfaceWidth_, controlWidth_};
  dimensions_ =
      textOf(rounded(sheet_.QuadranteH(), 0)) + " x " + textOf(rounded(sheet_.QuadranteL(), 0));
  changed();
}

void SheetView::scrollTo(double horizontal, double vertical) {
  horizontal_.value = std::clamp(horizontal, 0.0, std::max(0.0, horizontal_.maximum));
  vertical_.value = std::clamp(vertical, 0.0, std::max(0.0, vertical_.maximum));
  changed();
}

void SheetView::resizeControl(double width, double height) {
  controlWidth_ = width;
  controlHeight_ = height;
}

// --- Inversion. The two buttons show their state on different sides of the redrawing.

void SheetView::invertX() {
  sheet_.invertX();
  sheet_.Refresh();
  lookX_ = lookFor(sheet_.SignX());
}

void SheetView::invertY() {
  sheet_.invertY();
  lookY_ = lookFor(sheet_.SignY());
  sheet_.Refresh();
}

// --- Axes and dimensions

void SheetView::Assi() {
  hasAxes_ = true;
  const double left = sheet_.xMin();
  const double right = sheet_.xMax();
  const double top = sheet_.yMin();
  sheet_.xLine(left, 0, right, 0, kAxesColour, {.layer = sheet_.layer("AsseX")});
  sheet_.xLine(0, top, 0, sheet_.yMax(), kAxesColour, {.layer = sheet_.layer("AsseY")});
  sheet_.Dati("O", kLetterGap, -kLetterGap);
  sheet_.Dati("y", kLetterGap, top + kLetterGap);
  sheet_.Dati("x", right - kLetterGap, -kLetterRise);
}

void SheetView::drawAxes() {
  Assi();
  axesPanel_ = true;
}

void SheetView::updateAxes() {
  // Both are read first: a set shift is written back into its field.
  const double x = number(SheetField::txtX);
  const double y = number(SheetField::txtY);
  sheet_.ShiftX(x);
  sheet_.ShiftY(y);
  axesPanel_ = false;
  sheet_.Refresh();
  press(SheetCommand::cmdAssi);
}

void SheetView::updateDimensions() {
  const double height = number(SheetField::txtQH);
  const double width = number(SheetField::txtQL);
  sheet_.QuadranteH(height);
  sheet_.QuadranteL(width);
  dimensionsPanel_ = false;
}

// --- Pages

// The bounds mix height and width: lines past the surface are kept too, and reach the paper.
void SheetView::xPlotA4() {
  hasGrid_ = true;
  const double width = sheet_.QuadranteL();
  const double height = sheet_.QuadranteH();
  const double left = sheet_.xMin();
  const double top = sheet_.yMin();
  const LineStyle style{.layer = sheet_.layer("Page")};
  for (const double y : Sweep(0, sheet_.PageH() * 3 + width, sheet_.PageH())) {
    sheet_.xLine(left, y + top, width + left, y + top, kGridColour, style);
  }
  for (const double x : Sweep(0, sheet_.PageW() * 3 + height, sheet_.PageW())) {
    sheet_.xLine(x + left, top, x + left, height + top, kGridColour, style);
  }
}

void SheetView::xTrovaA4(double x, double y) {
  SelectedPage page = PageGrid(sheet_).at(x, y);
  page.x += sheet_.xMin();
  page.y += sheet_.yMin();
  drawPage(page);
  selected_.push_back(page);
}

void SheetView::drawPage(const SelectedPage& page) {
  const double left = page.x;
  const double top = page.y;
  const double right = left + sheet_.PageW();
  const double bottom = top + sheet_.PageH();
  const LineStyle style{.layer = sheet_.layer("sys:page")};
  sheet_.xLine(left, top, left, bottom, kSelectionColour, style);
  sheet_.xLine(left, top, right, top, kSelectionColour, style);
  sheet_.xLine(right, top, right, bottom, kSelectionColour, style);
  sheet_.xLine(left, bottom, right, bottom, kSelectionColour, style);
  sheet_.Dati(textOf(page.number), left + kNumberGap, top + kNumberGap);
}

void SheetView::redrawOwn() {
  if (hasAxes_) Assi();
  if (hasGrid_) xPlotA4();
  for (const SelectedPage& page : selected_) drawPage(page);
}

void SheetView::click(double xTwips, double yTwips) {
  const double x = xTwips / kTwipsPerMeter * sheet_.Scala();
  const double y = yTwips / kTwipsPerMeter * sheet_.Scala();
  lastClick_ = textOf(std::floor((x - sheet_.ShiftX()) * 1000)) + " : " +
               textOf(std::floor((y - sheet_.ShiftY()) * 1000));
  xTrovaA4(x, y);
  changed();
}

// --- Printing

void SheetView::print() {
  if (selected_.empty()) {
    PrintAll();
  } else {
    printPanel_ = true;
  }
}

void SheetView::printChosen() {
  if (wholeArea_) {
    PrintAll();
  } else {
    PrintArea();
  }
  printPanel_ = false;
}

void SheetView::PrintAll() {
  if (ports.print) ports.print([this](Printer& printer) { dialwright::PrintAll(sheet_, printer); });
}

void SheetView::PrintArea() {
  if (selected_.empty()) {
    if (ports.message) ports.message("Nessuna area selezionata");
    return;
  }
  if (!ports.print) return;
  ports.print([this](Printer& printer) { dialwright::PrintArea(sheet_, printer, selected_); });
}

}  // namespace dialwright
