#include "platform/forms/keys/key_guard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QTimerEvent>
#include <QWindow>
#include <algorithm>
#include <chrono>

#include "platform/forms/forms.h"
#include "platform/forms/ground.h"
#include "platform/forms/keys/key_codes.h"
#include "platform/forms/keys/keyboard_state.h"
#include "platform/forms/loaded_form.h"
#include "platform/forms/press_event.h"
#include "platform/forms/window.h"

namespace platform::inline forms {

namespace {

// Where the desktop cannot be asked what is down, a release on the way from window to window may be
// told to none of them: a key then counts as held over for this long after the last sign of it.
constexpr std::chrono::milliseconds kUntold{200};

// What takes a press that no release belongs to.
constexpr int kNobody = -1;
constexpr int kElsewhere = -2;

KeyId keyOf(const QKeyEvent& event) {
  return KeyId::of(countedScanCode(event.nativeScanCode()), std::uint32_t(event.key()));
}

std::chrono::milliseconds now() {
  return std::chrono::duration_cast<std::chrono::milliseconds>(
      std::chrono::steady_clock::now().time_since_epoch());
}

KeyInput inputOf(const QKeyEvent& event) {
  return {.id = keyOf(event),
          .flaggedRepeat = event.isAutoRepeat(),
          .stamp = std::chrono::milliseconds(event.timestamp()),
          .arrival = now()};
}

// Where a key is brought: an open menu has the keyboard to itself, though the focus stays with what
// lies below it. Null where nothing takes it.
QWidget* hearer() {
  QWidget* menu = QApplication::activePopupWidget();
  if (menu == nullptr) return QApplication::focusWidget();
  return menu->focusWidget() != nullptr ? menu->focusWidget() : menu;
}

}  // namespace

KeyGuard::KeyGuard(const Ground& ground, const Forms& forms, const Window& window,
                   RepeatMarks marks)
    : ground_(ground), forms_(forms), window_(window), state_(marks), missed_(missedReleases()) {
  qApp->installEventFilter(this);
  if (missed_) qApp->installNativeEventFilter(missed_.get());
  focus_ = QGuiApplication::focusWindow();
  connect(qApp, &QGuiApplication::focusWindowChanged, this, &KeyGuard::windowChanged);
}

KeyGuard::~KeyGuard() = default;

bool KeyGuard::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      // Qt's own shortcuts and access keys repeat while a key is held; the guard works them. Alt
      // alone is no shortcut: the menu bar learns from it that it is to take the keyboard. Neither
      // is what an open list takes for a choice in it.
      if (isModifier(static_cast<QKeyEvent*>(event)->key())) return false;
      if (choosesInList(static_cast<QKeyEvent&>(*event))) return false;
      event->accept();
      return true;
    case QEvent::KeyPress:
      return watched->isWindowType() &&
             keyPress(static_cast<QWindow&>(*watched), static_cast<QKeyEvent&>(*event));
    case QEvent::KeyRelease:
      return watched->isWindowType() &&
             keyRelease(static_cast<QWindow&>(*watched), static_cast<QKeyEvent&>(*event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
      return watched->isWindowType() &&
             mouse(static_cast<QWindow&>(*watched), static_cast<QMouseEvent&>(*event));
    default:
      return event->type() == pressEvent() && watched->isWidgetType() &&
             !mayAct(static_cast<QWidget&>(*watched));
  }
}

// Whether a key that begins to be pressed goes to an open list: Qt's lists act before the press
// itself comes, again and again while a key is held.
bool KeyGuard::choosesInList(const QKeyEvent& event) const {
  const QWidget* popup = QApplication::activePopupWidget();
  if (popup == nullptr || qobject_cast<const QMenu*>(popup) != nullptr) return false;
  return !event.isAutoRepeat() && !state_.isDown(keyOf(event));
}

bool KeyGuard::isMainWindow(const QWindow& window) const {
  return &window == window_.windowHandle();
}

// Nothing acts while a device is waited for, nor on a page that is being left.
bool KeyGuard::isShut(const QWindow& window) const {
  return ground_.isDeaf() || (isMainWindow(window) && forms_.isChanging());
}

bool KeyGuard::mayAct(const QWidget& widget) const {
  const QWidget* window = widget.window();
  const QWidget* modal = QApplication::activeModalWidget();
  const bool open = modal == nullptr || modal == window || modal->isAncestorOf(window);
  const QWindow* handle = window->windowHandle();
  return open && handle != nullptr && !isShut(*handle);
}

// What a window holds: the page of the main window, or the window itself.
int KeyGuard::ownerOf(const QWindow& window) const {
  if (isMainWindow(window)) return forms_.pageNumber();
  return kElsewhere - 1 - int(window.winId() % 100000);
}

// Who gets a press in this window: its owner, unless a menu is open over it.
int KeyGuard::destinationOf(const QWindow& window) const {
  return QApplication::activePopupWidget() != nullptr ? kElsewhere : ownerOf(window);
}

// Whether a release may go on in this window: only to who had the press, destination, and only as
// long as something acts there. Where it may not, what the key still holds is let go: a menu has
// opened over it, or another form is on its way to the screen.
bool KeyGuard::mayGoOn(const QWindow& window, int destination) {
  if (destination == destinationOf(window) && !isShut(window)) return true;
  if (focus_ && destination == ownerOf(*focus_)) letGo();
  return false;
}

// A box or dialog takes no key before every key that was held at its opening has been let go. What
// has gone down since, this press among it, holds nothing up. A busy program hears of a repeat when
// the key is up again: of the pressed key itself its release alone tells.
bool KeyGuard::isBlocked(const QWindow& window, KeyId pressed) {
  if (isShut(window)) return true;
  if (isMainWindow(window) || !state_.anyHeldOver()) return false;
  if (auto down = keysDownNow()) {
    down->push_back(pressed);
    state_.stillHeldOver(*down);
  } else if (now() - lastSign_ > kUntold) {
    state_.stillHeldOver({});
  }
  return state_.anyHeldOver();
}

bool KeyGuard::keyPress(QWindow& window, QKeyEvent& event) {
  if (isModifier(event.key())) return false;
  if (event.isAutoRepeat()) lastSign_ = now();
  const bool blocked = isBlocked(window, keyOf(event));
  // With Alt or Ctrl it is the press that acts; no release belongs to it. Enter alone means the
  // same with and without them.
  const bool command =
      (event.modifiers() & (Qt::AltModifier | Qt::ControlModifier)) != 0 && !isEnter(event.key());
  const int destination = blocked || command ? kNobody : destinationOf(window);
  const KeyState::PressResult press = state_.press(inputOf(event), destination);
  if (press.verdict == KeyState::Press::Repeat) {
    // Only to who had the press: where that was dropped, the whole hold is.
    const bool same = press.destination && *press.destination == destination;
    return blocked || !same || !mayRepeat(event);
  }
  if (press.released) deliver(*press.released);
  if (press.lost) letGo();
  if (blocked) return true;
  // An open menu has the keyboard to itself, though the window below it is told of the keys.
  return command && QApplication::activePopupWidget() == nullptr && worked(window, event);
}

bool KeyGuard::worked(QWindow& window, const QKeyEvent& event) {
  Form* form = forms_.shownIn(window);
  if (form == nullptr) return false;
  const std::shared_ptr<Form> keep = form->shared_from_this();
  const Qt::KeyboardModifiers modifiers =
      event.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
  if (modifiers == Qt::AltModifier) {
    const QChar key = characterOf(event);
    return key.isLetterOrNumber() && LoadedForm(*form).accessKey(key.toUpper());
  }
  if ((modifiers & Qt::ControlModifier) == 0) return false;
  return LoadedForm(*form).shortcut(QKeySequence(QKeyCombination(modifiers, Qt::Key(event.key()))));
}

bool KeyGuard::keyRelease(QWindow& window, QKeyEvent& event) {
  if (isModifier(event.key())) return false;
  const KeyState::ReleaseResult release = state_.release(inputOf(event));
  switch (release.verdict) {
    case KeyState::Release::Accepted:
      return !mayGoOn(window, release.destination);
    case KeyState::Release::Deferred: {
      const KeyId key = keyOf(event);
      std::erase_if(heldBack_, [key](const auto& held) { return held.first == key; });
      heldBack_.emplace_back(key, std::unique_ptr<QKeyEvent>(event.clone()));
      schedule();
      return true;
    }
    case KeyState::Release::Dropped:
      break;
  }
  return true;
}

void KeyGuard::schedule() {
  if (timer_ != 0) killTimer(timer_);
  timer_ = 0;
  if (const auto next = state_.nextDue()) {
    const auto rest = std::max(std::chrono::milliseconds(0), *next - now());
    timer_ = startTimer(rest, Qt::PreciseTimer);
  }
}

void KeyGuard::timerEvent(QTimerEvent* event) {
  if (event->timerId() == timer_) sendDue();
}

void KeyGuard::sendDue() {
  const std::vector<HeldKey> due = state_.due(now());
  schedule();
  for (const HeldKey& released : due) deliver(released);
}

// Hands on a release that was held back, straight to where Qt would bring it.
void KeyGuard::deliver(const HeldKey& released) {
  const auto held = std::find_if(heldBack_.begin(), heldBack_.end(),
                                 [&](const auto& back) { return back.first == released.id; });
  if (held == heldBack_.end()) return;
  const std::unique_ptr<QKeyEvent> event = std::move(held->second);
  heldBack_.erase(held);
  const QWindow* window = QGuiApplication::focusWindow();
  if (window == nullptr || !mayGoOn(*window, released.destination)) return;
  if (QWidget* widget = hearer()) QCoreApplication::sendEvent(widget, event.get());
}

// What is down is let go without effect.
void KeyGuard::letGo() {
  if (!focus_) return;
  if (Form* form = forms_.shownIn(*focus_)) LoadedForm(*form).keysLetGo();
}

// The keyboard went to another window of ours, or out of the program. Whatever is down is let go
// without effect; what is still down when the keyboard comes back does nothing until it goes up.
void KeyGuard::windowChanged(QWindow* window) {
  if (window == focus_) return;
  const std::vector<HeldKey> held = state_.letGoAll();
  heldBack_.clear();
  schedule();
  if (!held.empty()) letGo();
  focus_ = window;
  for (const HeldKey& key : held) letGo_.push_back(key.id);
  if (window == nullptr) return;
  lastSign_ = now();
  state_.heldOver(keysDownNow().value_or(letGo_), lastSign_);
  letGo_.clear();
}

// While a form is being shown the old page takes no mouse, and the second half of a double click
// does not reach a page that came up between the two, or on which only that second half fell. The
// release of a press that was dropped may reach no window of ours: a box has opened meanwhile. What
// is pressed next is then a press of its own.
bool KeyGuard::mouse(QWindow& window, const QMouseEvent& event) {
  if (event.type() == QEvent::MouseButtonRelease) {
    const bool drop = dropped_.testFlag(event.button());
    dropped_.setFlag(event.button(), false);
    return drop;
  }
  const bool inMain = isMainWindow(window);
  const int page = forms_.pageNumber();
  const bool stale = inMain && event.type() == QEvent::MouseButtonDblClick && mousePage_ != page;
  const bool drop = isShut(window) || stale;
  dropped_.setFlag(event.button(), drop);
  if (drop) return true;
  if (event.type() == QEvent::MouseButtonPress &&
      !event.flags().testFlag(Qt::MouseEventCreatedDoubleClick)) {
    mousePage_ = inMain ? page : kNobody;
  }
  return false;
}

}  // namespace platform::inline forms
