// Light or dark: as the desktop is, or as the user says.
#pragma once

#include <QObject>
#include <QPalette>
#include <QString>

class QMenu;

namespace dialwright {

class Program;

// The colours of all windows; a text stands on its ground with a contrast of 4.5 to 1 or more.
QPalette lightPalette();
QPalette darkPalette();

class Appearance : public QObject {
  Q_OBJECT

 public:
  enum class Choice { System, Light, Dark };

  // Takes over the application's style and colours. One for an application.
  explicit Appearance(QObject* parent = nullptr);

  void choose(Choice choice);
  Choice choice() const { return choice_; }
  bool dark() const;

  // The word under which a choice is stored, and the choice of a word; any other word is System.
  static QString nameOf(Choice choice);
  static Choice choiceOf(const QString& name);

  // Adds the three choices to a menu, the present one checked.
  void fillMenu(QMenu& menu, const Program& program);

 signals:
  // The user chose; the colours are set already.
  void chosen(dialwright::Appearance::Choice choice);

 private:
  void apply() const;

  Choice choice_ = Choice::System;
  bool systemDark_;
};

}  // namespace dialwright
