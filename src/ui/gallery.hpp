// The catalogue as a gallery: a card for each dial with its picture and caption, and a search
// field.
#pragma once

#include <QHash>
#include <QStandardItemModel>
#include <QWidget>

#include "app/program.hpp"
#include "ui/dial_pictures.hpp"

class QLabel;
class QLineEdit;
class QListView;

namespace dialwright {

class Gallery : public QWidget {
  Q_OBJECT

 public:
  // Takes its texts and the chosen dial from the program, which outlives it, and changes nothing
  // there. The pictures come in from the background when the gallery is first shown.
  explicit Gallery(const Program& program, QWidget* parent = nullptr);
  // With the pictures kept elsewhere than in the user's cache.
  Gallery(const Program& program, DialPictures::Store store, QWidget* parent = nullptr);

  // Makes the dial's card the current one, which Enter chooses.
  void setCurrent(Item dial);
  Item current() const;

  // Shows the cards of which the caption, the name or a menu above has every word of the query; a
  // number in it stands for the first digits of a program number.
  void search(const QString& query);
  int shownCards() const;

 signals:
  // A click on a card, or Enter.
  void chosen(dialwright::Item dial);

 protected:
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void addCards();
  void layOut();
  void wantPictures();
  void chooseCurrent();
  bool keyInSearch(const QKeyEvent& key);
  bool keyInCards(QKeyEvent& key);

  const Program& program_;
  QStandardItemModel cards_;
  DialPictures pictures_;
  QHash<int, int> rows_;  // by item
  QLineEdit* search_;
  QListView* view_;
  QLabel* nothing_;
  bool wanted_ = false;
};

}  // namespace dialwright
