// What the window asks of its user. A test answers in the user's place.
#pragma once

#include <QString>
#include <functional>

#include "app/program.hpp"

class QWidget;

namespace dialwright {

enum class Changes { Save, Discard, Keep };

struct Dialogs {
  std::function<void(const QString& text)> message;
  std::function<bool(const QString& question)> yes;
  // What becomes of unsaved changes: Keep leaves everything as it is.
  std::function<Changes(const QString& question)> changes;
  // The path of a project, or an empty text.
  std::function<QString(const QString& folder)> openName;
  std::function<QString(const QString& suggestion)> saveName;
};

// Boxes and file dialogs over a window.
Dialogs dialogsOver(QWidget* window, const Program& program);

}  // namespace dialwright
