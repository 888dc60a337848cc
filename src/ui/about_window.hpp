// The about window.
#pragma once

#include <QDialog>

#include "app/program.hpp"

namespace dialwright {

class AboutWindow : public QDialog {
  Q_OBJECT

 public:
  explicit AboutWindow(const Program& program, QWidget* parent = nullptr);

 private:
  // Starts the platform's tool that tells about the system, or says that there is none.
  void cmdSysInfo_Click();

  const Program& program_;
};

}  // namespace dialwright
