#include "platform/forms/qt_announcer.h"

#include <QAccessible>
#include <QApplication>
#include <QEvent>
#include <QWindow>
#include <utility>

#include "platform/forms/accessible.h"
#include "platform/forms/desktop_voice.h"

namespace platform::inline forms {

namespace {

// Comes after everything that is in the queue.
constexpr int kLast = Qt::LowEventPriority - 1;
// How often: what has the focus is told from the queue, and a key panel tells from there what it
// points at, which is then told from the queue again.
constexpr int kRounds = 2;

}  // namespace

QtAnnouncer::QtAnnouncer(Tell tell, int breath)
    : tell_(tell ? std::move(tell) : Tell(tellDesktop)), breath_(breath) {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*before*/, QWidget* now) {
    if (now != nullptr) lastFocus_ = now;
  });
  connect(qApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow* now) {
    if (now == nullptr || boxes_ > 0) return;
    behindBox_ = false;
    speakSoon();
  });
}

void QtAnnouncer::announce(const QString& sentence) {
  if (!QAccessible::isActive()) return;
  untold_.append(sentence);
  speakSoon();
}

void QtAnnouncer::boxOpens() {
  if (boxes_++ > 0 || !isBrokenOff()) return;
  untold_ = std::exchange(told_, {}) + untold_;
}

// Whether a voice may still be at what was told last, and that is about what is on the screen.
bool QtAnnouncer::isBrokenOff() const {
  return !told_.isEmpty() && !sinceTold_.hasExpired(breath_) && toldAround_ != nullptr &&
         toldAround_->isVisible();
}

void QtAnnouncer::boxCloses() {
  --boxes_;
  behindBox_ = true;
  speakSoon();
}

bool QtAnnouncer::event(QEvent* event) {
  if (event->type() != QEvent::User) return QObject::event(event);
  if (--rounds_ > 0) {
    waitRound();
  } else if (boxes_ == 0) {
    speak();
  }
  return true;
}

void QtAnnouncer::speakSoon() {
  if (untold_.isEmpty() || rounds_ > 0 || boxes_ > 0) return;
  rounds_ = kRounds;
  waitRound();
}

void QtAnnouncer::waitRound() {
  QCoreApplication::postEvent(this, new QEvent(QEvent::User), kLast);
}

// Who is not on the screen has nothing to say.
QWidget* QtAnnouncer::speaker() const {
  for (QWidget* candidate : {focusSpoken(), lastFocus_.data()}) {
    if (candidate != nullptr && candidate->isVisible()) return candidate;
  }
  return QApplication::activeWindow();
}

// The desktop gives the keyboard back some time after a box has gone, and before that a screen
// reader hears nobody.
void QtAnnouncer::speak() {
  if (behindBox_ && QGuiApplication::focusWindow() == nullptr) return;
  behindBox_ = false;
  told_ = std::exchange(untold_, {});
  sinceTold_.start();
  QWidget* who = speaker();
  if (who == nullptr) return;
  toldAround_ = who->isWindow() ? who : who->parentWidget();
  tell_(*who, told_.join(QStringLiteral(". ")));
}

}  // namespace platform::inline forms
