// The store behind the settings.
#include "ui/settings.hpp"

namespace dialwright {

namespace {

constexpr int kMostRecent = 10;

}  // namespace

Settings::Settings(const std::filesystem::path& workingFolder)
    : store_(QString::fromStdString((workingFolder / "desktop.ini").string()),
             QSettings::IniFormat) {}

void Settings::keepWindow(const QByteArray& geometry, const QByteArray& split) {
  store_.setValue("window/geometry", geometry);
  store_.setValue("window/split", split);
}

void Settings::addRecent(const QString& path) {
  QStringList paths = recent();
  paths.removeAll(path);
  paths.prepend(path);
  store_.setValue("recent", QStringList(paths.mid(0, kMostRecent)));
}

}  // namespace dialwright
