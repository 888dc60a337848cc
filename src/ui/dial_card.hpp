// A card of the gallery: the picture of a dial over its caption.
#pragma once

#include <QSize>
#include <QStyledItemDelegate>

namespace dialwright {

// The picture on a card, in pixels of the screen's own measure.
inline constexpr QSize kCardPicture{204, 153};

// Draws a card from the caption (DisplayRole) and the picture (DecorationRole, a QImage). A card
// that is not enabled is greyed.
class DialCard : public QStyledItemDelegate {
 public:
  // No caption of a card is higher than `captionHeight`, wrapped to the width of the picture.
  explicit DialCard(int captionHeight, QObject* parent = nullptr)
      : QStyledItemDelegate(parent), captionHeight_(captionHeight) {}

  // The height that a caption takes.
  static int heightOf(const QString& caption, const QFontMetrics& font);

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

 private:
  int captionHeight_;
};

}  // namespace dialwright
