// Fills rows from the left, or from the right where that is the reading's way.
#include "ui/flow_layout.hpp"

#include <QStyle>
#include <QWidget>
#include <algorithm>

namespace dialwright {

QLayoutItem* FlowLayout::itemAt(int index) const {
  return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
  if (index < 0 || index >= count()) return nullptr;
  QLayoutItem* taken = items_[static_cast<std::size_t>(index)].release();
  items_.erase(items_.begin() + index);
  return taken;
}

QSize FlowLayout::minimumSize() const {
  QSize size;
  for (const auto& item : items_) size = size.expandedTo(item->minimumSize());
  const QMargins margins = contentsMargins();
  return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

void FlowLayout::setGeometry(const QRect& rectangle) {
  QLayout::setGeometry(rectangle);
  arrange(rectangle, true);
}

// The height that the items take. Those of a row stand in its middle.
int FlowLayout::arrange(const QRect& rectangle, bool place) const {
  const QRect inner = rectangle.marginsRemoved(contentsMargins());
  const int gap = std::max(0, spacing());
  int y = inner.y();
  std::size_t next = 0;
  while (next < items_.size()) {
    const std::size_t first = next;
    int width = 0, height = 0;
    for (; next < items_.size(); ++next) {
      if (items_[next]->isEmpty()) continue;
      const QSize size = items_[next]->sizeHint();
      if (width > 0 && width + gap + size.width() > inner.width()) break;
      width += (width > 0 ? gap : 0) + size.width();
      height = std::max(height, size.height());
    }
    int x = inner.x();
    for (std::size_t i = first; place && i < next; ++i) {
      if (items_[i]->isEmpty()) continue;
      const QSize size = items_[i]->sizeHint();
      const QRect at(QPoint(x, y + (height - size.height()) / 2), size);
      const QWidget* owner = parentWidget();
      items_[i]->setGeometry(
          QStyle::visualRect(owner ? owner->layoutDirection() : Qt::LeftToRight, inner, at));
      x += size.width() + gap;
    }
    if (height > 0) y += height + gap;
  }
  return std::max(0, y - gap - rectangle.y()) + contentsMargins().bottom();
}

}  // namespace dialwright
