// Draws one card.
#include "ui/dial_card.hpp"

#include <QFontMetrics>
#include <QPainter>

namespace dialwright {

namespace {

constexpr int kGap = 6;
constexpr int kWrap = Qt::TextWordWrap | Qt::AlignHCenter | Qt::AlignTop;
constexpr double kCorner = 6;

QColor mix(const QColor& a, const QColor& b, double part) {
  return QColor::fromRgbF(static_cast<float>(a.redF() + part * (b.redF() - a.redF())),
                          static_cast<float>(a.greenF() + part * (b.greenF() - a.greenF())),
                          static_cast<float>(a.blueF() + part * (b.blueF() - a.blueF())));
}

}  // namespace

int DialCard::heightOf(const QString& caption, const QFontMetrics& font) {
  return font.boundingRect(QRect(0, 0, kCardPicture.width(), 10000), kWrap, caption).height();
}

QSize DialCard::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const {
  return kCardPicture + QSize(2 * kGap, 3 * kGap + captionHeight_);
}

void DialCard::paint(QPainter* painter, const QStyleOptionViewItem& option,
                     const QModelIndex& index) const {
  const bool enabled = option.state & QStyle::State_Enabled;
  const bool selected = enabled && (option.state & QStyle::State_Selected);
  const QPalette& colours = option.palette;
  const QColor ground = selected
                            ? colours.color(QPalette::Highlight)
                            : mix(colours.color(QPalette::Base), colours.color(QPalette::Highlight),
                                  enabled && (option.state & QStyle::State_MouseOver) ? .2 : 0);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(Qt::NoPen);
  painter->setBrush(ground);
  painter->drawRoundedRect(option.rect.adjusted(2, 2, -2, -2), kCorner, kCorner);
  const QRect picture(option.rect.topLeft() + QPoint(kGap, kGap), kCardPicture);
  painter->setPen(mix(colours.color(QPalette::Base), colours.color(QPalette::Text), .25));
  painter->setBrush(Qt::NoBrush);
  if (const auto image = index.data(Qt::DecorationRole).value<QImage>(); !image.isNull()) {
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawImage(picture, image);
  } else if (!enabled) {
    painter->drawLine(picture.topLeft(), picture.bottomRight());
  }
  painter->drawRect(picture);
  painter->setPen(colours.color(enabled ? QPalette::Normal : QPalette::Disabled,
                                selected ? QPalette::HighlightedText : QPalette::Text));
  painter->drawText(QRect(picture.left(), picture.bottom() + kGap, picture.width(), captionHeight_),
                    kWrap, index.data(Qt::DisplayRole).toString());
  painter->restore();
}

}  // namespace dialwright
