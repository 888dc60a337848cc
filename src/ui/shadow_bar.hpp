// The moment whose shadow stands over the sheet: the time of day and the day of the year, and what
// the dial reads then.
#pragma once

#include <QDate>
#include <QFrame>
#include <optional>
#include <vector>

#include "app/program.hpp"
#include "proof/scene.hpp"
#include "proof/shade.hpp"

class QLabel;
class QSlider;

namespace dialwright {

class ShadowBar : public QFrame {
  Q_OBJECT

 public:
  // Starts at noon of today, by the clock of the panel's time zone.
  explicit ShadowBar(const Program& program, QWidget* parent = nullptr);

  // The dial of the panel is new.
  void inputsChanged();
  void setMoment(const QDate& day, int minutes);

 signals:
  // The shadow is new; none while the bar is hidden.
  void moved(const std::vector<dialwright::proof::Polyline>& shadow);

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  QSlider* addSlider(const char* name, std::string_view label, QLabel*& value);
  void tell();
  QString reading(const Sun& sun, bool shadow) const;

  const Program& program_;
  std::optional<proof::Scene> scene_;  // made once for each panel, not for each frame
  int year_;
  QSlider* minutes_;
  QSlider* day_;
  QLabel* clock_ = nullptr;
  QLabel* date_ = nullptr;
  QLabel* reading_;
};

}  // namespace dialwright
