// Two sliders and the words beside them.
#include "ui/shadow_bar.hpp"

#include <QGridLayout>
#include <QHideEvent>
#include <QLabel>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QSlider>

#include "app/moment.hpp"
#include "proof/scenes.hpp"
#include "ui/text.hpp"

namespace dialwright {

namespace {

constexpr int kMinutesOfDay = 24 * 60;
constexpr int kNoon = kMinutesOfDay / 2;
constexpr int kHour = 60, kMonth = 30;  // a page of each slider

}  // namespace

ShadowBar::ShadowBar(const Program& program, QWidget* parent)
    : QFrame(parent), program_(program), year_(QDate::currentDate().year()) {
  setFrameShape(StyledPanel);
  setAccessibleName(shown(program.T("Shadow")));
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(6, 3, 6, 3);
  grid->setVerticalSpacing(2);
  minutes_ = addSlider("shadowTime", program.T("Time"), clock_);
  minutes_->setRange(0, kMinutesOfDay - 1);
  minutes_->setPageStep(kHour);
  minutes_->setToolTip(
      shown(program.T("Time of the clock in the panel's time zone, without summer time")));
  day_ = addSlider("shadowDay", program.T("Day"), date_);
  day_->setPageStep(kMonth);
  clock_->setFixedWidth(fontMetrics().horizontalAdvance(" 00:00 "));
  date_->setFixedWidth(fontMetrics().horizontalAdvance(" 0000-00-00 "));
  reading_ = new QLabel(this);
  reading_->setObjectName("shadowReading");
  reading_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);  // new words lay nothing anew
  grid->addWidget(reading_, 1, 0, 1, grid->columnCount());
  setMoment(QDate::currentDate(), kNoon);
  connect(minutes_, &QSlider::valueChanged, this, &ShadowBar::tell);
  connect(day_, &QSlider::valueChanged, this, &ShadowBar::tell);
}

QSlider* ShadowBar::addSlider(const char* name, std::string_view label, QLabel*& value) {
  auto* slider = new QSlider(Qt::Horizontal, this);
  slider->setObjectName(name);
  slider->setFocusPolicy(Qt::StrongFocus);
  slider->setAccessibleName(shown(label));
  auto* text = new QLabel(shown(label), this);
  text->setBuddy(slider);
  value = new QLabel(this);
  value->setObjectName(QString(name) + "Value");
  auto* grid = static_cast<QGridLayout*>(layout());
  const int column = grid->count() == 0 ? 0 : grid->columnCount();
  grid->addWidget(text, 0, column);
  grid->addWidget(slider, 0, column + 1);
  grid->addWidget(value, 0, column + 2);
  grid->setColumnStretch(column + 1, 1);
  return slider;
}

void ShadowBar::setMoment(const QDate& day, int minutes) {
  {
    const QSignalBlocker quiet(minutes_), silent(day_);
    year_ = day.year();
    day_->setRange(1, day.daysInYear());
    day_->setValue(day.dayOfYear());
    minutes_->setValue(minutes);
  }
  tell();
}

void ShadowBar::inputsChanged() {
  if (!isVisible()) return;
  scene_ = proof::shadowSceneOf(program_.panel());
  minutes_->setEnabled(scene_.has_value());
  day_->setEnabled(scene_.has_value());
  tell();
}

void ShadowBar::tell() {
  if (!isVisible()) return;
  const QDate date = QDate(year_, 1, 1).addDays(day_->value() - 1);
  const proof::Instant moment{date.year(), date.month(), date.day(), minutes_->value() / 60.0};
  clock_->setText(shown(clockText(moment.hours)));
  date_->setText(date.toString(Qt::ISODate));
  // What a screen reader says of a slider beside its bare number.
  minutes_->setAccessibleDescription(clock_->text());
  day_->setAccessibleDescription(date_->text());
  const Sun sun = sunAt(program_.panel(), moment);
  const auto shadow = scene_ ? proof::shadowOf(*scene_, sun) : std::vector<proof::Polyline>{};
  reading_->setText(reading(sun, !shadow.empty()));
  emit moved(shadow);
}

QString ShadowBar::reading(const Sun& sun, bool shadow) const {
  if (!scene_) return shown(program_.T("This dial throws no shadow that could be shown."));
  const SkyPlace place = placeInSky(program_.panel(), sun);
  if (!(place.height > 0)) return shown(program_.T("The sun is down."));
  const QString hour = shown(clockText(hourTold(program_.panel(), sun)));
  const QString height = QString::number(place.height, 'f', 1);
  const QString azimuth = QString::number(place.azimuth, 'f', 1);
  if (!shadow) {
    return shown(program_.T("The sun, %1° high at azimuth %2°, throws no shadow on the dial."))
        .arg(height, azimuth);
  }
  return shown(program_.T("The dial reads %1. The sun is %2° high at azimuth %3°."))
      .arg(hour, height, azimuth);
}

void ShadowBar::showEvent(QShowEvent* event) {
  QFrame::showEvent(event);
  if (!event->spontaneous()) inputsChanged();
}

void ShadowBar::hideEvent(QHideEvent* event) {
  QFrame::hideEvent(event);
  if (!event->spontaneous()) emit moved({});
}

}  // namespace dialwright
