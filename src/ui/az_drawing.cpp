// Draws in a plan of fixed size, which is scaled to the widget.
#include "ui/az_drawing.hpp"

#include <QLineF>
#include <QPainter>
#include <cmath>

#include "ui/text.hpp"

namespace dialwright {

namespace {

constexpr double kWidth = 520, kHeight = 380;
constexpr QRectF kWall{20, 20, 480, 44};
constexpr double kFace = 64;           // where the wall ends
constexpr QPointF kPlumb{260, 230};    // the plumb line, or the tip of the nail
constexpr QPointF kFoot{260, kFace};   // of the perpendicular
constexpr QPointF kShade{372, kFace};  // where the shadow meets the wall
constexpr QPointF kOther{148, kFace};  // and where it does for the same angle on the other side
constexpr QPointF kSun{184, 343};      // on the line from there through the plumb line
constexpr double kArc = 84;            // radius of the angle
constexpr double kSunRadius = 15;

// The colours of one painting.
struct Inks {
  QColor line, dim, sun, shadow, wall;
};

Inks inksOn(const QPalette& palette) {
  const bool dark = palette.color(QPalette::Base).lightness() < 128;
  return {palette.color(QPalette::Text), palette.color(QPalette::PlaceholderText),
          dark ? QColor("#f2b33d") : QColor("#c77800"),
          dark ? QColor("#7db8f0") : QColor("#1f5f99"), palette.color(QPalette::AlternateBase)};
}

QPen pen(const QColor& colour, double width, Qt::PenStyle style = Qt::SolidLine) {
  return {colour, width, style, Qt::RoundCap};
}

void label(QPainter& painter, QPointF at, int alignment, const QString& text) {
  constexpr double kReach = 220, kLines = 60;
  QRectF box(0, 0, kReach, kLines);
  box.moveTop(at.y() - kLines / 2);
  if (alignment & Qt::AlignLeft) box.moveLeft(at.x());
  if (alignment & Qt::AlignRight) box.moveRight(at.x());
  if (alignment & Qt::AlignHCenter) box.moveLeft(at.x() - kReach / 2);
  painter.drawText(box, alignment | Qt::AlignVCenter | Qt::TextWordWrap, text);
}

void drawWall(QPainter& painter, const Inks& inks) {
  painter.fillRect(kWall, inks.wall);
  painter.fillRect(kWall, QBrush(inks.dim, Qt::BDiagPattern));
  painter.setPen(pen(inks.line, 2.5));
  painter.drawLine(kWall.bottomLeft(), kWall.bottomRight());
}

void drawSun(QPainter& painter, const Inks& inks) {
  painter.setPen(pen(inks.sun, 1.5));
  painter.drawLine(kSun, kPlumb);
  painter.setPen(pen(inks.sun, 2.5));
  for (int ray = 0; ray < 12; ++ray) {
    painter.drawLine(kSun, kSun + QLineF::fromPolar(kSunRadius * 1.6, ray * 30).p2());
  }
  painter.setPen(Qt::NoPen);
  painter.setBrush(inks.sun);
  painter.drawEllipse(kSun, kSunRadius, kSunRadius);
  painter.setBrush(Qt::NoBrush);
}

// The angle at the plumb line between the perpendicular and a shadow, and its name.
void drawAngle(QPainter& painter, QPointF shade, const QString& name) {
  const double end = QLineF(kPlumb, shade).angle();
  const QRectF circle(kPlumb.x() - kArc, kPlumb.y() - kArc, 2 * kArc, 2 * kArc);
  painter.drawArc(circle, 90 * 16, static_cast<int>((end - 90) * 16));
  label(painter, QLineF(kPlumb, kPlumb + QLineF::fromPolar(kArc + 22, (end + 90) / 2).p2()).p2(),
        Qt::AlignHCenter, name);
}

}  // namespace

AzDrawing::AzDrawing(const Translator& T, QWidget* parent)
    : QWidget(parent),
      wall_(shown(T("Wall, seen from above"))),
      shadow_(shown(T("Shadow"))),
      perpendicular_(shown(T("Perpendicular"))),
      plumb_(shown(T("Plumb line, or tip of the nail"))),
      sun_(shown(T("Sun"))),
      north_(shown(T("Northern hemisphere"))) {
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
  setMinimumWidth(380);
}

int AzDrawing::heightForWidth(int width) const {
  return static_cast<int>(std::lround(width * kHeight / kWidth));
}

void AzDrawing::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double scale = std::min(width() / kWidth, height() / kHeight);
  painter.translate((width() - kWidth * scale) / 2, 0);
  painter.scale(scale, scale);
  const Inks inks = inksOn(palette());
  QFont type = font();
  type.setPixelSize(14);
  painter.setFont(type);

  drawWall(painter, inks);
  drawSun(painter, inks);
  painter.setPen(pen(inks.line, 1.5, Qt::DashLine));
  painter.drawLine(kFoot, {kPlumb.x(), kSun.y()});
  painter.setPen(pen(inks.dim, 1.5, Qt::DotLine));
  painter.drawLine(kPlumb, kOther);
  drawAngle(painter, kOther, QStringLiteral("az −"));
  painter.setPen(pen(inks.shadow, 4));
  painter.drawLine(kPlumb, kShade);
  painter.setPen(pen(inks.shadow, 2));
  drawAngle(painter, kShade, QStringLiteral("az +"));
  painter.setPen(pen(inks.line, 1));
  painter.setBrush(inks.line);
  painter.drawEllipse(kPlumb, 5, 5);

  label(painter, {kShade.x() - 30, kPlumb.y() - 74}, Qt::AlignLeft, shadow_);
  label(painter, kWall.center(), Qt::AlignHCenter, wall_);
  label(painter, kPlumb + QPointF(14, 6), Qt::AlignLeft, plumb_);
  label(painter, {kPlumb.x() + 8, kSun.y() - 24}, Qt::AlignLeft, perpendicular_);
  label(painter, kSun - QPointF(34, 0), Qt::AlignRight, sun_);
  painter.setPen(inks.dim);
  label(painter, {kWall.right(), kSun.y() + 18}, Qt::AlignRight, north_);
  label(painter, (kFoot + kPlumb) / 2 + QPointF(-6, -42), Qt::AlignRight, QStringLiteral("a"));
  label(painter, (kFoot + kShade) / 2 + QPointF(0, 13), Qt::AlignHCenter, QStringLiteral("b"));
}

}  // namespace dialwright
