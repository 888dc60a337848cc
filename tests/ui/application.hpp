// The one application of the desktop's tests, without a screen. A test file includes this header
// and is served.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

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

}  // namespace dialwright
