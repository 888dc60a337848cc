// What the desktop remembers from start to start, in its own file of the working folder.
#pragma once

#include <QByteArray>
#include <QSettings>
#include <QStringList>
#include <filesystem>

namespace dialwright {

class Settings {
 public:
  explicit Settings(const std::filesystem::path& workingFolder);

  QByteArray geometry() const { return store_.value("window/geometry").toByteArray(); }
  QByteArray split() const { return store_.value("window/split").toByteArray(); }
  void keepWindow(const QByteArray& geometry, const QByteArray& split);

  bool live() const { return store_.value("live", true).toBool(); }
  void keepLive(bool live) { store_.setValue("live", live); }

  // Pixels of this screen a metre, as the user has measured them; 0 before that.
  double screenZoom() const { return store_.value("screen/zoom", 0.0).toDouble(); }
  void keepScreenZoom(double pixels) { store_.setValue("screen/zoom", pixels); }

  // Light or dark, by the name of the choice.
  QString appearance() const { return store_.value("appearance").toString(); }
  void keepAppearance(const QString& name) { store_.setValue("appearance", name); }

  // The projects opened or saved last, the newest first.
  QStringList recent() const { return store_.value("recent").toStringList(); }
  void addRecent(const QString& path);

 private:
  QSettings store_;
};

}  // namespace dialwright
