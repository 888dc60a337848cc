// A layout that sets its items in rows, as words in a text: nothing is cut in a narrow window.
#pragma once

#include <QLayout>
#include <memory>
#include <vector>

namespace dialwright {

class FlowLayout : public QLayout {
 public:
  explicit FlowLayout(QWidget* parent = nullptr) : QLayout(parent) {}

  void addItem(QLayoutItem* item) override { items_.emplace_back(item); }
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;
  Qt::Orientations expandingDirections() const override { return {}; }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override { return arrange({0, 0, width, 0}, false); }
  QSize sizeHint() const override { return minimumSize(); }
  QSize minimumSize() const override;
  void setGeometry(const QRect& rectangle) override;

 private:
  int arrange(const QRect& rectangle, bool place) const;

  std::vector<std::unique_ptr<QLayoutItem>> items_;
};

}  // namespace dialwright
