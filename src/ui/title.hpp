// What stands wherever the program names itself: its icon and its name in large letters.
#pragma once

#include <QLabel>

namespace dialwright {

// The icon, so many pixels a side.
QLabel* logoLabel(int side, QWidget* parent);

// The name, so much larger than the texts around it.
QLabel* titleLabel(double growth, QWidget* parent);

}  // namespace dialwright
