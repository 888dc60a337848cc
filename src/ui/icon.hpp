// The program's icon: the plate of a dial with its hour lines, its style and the style's shadow.
#pragma once

#include <QIcon>
#include <QPixmap>
#include <QString>

namespace dialwright {

QPixmap iconPixmap(int side);

// In all the sizes that desktops ask for.
QIcon applicationIcon();

// The same drawing as a file, which packages install: packaging/icons/dialwright.svg.
QString iconSvg();

}  // namespace dialwright
