#include "platform/forms/qt_announcer.h"

#include <QAccessible>
#include <QApplication>

#include "platform/forms/accessible.h"

#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#endif

namespace platform {

namespace {

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)

void tell(QWidget& speaker, const QString& sentence) {
  QAccessibleAnnouncementEvent event(&speaker, sentence);
  QAccessible::updateAccessibility(&event);
}

#else

// One event of the accessibility bus: what the description of an object is now.
void tellDescription(const QDBusConnection& bus, const QString& object, const QString& words) {
  QDBusMessage event = QDBusMessage::createSignal(
      object, QStringLiteral("org.a11y.atspi.Event.Object"), QStringLiteral("PropertyChange"));
  event.setArguments({QStringLiteral("accessible-description"), 0, 0,
                      QVariant::fromValue(QDBusVariant(words)), QVariantMap()});
  bus.send(event);
}

// The name under which the toolkit keeps its connection, and where its objects are on it. Where it
// has none, because nobody listens or there is no such bus, there is nothing to be sent.
void tell(QWidget& speaker, const QString& sentence) {
  const QDBusConnection bus(QStringLiteral("a11y"));
  QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&speaker);
  if (!bus.isConnected() || told == nullptr) return;
  const QString object =
      QStringLiteral("/org/a11y/atspi/accessible/%1").arg(QAccessible::uniqueId(told));
  tellDescription(bus, object, sentence);
  tellDescription(bus, object, told->text(QAccessible::Description));
}

#endif

}  // namespace

void QtAnnouncer::announce(const QString& sentence) {
  if (!QAccessible::isActive()) return;
  QWidget* focus = focusSpoken();
  if (focus != nullptr) speaker_ = focus;
  if (speaker_ == nullptr) speaker_ = QApplication::activeWindow();
  if (speaker_ != nullptr) tell(*speaker_, sentence);
}

}  // namespace platform
