// Makes the labels of the program's icon and name.
#include "ui/title.hpp"

#include "app/program.hpp"
#include "ui/icon.hpp"
#include "ui/text.hpp"

namespace dialwright {

QLabel* logoLabel(int side, QWidget* parent) {
  auto* logo = new QLabel(parent);
  logo->setPixmap(iconPixmap(side));
  return logo;
}

QLabel* titleLabel(double growth, QWidget* parent) {
  auto* title = new QLabel(shown(Program::kTitle), parent);
  QFont large = title->font();
  large.setPointSizeF(large.pointSizeF() * growth);
  title->setFont(large);
  return title;
}

}  // namespace dialwright
