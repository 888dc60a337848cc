// One table of strokes, painted or written as SVG.
#include "ui/icon.hpp"

#include <QPainter>
#include <array>

namespace dialwright {

namespace {

// A grid of 64 by 64; few and thick strokes, which stay apart at 16 pixels.
constexpr int kGrid = 64;
constexpr const char* kPlate = "#f6ead0";
constexpr const char* kRim = "#2b5f92";
constexpr const char* kStyle = "#d98a00";
constexpr const char* kShadow = "#9aa3ab";
constexpr double kRimWidth = 5;
constexpr double kLineWidth = 4;
constexpr double kCorner = 12;
constexpr QRectF kSquare{3.5, 3.5, 57, 57};

constexpr QPointF kCentre{32, 14};  // where the hour lines meet
constexpr std::array kHours = {QPointF{10, 24}, QPointF{13, 46}, QPointF{32, 53}, QPointF{51, 46},
                               QPointF{54, 24}};

struct Face {
  std::array<QPointF, 3> corners;
  const char* colour = nullptr;
};
constexpr std::array kFaces = {Face{{kCentre, QPointF{19, 52}, QPointF{27, 54}}, kShadow},
                               Face{{kCentre, QPointF{32, 40}, QPointF{46, 34}}, kStyle}};

}  // namespace

QPixmap iconPixmap(int side) {
  QPixmap pixmap(side, side);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(static_cast<double>(side) / kGrid, static_cast<double>(side) / kGrid);
  painter.setPen(QPen(QColor(kRim), kRimWidth));
  painter.setBrush(QColor(kPlate));
  painter.drawRoundedRect(kSquare, kCorner, kCorner);
  painter.setPen(QPen(QColor(kRim), kLineWidth, Qt::SolidLine, Qt::RoundCap));
  for (const QPointF& end : kHours) painter.drawLine(kCentre, end);
  painter.setPen(Qt::NoPen);
  for (const Face& face : kFaces) {
    painter.setBrush(QColor(face.colour));
    painter.drawPolygon(face.corners.data(), static_cast<int>(face.corners.size()));
  }
  return pixmap;
}

QIcon applicationIcon() {
  QIcon icon;
  for (const int side : {16, 22, 24, 32, 48, 64, 128, 256}) icon.addPixmap(iconPixmap(side));
  return icon;
}

QString iconSvg() {
  QString svg = QStringLiteral(
                    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                    "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 %1 %1\">\n"
                    "  <rect x=\"%2\" y=\"%2\" width=\"%3\" height=\"%3\" rx=\"%4\" fill=\"%5\" "
                    "stroke=\"%6\" stroke-width=\"%7\"/>\n")
                    .arg(kGrid)
                    .arg(kSquare.x())
                    .arg(kSquare.width())
                    .arg(kCorner)
                    .arg(kPlate, kRim)
                    .arg(kRimWidth);
  const auto at = [](QPointF point) {
    return QStringLiteral("%1 %2").arg(point.x()).arg(point.y());
  };
  QString lines;
  for (const QPointF& end : kHours) lines += "M" + at(kCentre) + "L" + at(end);
  svg += QStringLiteral(
             "  <path d=\"%1\" stroke=\"%2\" stroke-width=\"%3\" stroke-linecap=\"round\"/>\n")
             .arg(lines, kRim)
             .arg(kLineWidth);
  for (const Face& face : kFaces) {
    svg += QStringLiteral("  <path d=\"M%1L%2L%3Z\" fill=\"%4\"/>\n")
               .arg(at(face.corners[0]), at(face.corners[1]), at(face.corners[2]), face.colour);
  }
  return svg + "</svg>\n";
}

}  // namespace dialwright
