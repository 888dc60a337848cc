// Lays the parts of the sheet on A4 paper.
#include "paper/page_writer.hpp"

#include "paper/cairo_target.hpp"
#include "paper/ink.hpp"
#include "paper/picture.hpp"
#include "paper/surface.hpp"

namespace dialwright {

namespace {

constexpr double kMillimetre = kTwipsPerMeter / 1000;

// What stands in the margins, in millimetres.
constexpr double kMarkGap = 0.5;
constexpr double kMarkLength = 4;
constexpr double kMarkWidth = 0.1;
constexpr double kRuler = 100;
constexpr double kTick = 1.5;
constexpr double kLongTick = 2.5;
constexpr double kRulerLift = 2.2;  // from the page's lower edge
constexpr double kLabelSize = 2.4;

// --- Margins. Positions are millimetres from the page's corner.

class Margin {
 public:
  explicit Margin(DrawTarget& target) : target_(target) {}

  static constexpr StrokeLook kLook{.width = kMarkWidth * kMillimetre,
                                    .textSize = kLabelSize * kMillimetre};

  void cropMarks() {
    for (const double x : {0.0, kWidth}) {
      for (const double y : {0.0, kHeight}) {
        const double outX = x == 0 ? -1 : 1;
        const double outY = y == 0 ? -1 : 1;
        line(x + outX * kMarkGap, y, x + outX * kMarkLength, y);
        line(x, y + outY * kMarkGap, x, y + outY * kMarkLength);
      }
    }
  }

  // A tick for each centimetre, longer ones at the ends and in the middle.
  void ruler() {
    constexpr double kLeft = (kWidth - kRuler) / 2;
    constexpr double kBase = kHeight + kRulerLift + kLongTick;
    line(kLeft, kBase, kLeft + kRuler, kBase);
    for (int tick = 0; tick <= 10; ++tick) {
      const double x = kLeft + tick * kRuler / 10;
      line(x, kBase - (tick % 5 == 0 ? kLongTick : kTick), x, kBase);
    }
    text(kLeft + kRuler + 2, "100 mm");
  }

  void label(const PageGrid& grid, int number) {
    const int column = (number - 1) % grid.columns() + 1;
    const int row = (number - 1) / grid.columns() + 1;
    text(5, std::to_string(number) + "   (" + std::to_string(column) + " / " +
                std::to_string(grid.columns()) + ",  " + std::to_string(row) + " / " +
                std::to_string(grid.rows()) + ")");
  }

 private:
  static constexpr double kWidth = kPageW * 1000;
  static constexpr double kHeight = kPageH * 1000;

  void line(double x1, double y1, double x2, double y2) {
    target_.line(x1 * kMillimetre, y1 * kMillimetre, x2 * kMillimetre, y2 * kMillimetre, kBlack, 1);
  }
  void text(double x, std::string_view text) {
    target_.text(x * kMillimetre, (kHeight + kRulerLift) * kMillimetre, text, kBlack);
  }

  DrawTarget& target_;
};

// The picture with the page's rectangle as the sheet, cut at its edges.
void drawPage(const SheetPlot& sheet, const SelectedPage& page, const PagesOptions& options,
              PaperDocument& document) {
  SheetFrame frame = sheet.frame();
  frame.factor = kTwipsPerMeter;
  frame.width = kPageW;
  frame.height = kPageH;
  frame.shiftX -= page.x;
  frame.shiftY -= page.y;
  frame.paper = true;
  const auto target = document.target({.inks = options.inks,
                                       .ground = sheet.BackColor,
                                       .width = options.lineWidth * kTwipsPerMeter,
                                       .textSize = textSizeAt(sheet, 1)},
                                      true);
  drawPicture(sheet, frame, *target);
}

// A target on a part of the paper that the drawing is cut at.
class CutTarget : public CairoTarget {
 public:
  CutTarget(cairo_t* cairo, const StrokeLook& look) : CairoTarget(cairo, look), cairo_(cairo) {
    cairo_save(cairo_);
    cairo_rectangle(cairo_, 0, 0, kPageW * kTwipsPerMeter, kPageH * kTwipsPerMeter);
    cairo_clip(cairo_);
  }
  CutTarget(const CutTarget&) = delete;
  CutTarget& operator=(const CutTarget&) = delete;
  ~CutTarget() override {
    flush();
    cairo_restore(cairo_);
  }

 private:
  cairo_t* cairo_;
};

// Nothing reaches the sink before there is something to draw.
class PdfDocument : public PaperDocument {
 public:
  explicit PdfDocument(const Sink& sink) : to_{sink} {}

  std::unique_ptr<DrawTarget> target(const StrokeLook& look, bool cut) override {
    if (!surface_) {
      surface_ = pdfSurface(to_, kPaperW, kPaperH);
      cairo_ = pdfContext(surface_.get());
      cairo_translate(cairo_.get(), kMarginX * kTwipsPerMeter, kMarginY * kTwipsPerMeter);
    }
    if (cut) return std::make_unique<CutTarget>(cairo_.get(), look);
    return std::make_unique<CairoTarget>(cairo_.get(), look);
  }
  void newPage() override { cairo_show_page(cairo_.get()); }
  std::string end() { return finish(surface_.get(), to_); }

 private:
  CairoSink to_;
  CairoSurface surface_;
  CairoContext cairo_;
};

}  // namespace

std::string layPages(const SheetPlot& sheet, PaperDocument& document, const PagesOptions& options) {
  const PageGrid grid(sheet);
  for (const int number : options.numbers) {
    if (number >= 1 && number <= grid.pages()) continue;
    return "There is no page " + std::to_string(number) + "; the pages of this sheet are 1 to " +
           std::to_string(grid.pages()) + ".";
  }
  const std::vector<int> numbers = options.numbers.empty() ? inkedPages(sheet) : options.numbers;
  if (numbers.empty()) return "No page of this sheet carries ink.";

  bool first = true;
  for (const int number : numbers) {
    if (!first) document.newPage();
    first = false;
    drawPage(sheet, grid.page(number), options, document);
    const auto target = document.target(Margin::kLook, false);
    Margin margin(*target);
    margin.cropMarks();
    margin.ruler();
    margin.label(grid, number);
  }
  return {};
}

std::string writePages(const SheetPlot& sheet, const Sink& sink, const PagesOptions& options) {
  PdfDocument document(sink);
  std::string problem = layPages(sheet, document, options);
  return problem.empty() ? document.end() : problem;
}

}  // namespace dialwright
