// The menus of the catalogue, made from its table.
#pragma once

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QObject>
#include <array>

#include "app/program.hpp"

namespace dialwright {

// The texts with a key for each: the first letter or digit of a word that no text before has taken.
QStringList withMnemonics(const QStringList& texts);
// Gives each item of a menu such a key.
void giveMnemonics(QWidget& menu);

class Menus : public QObject {
  Q_OBJECT

 public:
  Menus(const Program& program, QMenuBar& bar);

  // Shows check marks and states of the program's panel.
  void refresh();

  QMenu* menu(Item item) const { return actionOf(item)->menu(); }
  QAction* actionOf(Item item) const { return actions_[static_cast<std::size_t>(item)]; }

 signals:
  void chosen(Item item);

 private:
  QAction* make(Item item, QWidget* parent);
  void fill(Item parent, QWidget& place);

  const Program& program_;
  std::array<QAction*, kItemCount> actions_{};
};

}  // namespace dialwright
