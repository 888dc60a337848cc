// What the desktop says of light and dark.
#pragma once

#include <QDBusMessage>
#include <QDBusVariant>
#include <QObject>
#include <QString>

namespace dialwright {

// Asks the desktop's settings service, which answers later, or never where there is none: nothing
// waits for it.
class DesktopColours : public QObject {
  Q_OBJECT

 public:
  explicit DesktopColours(QObject* parent = nullptr);

 signals:
  // The user's wish, at start and whenever it changes.
  void told(bool dark);

 private slots:
  void settingChanged(const QDBusMessage& message);

 private:
  void hear(const QString& group, const QString& key, const QDBusVariant& value);
};

}  // namespace dialwright
