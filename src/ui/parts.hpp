// The large parts of the window that stand beside the input panel, as the window uses them.
#pragma once

#include <QWidget>
#include <functional>

#include "app/program.hpp"
#include "ui/settings.hpp"

class QAction;

namespace dialwright {

// The sheet, and how it is told that the drawing is new.
struct SheetPart {
  QWidget* widget = nullptr;
  std::function<void()> refresh;
  std::function<void()> showFit;
  std::function<void()> exportAs;
  std::function<void()> previewPages;
  std::function<void()> setUpPrinter;
  std::function<void()> inputsChanged;  // the panel is new, and not drawn yet
  QAction* shadow = nullptr;            // shows and hides the moving shadow
};
// `hovered` is told what lies under the cursor, `message` a sentence for a box. The settings know
// how long a metre is on this screen.
SheetPart makeSheetPart(Program& program, Settings& settings, QWidget* parent,
                        const std::function<void(const QString&)>& hovered,
                        const std::function<void(const QString&)>& message);

// The catalogue with pictures; `chosen` is called with the dial that the user takes.
QWidget* makeGallery(const Program& program, QWidget* parent,
                     const std::function<void(Item)>& chosen);

// The utility board, until the user closes it; `transferred` is called after it has written fields
// of the panel.
void openBoard(Program& program, QWidget* parent, const std::function<void()>& transferred);

void openAbout(const Program& program, QWidget* parent);

}  // namespace dialwright
