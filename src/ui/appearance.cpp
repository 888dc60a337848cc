// The two palettes, and the desktop's own wish.
#include "ui/appearance.hpp"

#include <QActionGroup>
#include <QApplication>
#include <QMenu>
#include <array>

#include "app/program.hpp"
#include "ui/desktop_colours.hpp"
#include "ui/text.hpp"

namespace dialwright {

namespace {

constexpr std::array kNames = {"system", "light", "dark"};

// What differs between light and dark.
struct Colours {
  const char *window, *base, *button, *text, *dim, *accent, *accentText, *link, *light, *shadow;
};

constexpr Colours kLight = {"#f1f0ee", "#ffffff", "#e6e4e1", "#1c1c1c", "#6a6a6a",
                            "#1f5f99", "#ffffff", "#0b57a4", "#ffffff", "#9a9894"};
constexpr Colours kDark = {"#1e1f22", "#2c2e33", "#3b3e44", "#ececec", "#a0a3a8",
                           "#3a78b4", "#ffffff", "#7db8f0", "#50545b", "#3f4248"};

QPalette paletteOf(const Colours& colours) {
  QPalette palette;
  const auto set = [&palette](QPalette::ColorRole role, const char* colour) {
    palette.setColor(role, QColor(colour));
  };
  set(QPalette::Window, colours.window);
  set(QPalette::WindowText, colours.text);
  set(QPalette::Base, colours.base);
  set(QPalette::AlternateBase, colours.window);
  set(QPalette::Text, colours.text);
  set(QPalette::PlaceholderText, colours.dim);
  set(QPalette::Button, colours.button);
  set(QPalette::ButtonText, colours.text);
  set(QPalette::BrightText, colours.text);
  set(QPalette::ToolTipBase, colours.base);
  set(QPalette::ToolTipText, colours.text);
  set(QPalette::Highlight, colours.accent);
  set(QPalette::HighlightedText, colours.accentText);
  set(QPalette::Link, colours.link);
  set(QPalette::LinkVisited, colours.link);
  set(QPalette::Light, colours.light);
  set(QPalette::Midlight, colours.button);
  set(QPalette::Mid, colours.shadow);
  set(QPalette::Dark, colours.shadow);
  set(QPalette::Shadow, colours.shadow);
  // A field that takes nothing looks like the window around it.
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText}) {
    palette.setColor(QPalette::Disabled, role, QColor(colours.dim));
  }
  palette.setColor(QPalette::Disabled, QPalette::Base, QColor(colours.window));
  palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(colours.button));
  return palette;
}

bool isDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() <
         palette.color(QPalette::WindowText).lightness();
}

}  // namespace

QPalette lightPalette() { return paletteOf(kLight); }
QPalette darkPalette() { return paletteOf(kDark); }

Appearance::Appearance(QObject* parent)
    : QObject(parent), systemDark_(isDark(QApplication::palette())) {
  QApplication::setStyle("Fusion");
  apply();
  connect(new DesktopColours(this), &DesktopColours::told, this, [this](bool dark) {
    systemDark_ = dark;
    apply();
  });
}

void Appearance::choose(Choice choice) {
  choice_ = choice;
  apply();
}

bool Appearance::dark() const {
  return choice_ == Choice::Dark || (choice_ == Choice::System && systemDark_);
}

QString Appearance::nameOf(Choice choice) { return kNames[static_cast<std::size_t>(choice)]; }

Appearance::Choice Appearance::choiceOf(const QString& name) {
  for (const Choice choice : {Choice::Light, Choice::Dark}) {
    if (name == nameOf(choice)) return choice;
  }
  return Choice::System;
}

void Appearance::fillMenu(QMenu& menu, const Program& program) {
  auto* group = new QActionGroup(&menu);
  const std::array captions = {program.T("As the desktop"), program.T("Light"), program.T("Dark")};
  for (const Choice choice : {Choice::System, Choice::Light, Choice::Dark}) {
    QAction* action = menu.addAction(shown(captions[static_cast<std::size_t>(choice)]));
    action->setActionGroup(group);
    action->setCheckable(true);
    action->setChecked(choice == choice_);
    connect(action, &QAction::triggered, this, [this, choice] {
      choose(choice);
      emit chosen(choice);
    });
  }
}

void Appearance::apply() const {
  QApplication::setPalette(dark() ? darkPalette() : lightPalette());
}

}  // namespace dialwright
