// Fills the gallery, searches in it, and hears the keyboard.
#include "ui/gallery.hpp"

#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QVBoxLayout>
#include <algorithm>

#include "app/drivers.hpp"
#include "ui/dial_card.hpp"
#include "ui/text.hpp"

namespace dialwright {

namespace {

enum Role { kItem = Qt::UserRole, kWords, kNumber };

// Without regard to case and accents.
QString plain(const QString& text) {
  QString letters;
  for (const QChar c : text.normalized(QString::NormalizationForm_D)) {
    if (c.category() != QChar::Mark_NonSpacing) letters += c.toCaseFolded();
  }
  return letters;
}

// The menus above a dial, from the top.
QString pathOf(const Program& program, Item dial) {
  QStringList path;
  for (Item menu = rowOf(dial).parent; menu != Item::M_Quadranti && menu != Item::None;
       menu = rowOf(menu).parent) {
    path.prepend(shown(program.T(rowOf(menu).caption)));
  }
  return path.join(QStringLiteral(" › "));
}

bool matches(const QModelIndex& card, const QStringList& words) {
  return std::ranges::all_of(words, [&card](const QString& word) {
    bool number = false;
    word.toInt(&number);
    return number ? card.data(kNumber).toString().startsWith(word)
                  : card.data(kWords).toString().contains(word);
  });
}

}  // namespace

Gallery::Gallery(const Program& program, QWidget* parent)
    : Gallery(program, DialPictures::userStore(program.config().dataFolder), parent) {}

Gallery::Gallery(const Program& program, DialPictures::Store store, QWidget* parent)
    : QWidget(parent),
      program_(program),
      pictures_(std::move(store)),
      search_(new QLineEdit(this)),
      view_(new QListView(this)),
      nothing_(new QLabel(this)) {
  addCards();
  layOut();
  connect(&pictures_, &DialPictures::ready, this, [this](Item dial, const QImage& picture) {
    cards_.item(rows_.value(static_cast<int>(dial)))->setData(picture, Qt::DecorationRole);
  });
  connect(search_, &QLineEdit::textChanged, this, &Gallery::search);
  connect(search_, &QLineEdit::returnPressed, this, &Gallery::chooseCurrent);
  connect(view_, &QListView::clicked, this, &Gallery::chooseCurrent);
  search_->installEventFilter(this);
  view_->installEventFilter(this);
  search({});
}

void Gallery::addCards() {
  for (const Item dial : dialItems()) {
    const ItemRow& row = rowOf(dial);
    const QString caption = shown(program_.T(row.caption));
    const QString path = pathOf(program_, dial);
    auto* card = new QStandardItem(caption);
    const QString words = QStringList{caption, path, shown(row.caption), shown(row.name)}.join(' ');
    card->setData(static_cast<int>(dial), kItem);
    card->setData(plain(words), kWords);
    card->setData(row.program > 0 ? QString::number(row.program) : QString(), kNumber);
    card->setToolTip(draws(dial) ? path : shown(program_.T("This dial has no drawing")));
    card->setData(caption, Qt::AccessibleTextRole);
    card->setEnabled(draws(dial));
    card->setEditable(false);
    rows_.insert(static_cast<int>(dial), cards_.rowCount());
    cards_.appendRow(card);
  }
}

void Gallery::layOut() {
  search_->setPlaceholderText(shown(program_.T("Search for a dial, or its number")));
  search_->setAccessibleName(search_->placeholderText());
  search_->setClearButtonEnabled(true);
  nothing_->setText(shown(program_.T("No dial has these words")));
  nothing_->setAlignment(Qt::AlignCenter);

  int height = 0;
  for (int row = 0; row < cards_.rowCount(); ++row) {
    height = std::max(height, DialCard::heightOf(cards_.item(row)->text(), view_->fontMetrics()));
  }
  view_->setModel(&cards_);
  view_->setItemDelegate(new DialCard(height, view_));
  view_->setAccessibleName(shown(program_.T("Types of sundials")));
  view_->setViewMode(QListView::IconMode);
  view_->setMovement(QListView::Static);
  view_->setResizeMode(QListView::Adjust);
  view_->setUniformItemSizes(true);
  view_->setSpacing(2);
  view_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  view_->setMouseTracking(true);
  view_->setFrameShape(QFrame::NoFrame);

  auto* column = new QVBoxLayout(this);
  column->addWidget(search_);
  column->addWidget(nothing_, 1);
  column->addWidget(view_, 1);
  setFocusProxy(search_);
}

Item Gallery::current() const {
  const QModelIndex index = view_->currentIndex();
  const bool there = index.isValid() && !view_->isRowHidden(index.row());
  return there ? static_cast<Item>(index.data(kItem).toInt()) : Item::None;
}

void Gallery::setCurrent(Item dial) {
  if (const auto row = rows_.constFind(static_cast<int>(dial)); row != rows_.cend()) {
    view_->setCurrentIndex(cards_.index(*row, 0));
    view_->scrollTo(view_->currentIndex());
  }
}

int Gallery::shownCards() const {
  int count = 0;
  for (int row = 0; row < cards_.rowCount(); ++row) count += view_->isRowHidden(row) ? 0 : 1;
  return count;
}

// The current card stays while it is found; else the first that can be chosen takes its place.
void Gallery::search(const QString& query) {
  const QStringList words = plain(query).split(' ', Qt::SkipEmptyParts);
  QModelIndex first;
  for (int row = 0; row < cards_.rowCount(); ++row) {
    const QModelIndex card = cards_.index(row, 0);
    const bool found = matches(card, words);
    view_->setRowHidden(row, !found);
    if (found && !first.isValid() && card.flags().testFlag(Qt::ItemIsEnabled)) first = card;
  }
  if (current() == Item::None) view_->setCurrentIndex(first);
  const bool any = shownCards() > 0;
  view_->setVisible(any);
  nothing_->setVisible(!any);
}

void Gallery::chooseCurrent() {
  if (const Item dial = current(); dial != Item::None && draws(dial)) emit chosen(dial);
}

void Gallery::wantPictures() {
  const QColor ground = view_->palette().color(QPalette::Base);
  pictures_.want(kCardPicture * devicePixelRatioF(), ground.lightness() < 128);
}

void Gallery::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  setCurrent(program_.panel().chosen());
  if (!wanted_) wantPictures();
  wanted_ = true;
}

void Gallery::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && wanted_) wantPictures();
}

// The arrows move among the cards from the search field, too, and what is typed among the cards
// is searched for.
bool Gallery::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  auto& key = static_cast<QKeyEvent&>(*event);
  return watched == search_ ? keyInSearch(key) : keyInCards(key);
}

bool Gallery::keyInSearch(const QKeyEvent& key) {
  switch (key.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: view_->setFocus(); return false;
    case Qt::Key_Escape:
      if (search_->text().isEmpty()) return false;
      search_->clear();
      return true;
    default: return false;
  }
}

bool Gallery::keyInCards(QKeyEvent& key) {
  if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
    chooseCurrent();
    return true;
  }
  const QString typed = key.text();
  if (typed.isEmpty() || !typed.at(0).isPrint()) return false;
  search_->setFocus();
  search_->insert(typed);
  return true;
}

}  // namespace dialwright
