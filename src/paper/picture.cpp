// Draws the display list into a PDF or a bitmap without touching the sheet.
#include "paper/picture.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include "numerics/numbers.hpp"
#include "paper/surface.hpp"

namespace dialwright {

namespace {

template <class... Cases>
struct Overloaded : Cases... {
  using Cases::operator()...;
};

SheetFrame frameAt(const SheetPlot& sheet, int n) {
  SheetFrame frame = sheet.frame();
  frame.factor = kTwipsPerMeter / n;
  frame.black = false;
  return frame;
}

void paintGround(cairo_t* cairo, const SheetPlot& sheet, Inks inks) {
  setSource(cairo, inks == Inks::Own ? sheet.BackColor : kWhite);
  cairo_paint(cairo);
}

std::string refusal(const SheetPlot& sheet, int n) {
  if (n < 1) return "The scale is 1:n with n of 1 or more.";
  if (!(sheet.QuadranteL() > 0 && sheet.QuadranteH() > 0)) return "The sheet has no size.";
  return {};
}

// --- Bitmaps

struct PixelSize {
  int width, height;
  bool allowed;
};

PixelSize pixelsAt(const SheetPlot& sheet, int n) {
  const double perMeter = kTwipsPerMeter / n / kPixel;
  const double width = std::max(1.0, std::ceil(sheet.QuadranteL() * perMeter - 1e-6));
  const double height = std::max(1.0, std::ceil(sheet.QuadranteH() * perMeter - 1e-6));
  const bool allowed =
      std::max(width, height) <= kMostPixelsOfSide && width * height <= kMostPixels;
  if (!allowed) return {0, 0, false};
  return {static_cast<int>(width), static_cast<int>(height), true};
}

std::string tooLarge(const SheetPlot& sheet, int n) {
  int fitting = n;
  while (!pixelsAt(sheet, fitting).allowed) ++fitting;
  return "A bitmap of this sheet at 1:" + std::to_string(n) +
         " would be too large; 1:" + std::to_string(fitting) + " is the largest that can be made.";
}

// The sheet on an image surface; none, with the reason in `problem`, when it can't be made.
CairoSurface paintBitmap(const SheetPlot& sheet, const PictureOptions& options,
                         std::string& problem) {
  const int n = options.scale.value_or(sheet.Scala());
  problem = refusal(sheet, n);
  if (!problem.empty()) return {};
  const PixelSize size = pixelsAt(sheet, n);
  if (!size.allowed) {
    problem = tooLarge(sheet, n);
    return {};
  }
  CairoSurface surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, size.width, size.height));
  const CairoContext cairo(cairo_create(surface.get()));
  paintGround(cairo.get(), sheet, options.inks);
  cairo_scale(cairo.get(), 1 / kPixel, 1 / kPixel);
  {
    CairoTarget target(cairo.get(), {.inks = options.inks,
                                     .ground = sheet.BackColor,
                                     .width = kPixel,
                                     .textSize = textSizeAt(sheet, n),
                                     .pixel = kPixel});
    drawPicture(sheet, frameAt(sheet, n), target);
  }
  cairo_surface_flush(surface.get());
  const cairo_status_t status = cairo_status(cairo.get());
  if (status != CAIRO_STATUS_SUCCESS) problem = cairo_status_to_string(status);
  return surface;
}

// --- The Windows bitmap: a header of 14 bytes, one of 40, and rows of blue, green and red from the
// bottom up, each filled to a multiple of four bytes.

void put(std::string& bytes, std::uint32_t value, int count) {
  for (int i = 0; i < count; ++i, value >>= 8) bytes += static_cast<char>(value & 255);
}

std::string bmpHeader(int width, int height, std::size_t rowBytes) {
  constexpr std::uint32_t kHeaders = 54;
  constexpr std::uint32_t kPixelsPerMeter = 3780;  // 96 to the inch
  const auto pixels = static_cast<std::uint32_t>(rowBytes * static_cast<std::size_t>(height));
  std::string bytes = "BM";
  put(bytes, kHeaders + pixels, 4);
  put(bytes, 0, 4);
  put(bytes, kHeaders, 4);
  put(bytes, 40, 4);
  put(bytes, static_cast<std::uint32_t>(width), 4);
  put(bytes, static_cast<std::uint32_t>(height), 4);
  put(bytes, 1, 2);   // planes
  put(bytes, 24, 2);  // bits a pixel
  put(bytes, 0, 4);   // no compression
  put(bytes, pixels, 4);
  put(bytes, kPixelsPerMeter, 4);
  put(bytes, kPixelsPerMeter, 4);
  put(bytes, 0, 8);  // no palette
  return bytes;
}

