#include "platform/forms/window.h"

#include <QCloseEvent>
#include <QScreen>
#include <QStackedWidget>
#include <QWindow>

#include "platform/forms/form.h"
#include "platform/forms/modal_window.h"
#include "platform/forms/runtime.h"

namespace platform {

namespace {

// The size that the window has when it is not maximised, in logical pixels; and the smallest one,
// where the screen has room for it: at a large scale a small screen has not.
constexpr QSize kNormalSize{1000, 700};
constexpr QSize kSmallestSize{640, 440};
// What the desktop may need of the screen for a window's frame.
constexpr QSize kFrame{20, 60};

}  // namespace

Window::Window(Runtime& runtime) : runtime_(runtime), stack_(new QStackedWidget(this)) {
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
    formChanged(form);
    stack_->setCurrentWidget(page);
    appear();
  }
  page->resize(stack_->size());
  page->arrange();
  form.takeSize();
  stack_->setCurrentWidget(page);
  formChanged(form);
}

// Maximised from the first picture on; a desktop without a window manager leaves the window as it
// is. Nothing is painted before the desktop has given it its size, which the form then takes.
void Window::appear() {
  constexpr int kMostWaits = 50;
  constexpr double kWait = 0.01;  // seconds
  setUpdatesEnabled(false);
  setWindowState(windowState() | Qt::WindowMaximized);
  show();
  for (int i = 0; i < kMostWaits && !windowHandle()->isExposed(); ++i) {
    runtime_.time().sleepUntilEvent(kWait);
  }
  setUpdatesEnabled(true);
}

void Window::formChanged(const Form& form) {
  QWidget* own = form.page() == nullptr ? nullptr : form.page()->window();
  if (auto* modal = qobject_cast<ModalWindow*>(own)) {
    modal->setWindowTitle(form.caption());
    modal->setAccessibleName(form.caption());
    return;
  }
  if (runtime_.forms().current() != &form) return;
  setWindowTitle(form.caption());
  setWindowIcon(form.icon());
}

void Window::closeEvent(QCloseEvent* event) {
  event->accept();
  runtime_.forms().closeCurrent();
  runtime_.endProcess(0);
}

}  // namespace platform
