// Draws a dial and frames its picture.
#include "ui/dial_picture.hpp"

#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <string>
#include <vector>

#include "app/program.hpp"
#include "paper/picture.hpp"

namespace dialwright {

namespace {

// What is set besides the texts of the click: curves where it leaves little to see, and closer
// dots.
struct Extra {
  Item dial;
  Field field;
  std::string_view text = {};  // of a text field; a box is checked
};

constexpr std::array kExtras = {
    Extra{Item::M_Light, Field::txt_Definition, "1"},
    Extra{Item::M_Inclinati, Field::txt_Definition, "1"},
    Extra{Item::M_Proiettivo, Field::txt_Definition, "1"},
    Extra{Item::M_nProiettivo, Field::txt_Definition, "1"},
    Extra{Item::M_Frinter, Field::txt_Definition, "2"},
    Extra{Item::M_Param, Field::txt_Definition, "1"},
    Extra{Item::M_CILINDRICI, Field::txt_Definition, "1"},
    Extra{Item::M_Parabolico, Field::txt_Definition, "1"},
    Extra{Item::mnuCircp, Field::txt_Definition, "1"},
    Extra{Item::mnuCorncil, Field::Ck_DayLightCurves},
    Extra{Item::mnuCorncon, Field::Ck_DayLightCurves},
    Extra{Item::mnuCorn_flat, Field::Ck_DayLightCurves},
    Extra{Item::mnuCorn_flat2, Field::Ck_DayLightCurves},
    Extra{Item::mnuConoAntico, Field::ck_Orizzonte},
};

// Pixels of the sheet's picture in which the ink is sought, and how much of it, at each of the four
// sides, may fall outside the frame: a few strokes of some dials run far away.
constexpr double kSearchWidth = 900;
constexpr double kStray = 0.004;
constexpr double kMargin = 0.05;  // of the framed ink

QImage imageOf(const SheetPlot& sheet, int scale, bool dark) {
  std::string png;
  const std::string problem = writePng(sheet, [&](std::string_view chunk) { png += chunk; },
                                       {.scale = scale, .inks = dark ? Inks::Own : Inks::Paper});
  return problem.empty() ? QImage::fromData(QByteArray::fromStdString(png), "PNG") : QImage();
}

struct Span {
  double first, last;
};

// The pixels between which all but the stray ink lies.
Span spanOf(const std::vector<double>& ink) {
  const double stray = kStray * std::accumulate(ink.begin(), ink.end(), 0.0);
  const auto from = [stray](auto at, const auto& end) {
    for (double seen = 0; at != end && (seen += *at) <= stray; ++at) {
    }
    return at;
  };
  return {static_cast<double>(from(ink.begin(), ink.end()) - ink.begin()),
          static_cast<double>(ink.rend() - from(ink.rbegin(), ink.rend()))};
}

// Where the ink lies in an image, in pixels; empty without any.
QRectF inkOf(const QImage& image) {
  std::vector<double> columns(static_cast<std::size_t>(image.width()));
  std::vector<double> rows(static_cast<std::size_t>(image.height()));
  const QRgb ground = image.pixel(0, 0);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixel(x, y) == ground) continue;
      ++columns[static_cast<std::size_t>(x)];
      ++rows[static_cast<std::size_t>(y)];
    }
  }
  const Span across = spanOf(columns);
  const Span down = spanOf(rows);
  if (across.last <= across.first || down.last <= down.first) return {};
  return {QPointF(across.first, down.first), QPointF(across.last, down.last)};
}

// The ink with its margin, widened to the shape of the picture.
QRectF framed(QRectF ink, QSize size) {
  const double margin = kMargin * std::max(ink.width(), ink.height());
  ink.adjust(-margin, -margin, margin, margin);
  const double shape = static_cast<double>(size.width()) / size.height();
  const double width = std::max(ink.width(), ink.height() * shape);
  const double height = width / shape;
  const QPointF centre = ink.center();
  return {centre.x() - width / 2, centre.y() - height / 2, width, height};
}

// Makes the sheet the part of itself that the frame, in metres from its corner, has cut out.
void cutSheet(SheetPlot& sheet, const QRectF& frame) {
  const double shiftX = sheet.ShiftX() - frame.x();
  const double shiftY = sheet.ShiftY() - frame.y();
  sheet.resizeRaw(frame.height(), frame.width());
  sheet.ShiftX(shiftX);
  sheet.ShiftY(shiftY);
}

void prepare(Program& program, Item dial) {
  program.click(dial);
  for (const Extra& extra : kExtras) {
    if (extra.dial != dial) continue;
    if (extra.text.empty()) {
      program.click(extra.field, true);
    } else {
      program.type(extra.field, extra.text);
    }
  }
}

}  // namespace

QImage pictureOf(Item dial, const DialPictureOptions& options) {
  if (!draws(dial)) return {};
  const QTemporaryDir folder;  // no defaults of the user's, no language
  if (!folder.isValid()) return {};
  Program program({.workingFolder = folder.path().toStdString(),
                   .dataFolder = options.dataFolder,
                   .language = "en"});
  program.ports.cancelled = options.cancelled;
  prepare(program, dial);
  program.CmdRun_Click();
  if (options.cancelled && options.cancelled()) return {};
  SheetPlot& sheet = program.sheet();
  sheet.list().texts.clear();  // too small to be read
  const double pixelsOfMeter = kTwipsPerMeter / kPixel;
  const int search =
      std::max(1, static_cast<int>(std::ceil(sheet.QuadranteL() * pixelsOfMeter / kSearchWidth)));
  const QRectF ink = inkOf(imageOf(sheet, search, options.dark));
  if (ink.isEmpty()) return {};
  const QRectF frame = framed(ink, options.size);
  const double metre = search / pixelsOfMeter;  // of a pixel
  cutSheet(sheet, {frame.topLeft() * metre, frame.size() * metre});
  const double exact = frame.width() * search / options.size.width();
  const int scale = std::max(1, static_cast<int>(std::floor(exact)));
  return imageOf(sheet, scale, options.dark)
      .scaled(options.size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

}  // namespace dialwright
