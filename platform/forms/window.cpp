#include "platform/forms/window.h"

#include <QCloseEvent>
#include <QScreen>
#include <QStackedWidget>
#include <QWindow>

#include "platform/base/time_source.h"
#include "platform/forms/loaded_form.h"

namespace platform::inline forms {

namespace {

// The size that the window has when it is not maximised, in logical pixels; and the smallest one,
// where the screen has room for it: at a large scale a small screen has not.
constexpr QSize kNormalSize{1000, 700};
constexpr QSize kSmallestSize{640, 440};
// What the desktop may need of the screen for a window's frame.
constexpr QSize kFrame{20, 60};

}  // namespace

Window::Window(TimeSource& time, std::function<void()> closed)
    : time_(time), closed_(std::move(closed)), stack_(new QStackedWidget(this)) {
  setCentralWidget(stack_);
  setMinimumSize(kSmallestSize.boundedTo(screen()->availableSize() - kFrame));
  resize(kNormalSize);
}

QWidget* Window::pages() {
  return stack_;
}

void Window::showPage(Form& form) {
  Page* page = form.page();
  if (stack_->indexOf(page) < 0) stack_->addWidget(page);
  if (!isVisible()) {
    takeTitle(form);
    stack_->setCurrentWidget(page);
    appear();
  }
  page->resize(stack_->size());
  page->arrange();
  LoadedForm(form).takeSize();
  stack_->setCurrentWidget(page);
  takeTitle(form);
}

// Maximised from the first picture on; a desktop without a window manager leaves the window as it
// is. Nothing is painted before the desktop has given it its size, which the form then takes. Some
// desktops show a window first and give it its size a little later.
void Window::appear() {
  constexpr int kMostWaits = 50;
  constexpr int kMostWaitsForSize = 20;
  constexpr double kWait = 0.01;  // seconds
  setUpdatesEnabled(false);
  setWindowState(windowState() | Qt::WindowMaximized);
  show();
  for (int i = 0; i < kMostWaits && !windowHandle()->isExposed(); ++i) {
    time_.sleepUntilEvent(kWait);
  }
  for (int i = 0; i < kMostWaitsForSize && size() == kNormalSize; ++i) {
    time_.sleepUntilEvent(kWait);
  }
  setUpdatesEnabled(true);
}

void Window::holdPicture() {
  stack_->setUpdatesEnabled(false);
}

void Window::releasePicture() {
  stack_->setUpdatesEnabled(true);
}

void Window::takeTitle(const Form& form) {
  setWindowTitle(form.caption());
  setWindowIcon(form.icon());
}

void Window::closeEvent(QCloseEvent* event) {
  event->accept();
  closed_();
}

}  // namespace platform::inline forms