void writeBmpRows(cairo_surface_t* image, const Sink& sink) {
  const auto width = static_cast<std::size_t>(cairo_image_surface_get_width(image));
  const int height = cairo_image_surface_get_height(image);
  const int stride = cairo_image_surface_get_stride(image);
  const unsigned char* data = cairo_image_surface_get_data(image);
  std::string row((width * 3 + 3) / 4 * 4, '\0');
  sink(bmpHeader(static_cast<int>(width), height, row.size()));
  for (int y = height - 1; y >= 0; --y) {
    const auto* pixels =
        reinterpret_cast<const std::uint32_t*>(data + static_cast<std::ptrdiff_t>(y) * stride);
    for (std::size_t x = 0; x < width; ++x) {
      row[3 * x] = static_cast<char>(pixels[x] & 255);
      row[3 * x + 1] = static_cast<char>(pixels[x] >> 8 & 255);
      row[3 * x + 2] = static_cast<char>(pixels[x] >> 16 & 255);
    }
    sink(row);
  }
}

}  // namespace

void drawPicture(const SheetPlot& sheet, const SheetFrame& frame, DrawTarget& target) {
  const auto drawPoint = [&](const PointRecord& point) {
    const double x = point.x * frame.signX;
    const double y = point.y * frame.signY;
    if (frame.holds(x, y)) target.point(frame.toTargetX(x), frame.toTargetY(y), point.colour);
  };
  const VertexRecord* last = nullptr;
  const auto drawVertex = [&](const VertexRecord& vertex) {
    if (vertex.mark == PolylineMark::Vertex && last != nullptr) {
      frame.draw({last->x, last->y, vertex.x, vertex.y}, vertex.colour, 1, target);
    }
    last = vertex.mark == PolylineMark::Vertex ? &vertex : nullptr;
  };
  sheet.list().visit(
      Overloaded{drawPoint, drawVertex, [&](const auto& record) { frame.draw(record, target); }});
  for (const TextRecord& text : sheet.list().texts) {
    target.text(frame.toTargetX(text.shownX), frame.toTargetY(text.shownY), text.text,
                text.shownColour);
  }
}

double textSizeAt(const SheetPlot& sheet, int n) { return kTextSize * sheet.Scala() / n; }

std::string writePdf(const SheetPlot& sheet, const Sink& sink, const PictureOptions& options) {
  const int n = options.scale.value_or(1);
  if (std::string problem = refusal(sheet, n); !problem.empty()) return problem;
  CairoSink to{sink};
  const CairoSurface surface = pdfSurface(to, sheet.QuadranteL() / n, sheet.QuadranteH() / n);
  const CairoContext cairo = pdfContext(surface.get());
  if (options.inks == Inks::Own) paintGround(cairo.get(), sheet, options.inks);
  {
    CairoTarget target(cairo.get(), {.inks = options.inks,
                                     .ground = sheet.BackColor,
                                     .width = options.lineWidth * kTwipsPerMeter,
                                     .textSize = textSizeAt(sheet, n)});
    SheetFrame frame = frameAt(sheet, n);
    frame.paper = true;
    drawPicture(sheet, frame, target);
  }
  return finish(surface.get(), to);
}

std::string writePng(const SheetPlot& sheet, const Sink& sink, const PictureOptions& options) {
  std::string problem;
  const CairoSurface image = paintBitmap(sheet, options, problem);
  if (!problem.empty()) return problem;
  CairoSink to{sink};
  return outcome(cairo_surface_write_to_png_stream(image.get(), writeToSink, &to), to);
}

std::string writeBmp(const SheetPlot& sheet, const Sink& sink, const PictureOptions& options) {
  std::string problem;
  const CairoSurface image = paintBitmap(sheet, options, problem);
  if (!problem.empty()) return problem;
  writeBmpRows(image.get(), sink);
  return {};
}

}  // namespace dialwright
