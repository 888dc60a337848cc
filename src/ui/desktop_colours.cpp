// Reads the colour scheme of the XDG desktop portal (org.freedesktop.portal.Settings).
#include "ui/desktop_colours.hpp"

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace dialwright {

namespace {

constexpr const char* kService = "org.freedesktop.portal.Desktop";
constexpr const char* kPath = "/org/freedesktop/portal/desktop";
constexpr const char* kInterface = "org.freedesktop.portal.Settings";
constexpr const char* kGroup = "org.freedesktop.appearance";
constexpr const char* kKey = "color-scheme";
constexpr uint kPrefersDark = 1;
constexpr uint kPrefersLight = 2;

}  // namespace

DesktopColours::DesktopColours(QObject* parent) : QObject(parent) {
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  bus.connect(kService, kPath, kInterface, "SettingChanged", this,
              SLOT(settingChanged(QDBusMessage)));
  QDBusMessage question = QDBusMessage::createMethodCall(kService, kPath, kInterface, "Read");
  question << QString(kGroup) << QString(kKey);
  auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* call) {
    const QDBusPendingReply<QDBusVariant> reply = *call;
    if (reply.isValid()) hear(kGroup, kKey, reply.value());
    call->deleteLater();
  });
}

void DesktopColours::settingChanged(const QDBusMessage& message) {
  const QVariantList words = message.arguments();
  if (words.size() != 3) return;
  hear(words[0].toString(), words[1].toString(), words[2].value<QDBusVariant>());
}

void DesktopColours::hear(const QString& group, const QString& key, const QDBusVariant& value) {
  if (group != kGroup || key != kKey) return;
  QVariant innermost = value.variant();  // the answer of some services is a variant in a variant
  while (innermost.canConvert<QDBusVariant>())
    innermost = innermost.value<QDBusVariant>().variant();
  const uint wish = innermost.toUInt();
  if (wish == kPrefersDark || wish == kPrefersLight) emit told(wish == kPrefersDark);
}

}  // namespace dialwright
