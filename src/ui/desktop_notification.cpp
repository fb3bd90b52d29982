// What the desktop tells beside all windows.
#include "ui/desktop_notification.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QVariantMap>

#include "ui/utf8.h"

namespace ui {
namespace {

constexpr unsigned char kUrgent = 2;  // stays until it is taken away

}  // namespace

void notifyDesktop(const base::Notification& notification) {
  constexpr int kPatienceMilliseconds = 3000;
  constexpr unsigned kReplacesNone = 0;
  constexpr int kNeverExpires = 0;
  const QString service = QStringLiteral("org.freedesktop.Notifications");
  const QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  QDBusMessage call = QDBusMessage::createMethodCall(service, QStringLiteral("/org/freedesktop/Notifications"), service,
                                                     QStringLiteral("Notify"));
  call << QStringLiteral("Tessik") << kReplacesNone << QStringLiteral("tessik") << toQString(notification.title)
       << toQString(notification.text).toHtmlEscaped() << QStringList()
       << QVariantMap{{QStringLiteral("urgency"), QVariant::fromValue(kUrgent)}} << kNeverExpires;
  bus.asyncCall(call, kPatienceMilliseconds);
}

}  // namespace ui
