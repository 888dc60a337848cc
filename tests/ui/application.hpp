// The one application of the desktop's tests, without a screen. A test file includes this header
// and is served.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <memory>

#include "app/workplace.hpp"
#include "ui/sheet_canvas.hpp"
#include "ui/text.hpp"

namespace dialwright {

class ApplicationEnvironment : public ::testing::Environment {
 public:
  void SetUp() override {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QApplication>(count_, arguments_);
  }
  void TearDown() override { application_.reset(); }

 private:
  int count_ = 1;
  char name_[8] = "test_ui";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

inline ::testing::Environment* const kApplication =
    ::testing::AddGlobalTestEnvironment(new ApplicationEnvironment);

template <class Widget>
Widget& named(const char* name, const QWidget& parent) {
  return *parent.findChild<Widget*>(name);
}

inline void waitUntilSharp(const SheetCanvas& canvas) {
  QCoreApplication::processEvents();
  EXPECT_TRUE(QTest::qWaitFor([&canvas] { return canvas.sharp(); }, 60000));
  QCoreApplication::processEvents();
}

// Has the next modal box of that kind answered once it is there: opening it does not return before.
template <class Box, class Answer>
void whenShown(Answer answer) {
  auto* watch = new QTimer(qApp);
  QObject::connect(watch, &QTimer::timeout, qApp, [watch, answer] {
    auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    watch->deleteLater();
    watch->stop();
    answer(*box);
  });
  watch->start(10);
}

}  // namespace dialwright
