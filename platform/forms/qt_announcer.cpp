#include "platform/forms/qt_announcer.h"

#include <QAccessible>
#include <QApplication>
#include <QEvent>
#include <utility>

#include "platform/forms/accessible.h"

#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#endif

namespace platform {

namespace {

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)

void tellDesktop(QWidget& speaker, const QString& sentence) {
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

// Comes after everything that is in the queue.
constexpr int kLast = Qt::LowEventPriority - 1;
// How often: what has the focus is told from the queue, and a key panel tells from there what it
// points at, which is then told from the queue again.
constexpr int kRounds = 2;

}  // namespace

QtAnnouncer::QtAnnouncer(Tell tell) : tell_(tell ? std::move(tell) : Tell(tellDesktop)) {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*before*/, QWidget* now) {
    if (now != nullptr) lastFocus_ = now;
  });
}

void QtAnnouncer::announce(const QString& sentence) {
  if (!QAccessible::isActive()) return;
  if (untold_.isEmpty()) waitRound(kRounds);
  untold_.append(sentence);
}

bool QtAnnouncer::event(QEvent* event) {
  if (event->type() != QEvent::User) return QObject::event(event);
  if (rounds_ > 0) {
    waitRound(rounds_);
  } else {
    speak();
  }
  return true;
}

void QtAnnouncer::waitRound(int rounds) {
  rounds_ = rounds - 1;
  QCoreApplication::postEvent(this, new QEvent(QEvent::User), kLast);
}

// Who is not on the screen has nothing to say.
QWidget* QtAnnouncer::speaker() const {
  for (QWidget* candidate : {focusSpoken(), lastFocus_.data()}) {
    if (candidate != nullptr && candidate->isVisible()) return candidate;
  }
  return QApplication::activeWindow();
}

void QtAnnouncer::speak() {
  const QString words = untold_.join(QStringLiteral(". "));
  untold_.clear();
  if (QWidget* who = speaker()) tell_(*who, words);
}

}  // namespace platform
