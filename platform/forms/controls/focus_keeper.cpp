#include "platform/forms/controls/focus_keeper.h"

#include <QApplication>
#include <QEvent>
#include <QWindow>
#include <algorithm>

#include "platform/forms/ground.h"

namespace platform::inline forms {

// Hears of everything after which the panel can have the focus where it could not before.
class FocusKeeper::Watch final : public QObject {
 public:
  explicit Watch(FocusKeeper& keeper) : keeper_(keeper) {
    const auto wake = [this] { keeper_.wake(); };
    connect(qApp, &QApplication::focusChanged, this, wake);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, wake);
  }

  // The panel, or a menu that is in the way.
  void follow(QWidget& widget) { widget.installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    switch (event->type()) {
      case QEvent::Hide:
        if (watched != keeper_.panel_.widget()) watched->removeEventFilter(this);
        keeper_.wake();
        break;
      case QEvent::Show:
      case QEvent::EnabledChange:
        keeper_.wake();
        break;
      default:
        break;
    }
    return false;
  }

 private:
  FocusKeeper& keeper_;
};

FocusKeeper::FocusKeeper(ControlHost& host, KeyPanel& panel) : Control(host), panel_(panel) {}

FocusKeeper::~FocusKeeper() = default;

QWidget* FocusKeeper::create(QWidget* /*parent*/) {
  ticker_ = ground().time().makeTicker([this] { look(); });
  watch_ = std::make_unique<Watch>(*this);
  setInterval(interval_);
  return nullptr;
}

// Half of the interval, so that the focus is back within the whole.
void FocusKeeper::setInterval(int milliseconds) {
  interval_ = milliseconds;
  if (ticker_) ticker_->setInterval(std::max(1, milliseconds / 2));
}

void FocusKeeper::setEnabled(bool enabled) {
  Control::setEnabled(enabled);
  if (!ticker_) return;
  if (panel_.widget() != nullptr) watch_->follow(*panel_.widget());
  if (enabled) {
    wake();
  } else {
    ticker_->stop();
  }
}

void FocusKeeper::formGone() {
  if (ticker_) ticker_->stop();
}

bool FocusKeeper::isOn() const {
  return isEnabled() && interval_ > 0 && !home().isUnloaded();
}

void FocusKeeper::wake() {
  if (isOn() && !panel_.hasFocus()) ticker_->start();
}

// What has not come back now waits for something to happen: of menus only that they close.
void FocusKeeper::look() {
  ticker_->stop();
  raiseEvent([this] { panel_.keepFocus(); });
  if (QWidget* menu = QApplication::activePopupWidget()) watch_->follow(*menu);
}

}  // namespace platform::inline forms
