#include "platform/forms/desktop_voice.h"

#include <QAccessible>

#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#endif

namespace platform::inline forms {

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)

void tellDesktop(QWidget& speaker, const QString& sentence) {
  QAccessibleAnnouncementEvent event(&speaker, sentence);
  QAccessible::updateAccessibility(&event);
}

#else

namespace {

// One event of the accessibility bus: what the description of an object is now.
void tellDescription(const QDBusConnection& bus, const QString& object, const QString& words) {
  QDBusMessage event = QDBusMessage::createSignal(
      object, QStringLiteral("org.a11y.atspi.Event.Object"), QStringLiteral("PropertyChange"));
  event.setArguments({QStringLiteral("accessible-description"), 0, 0,
                      QVariant::fromValue(QDBusVariant(words)), QVariantMap()});
  bus.send(event);
}

}  // namespace

// "a11y" is the name under which the toolkit keeps its connection, and the path where its objects
// are on it. Where it has none, because nobody listens or there is no such bus, nothing is sent. A
// description that stayed would be read again whenever the focus comes back.
void tellDesktop(QWidget& speaker, const QString& sentence) {
  const QDBusConnection bus(QStringLiteral("a11y"));
  QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&speaker);
  if (!bus.isConnected() || told == nullptr) return;
  const QString object =
      QStringLiteral("/org/a11y/atspi/accessible/%1").arg(QAccessible::uniqueId(told));
  tellDescription(bus, object, sentence);
  tellDescription(bus, object, {});
}

#endif

}  // namespace platform::inline forms
