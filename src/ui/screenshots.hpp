// Pictures of the program's own windows, for the documentation.
#pragma once

#include <QString>

#include "app/program.hpp"

namespace dialwright {

class Appearance;
class MainWindow;

// Drives the window as a user would and writes desktop-*.png into the folder. False when one can't
// be written.
bool takeScreenshots(MainWindow& window, Program& program, Appearance& appearance,
                     const QString& folder);

}  // namespace dialwright
