// The sheet's view: scale, scrolling, axes, page grid, panels and read-outs as operations on the
// model, for any face.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "sheet/commands.hpp"
#include "sheet/pages.hpp"
#include "sheet/printing.hpp"
#include "sheet/sheet_plot.hpp"

namespace dialwright {

// The bar over the surface, in twips.
inline constexpr double kHeadHeight = 400;

// The colour of an inversion button while its axis is inverted.
inline constexpr Rgb kInvertedLook = 0x80FFFF;

// What the view asks of the face that holds it. Each may be empty.
struct ViewPorts {
  std::function<void()> exportDxf;
  std::function<void()> saveBitmap;
  // Prepares a printer, gives it to the job, and takes its document; nothing on a cancel.
  std::function<void(const std::function<void(Printer&)>&)> print;
  std::function<void(std::string_view)> message;
  std::function<void()> changed;  // something that the view shows is new
};

struct ScaleItem {
  std::string text;
  int n;
};

struct ScrollBar {
  double value = 0;
  double maximum = 0;
  double largeChange = 0;
};

// The key that a number field takes instead of the typed one: backspace and "0123456789.-" as they
// are, "." for ","; none, with a beep, for all others.
std::optional<char32_t> InputSoloNumeri(char32_t key, const std::function<void()>& beep);

class SheetView : private SheetWatcher {
 public:
  explicit SheetView(SheetPlot& sheet);
  ~SheetView() override;
  SheetView(const SheetView&) = delete;
  SheetView& operator=(const SheetView&) = delete;

  ViewPorts ports;

  SheetPlot& sheet() { return sheet_; }

  // A press of a button, or a click on an option of the print panel.
  void press(SheetCommand command);

  // --- The list of scales
  void CaricaComboScala(int minimum, int current);
  const std::vector<ScaleItem>& scaleItems() const { return scaleItems_; }
  const std::string& scaleText() const { return scaleText_; }
  // The user's choice in the list; an index that it doesn't have changes nothing.
  void chooseScale(std::size_t index);

  // --- The surface, in twips
  void ResizeSurface();
  double surfaceWidth() const { return surfaceWidth_; }
  double surfaceHeight() const { return surfaceHeight_; }
  double surfaceLeft() const { return -horizontal_.value; }
  double surfaceTop() const { return kHeadHeight - vertical_.value; }
  const ScrollBar& HScroll1() const { return horizontal_; }
  const ScrollBar& VScroll1() const { return vertical_; }
  void scrollTo(double horizontal, double vertical);
  // The control got a new size, the bar included.
  void resizeControl(double width, double height);

  // --- What is drawn on the sheet
  void Assi();
  void xPlotA4();
  // Frames the page under a place (metres from the sheet's corner), numbers it and selects it.
  void xTrovaA4(double x, double y);
  const std::vector<SelectedPage>& selectedPages() const { return selected_; }
  // Draws again, on a sheet that was emptied under them, the axes, the grid and the selected pages
  // that stood there.
  void redrawOwn();
  // A click on the surface, in twips from its corner.
  void click(double xTwips, double yTwips);

  void PrintAll();
  void PrintArea();

  // --- Panels and read-outs
  const std::string& text(SheetField field) const { return texts_[place(field)]; }
  void setText(SheetField field, std::string_view text) { texts_[place(field)] = text; }
  bool axesPanel() const { return axesPanel_; }
  bool dimensionsPanel() const { return dimensionsPanel_; }
  bool printPanel() const { return printPanel_; }
  bool wholeArea() const { return wholeArea_; }
  const std::string& lblDimVal() const { return dimensions_; }
  const std::string& lblXYval() const { return lastClick_; }
  // The colours of the inversion buttons; none while they look as cmdAssi does.
  std::optional<Rgb> lookOfInvX() const { return lookX_; }
  std::optional<Rgb> lookOfInvY() const { return lookY_; }

 private:
  static std::size_t place(SheetField field) { return static_cast<std::size_t>(field); }
  double number(SheetField field) const;
  void shiftSet() override;
  void sizeSet() override;
  void scaleSet() override;
  void cleared() override;

  void invertX();
  void invertY();
  void drawAxes();
  void drawPage(const SelectedPage& page);
  void updateAxes();
  void updateDimensions();
  void print();
  void printChosen();
  void call(const std::function<void()>& port) const;
  void changed() const { call(ports.changed); }

  SheetPlot& sheet_;
  std::vector<ScaleItem> scaleItems_;
  std::string scaleText_;
  std::array<std::string, std::size(kSheetFields)> texts_;
  std::vector<SelectedPage> selected_;
  bool hasAxes_ = false;  // drawn since the sheet was last cleared
  bool hasGrid_ = false;
  ScrollBar horizontal_;
  ScrollBar vertical_;
  double surfaceWidth_ = 0;
  double surfaceHeight_ = 0;
  double controlWidth_ = 0;
  double controlHeight_ = 0;
  std::string dimensions_;
  std::string lastClick_;
  std::optional<Rgb> lookX_;
  std::optional<Rgb> lookY_;
  bool axesPanel_ = false;
  bool dimensionsPanel_ = false;
  bool printPanel_ = false;
  bool wholeArea_ = false;
};

}  // namespace dialwright
