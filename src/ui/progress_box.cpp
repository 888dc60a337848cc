// A bar without an end, since nobody knows how many samples a run will take.
#include "ui/progress_box.hpp"

#include <QHBoxLayout>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>

#include "ui/text.hpp"

namespace dialwright {

ProgressBox::ProgressBox(const Program& program, QWidget* parent)
    : QWidget(parent), program_(program), samples_(new QLabel(this)) {
  auto* bar = new QProgressBar(this);
  bar->setRange(0, 0);
  bar->setMaximumWidth(120);
  bar->setAccessibleName(shown(program.T("Drawing ...")));
  auto* cancel = new QPushButton(shown(program.T("Cancel")), this);
  cancel->setObjectName("cancelRun");
  connect(cancel, &QPushButton::clicked, this, &ProgressBox::cancelled);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  for (QWidget* widget :
       {static_cast<QWidget*>(samples_), static_cast<QWidget*>(bar), static_cast<QWidget*>(cancel)})
    row->addWidget(widget);
  setSamples(0);
}

void ProgressBox::setSamples(double samples) {
  samples_->setText(shown(program_.T("Drawing ...")) + ' ' + QLocale().toString(samples, 'f', 0));
}

}  // namespace dialwright
