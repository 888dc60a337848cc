// Menus, their keys and their shortcuts.
#include "ui/menus.hpp"

#include <QRegularExpression>
#include <QSet>

#include "ui/text.hpp"

namespace dialwright {

namespace {

struct ShortcutRow {
  Item item;
  const char* keys;
};
constexpr ShortcutRow kShortcuts[] = {
    {Item::mnu_Nuovo, "Ctrl+N"},        {Item::mnuLoad, "Ctrl+O"},
    {Item::MnuSalva, "Ctrl+Shift+S"},   {Item::mnuExit, "Ctrl+Q"},
    {Item::mnuPrinter, "Ctrl+Shift+P"}, {Item::mnu_Decl, "Ctrl+U"},
};

bool hasItems(Item menu) {
  for (const ItemRow& row : itemTable()) {
    if (row.parent == menu) return true;
  }
  return false;
}

// Where the key of a text stands; none when all its words' letters are taken.
qsizetype keyPlace(const QString& text, const QSet<QChar>& taken) {
  for (const bool wordsOnly : {true, false}) {
    for (qsizetype i = 0; i < text.size(); ++i) {
      const bool begins = i == 0 || !text[i - 1].isLetterOrNumber();
      if (!text[i].isLetterOrNumber() || (wordsOnly && !begins)) continue;
      if (!taken.contains(text[i].toLower())) return i;
    }
  }
  return -1;
}

}  // namespace

QStringList withMnemonics(const QStringList& texts) {
  QSet<QChar> taken;
  QStringList marked;
  for (const QString& text : texts) {
    const qsizetype key = keyPlace(text, taken);
    if (key < 0) {
      marked << QString(text).replace('&', "&&");
      continue;
    }
    taken.insert(text[key].toLower());
    marked << text.left(key).replace('&', "&&") + '&' + text.mid(key, 1) +
                  text.mid(key + 1).replace('&', "&&");
  }
  return marked;
}

void giveMnemonics(QWidget& menu) {
  static const QRegularExpression kMark("&(.)");
  QStringList texts;
  for (const QAction* action : menu.actions()) texts << action->text().replace(kMark, "\\1");
  texts = withMnemonics(texts);
  for (qsizetype i = 0; i < texts.size(); ++i) menu.actions()[i]->setText(texts[i]);
}

Menus::Menus(const Program& program, QMenuBar& bar) : QObject(&bar), program_(program) {
  fill(Item::None, bar);
  for (const ShortcutRow& row : kShortcuts) actionOf(row.item)->setShortcut(QKeySequence(row.keys));
  refresh();
}

void Menus::fill(Item parent, QWidget& place) {
  for (std::size_t i = 0; i < kItemCount; ++i) {
    if (rowOf(itemAt(i)).parent != parent) continue;
    actions_[i] = make(itemAt(i), &place);
    place.addAction(actions_[i]);
  }
  giveMnemonics(place);
}

QAction* Menus::make(Item item, QWidget* parent) {
  if (rowOf(item).separator) {
    auto* separator = new QAction(parent);
    separator->setSeparator(true);
    return separator;
  }
  const QString text = shown(program_.panel()[item].caption).replace('&', "&&");
  if (hasItems(item)) {
    auto* menu = new QMenu(text, parent);
    fill(item, *menu);
    return menu->menuAction();
  }
  auto* action = new QAction(text, parent);
  action->setCheckable(isDial(item));
  connect(action, &QAction::triggered, this, [this, item] { emit chosen(item); });
  return action;
}

void Menus::refresh() {
  for (std::size_t i = 0; i < kItemCount; ++i) {
    const MenuItem& state = program_.panel()[itemAt(i)];
    actions_[i]->setVisible(state.visible);
    actions_[i]->setEnabled(state.enabled);
    if (actions_[i]->isCheckable()) actions_[i]->setChecked(state.checked);
  }
}

}  // namespace dialwright
