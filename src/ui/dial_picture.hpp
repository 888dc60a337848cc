// A small picture of a dial, drawn by the program itself.
#pragma once

#include <QImage>
#include <QSize>
#include <filesystem>
#include <functional>

#include "shell/catalogue.hpp"

namespace dialwright {

// How a picture is made.
struct DialPictureOptions {
  QSize size;         // pixels; the drawing is fitted into it
  bool dark = false;  // in the sheet's own inks on black, or in paper's on white
  std::filesystem::path dataFolder = {};  // of the program
  std::function<bool()> cancelled = {};   // asked between curves
};

// Runs the dial with the texts of its click in a program of its own, and draws the part of the
// sheet that holds nearly all the ink. A null image for a dial without a drawing, a run that was
// cancelled and a drawing without ink. May be called in any thread.
QImage pictureOf(Item dial, const DialPictureOptions& options);

}  // namespace dialwright
