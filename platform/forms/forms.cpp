#include "platform/forms/forms.h"

#include <QScopeGuard>
#include <QTimer>
#include <algorithm>

#include "platform/base/run_time_error.h"
#include "platform/base/time_source.h"
#include "platform/forms/loaded_form.h"
#include "platform/forms/modal_window.h"
#include "platform/forms/window.h"

namespace platform::inline forms {

Forms::Forms(Gate& gate, TimeSource& time, Window& window, Factory factory)
    : gate_(gate), time_(time), window_(window), factory_(std::move(factory)) {}

Forms::~Forms() = default;

std::shared_ptr<Form> Forms::find(std::string_view name) const {
  const auto found = std::find_if(loaded_.begin(), loaded_.end(), [name](const auto& form) {
    return form->design().name == name && !LoadedForm(*form).isLeaving();
  });
  return found == loaded_.end() ? nullptr : *found;
}

std::shared_ptr<Form> Forms::load(std::string_view name) {
  if (std::shared_ptr<Form> form = find(name)) return form;
  std::shared_ptr<Form> form = factory_(name);
  if (!form) throw RunTimeError(RunTimeError::InvalidCall);
  loaded_.push_back(form);
  LoadedForm(*form).build(window_.pages());
  form->page()->resize(window_.pages()->size());
  form->page()->arrange();
  const bool done = LoadedForm(*form).runLoad();
  if (!done || form->isUnloaded()) throw Unwind{};
  return form;
}

void Forms::show(std::string_view name) {
  ++changing_;
  // Nobody sees a form before its activation has put everything in its place; see `holdPicture`.
  const auto release = qScopeGuard([this] { window_.releasePicture(); });
  std::shared_ptr<Form> form;
  try {
    form = load(name);
  } catch (...) {
    --changing_;
    throw;
  }
  std::erase(shown_, form);
  shown_.push_back(form);
  ++pageNumber_;
  window_.holdPicture();
  window_.showPage(*form);
  --changing_;
  LoadedForm(*form).runActivate();
  if (gate_.isClosed()) throw Unwind{};
}

void Forms::pass(Form& from, std::string_view to) {
  const std::shared_ptr<Form> keep = from.shared_from_this();
  LoadedForm(from).leave();
  show(to);
  unload(from);
}

void Forms::unload(Form& form) {
  if (form.isUnloaded()) return;
  const std::shared_ptr<Form> keep = form.shared_from_this();
  LoadedForm(*keep).runUnload();
  const bool onScreen = current() == keep.get();
  std::erase(shown_, keep);
  std::erase(loaded_, keep);
  gone_.push_back(keep);
  if (onScreen && !shown_.empty() && !gate_.isClosed()) {
    const std::shared_ptr<Form> below = shown_.back();
    ++pageNumber_;
    window_.showPage(*below);
    activateLater(below);
  }
  LoadedForm(*keep).dispose();
  bury();
}

void Forms::activateLater(const std::shared_ptr<Form>& form) {
  const auto activate = [this, weak = std::weak_ptr(form)] {
    const std::shared_ptr<Form> alive = weak.lock();
    if (!alive || current() != alive.get() || LoadedForm(*alive).isLeaving()) return;
    LoadedForm(*alive).runActivate();
  };
  gate_.afterHandler([this, activate] { QTimer::singleShot(0, &window_, activate); });
}

void Forms::showModal(Form& form) {
  constexpr double kLong = 60;  // seconds; any event ends the sleep
  const std::shared_ptr<Form> keep = form.shared_from_this();
  gate_.wait([&] {
    ModalWindow window(window_, form);
    window_.releasePicture();
    modal_.push_back(keep);
    window.fit();
    // Painted when all is in its place.
    window.setUpdatesEnabled(false);
    window.show();
    LoadedForm(form).takeSize();
    LoadedForm(form).runActivate();
    window.setUpdatesEnabled(true);
    while (!form.isUnloaded() && !gate_.isClosed()) {
      time_.sleepUntilEvent(kLong);
    }
    std::erase(modal_, keep);
    // The page outlives the window: what a handler still holds of it is there until it is buried.
    form.page()->setParent(window_.pages());
    activateAgain();
  });
}

void Forms::activateAgain() {
  if (Form* form = current()) activateLater(form->shared_from_this());
}

void Forms::formChanged(Form& form) {
  QWidget* own = form.page() == nullptr ? nullptr : form.page()->window();
  if (auto* modal = qobject_cast<ModalWindow*>(own)) {
    modal->takeTitle();
    modal->fit();
    LoadedForm(form).takeSize();
  } else if (current() == &form) {
    window_.takeTitle(form);
  }
}

Form* Forms::shownIn(const QWindow& window) const {
  if (&window == window_.windowHandle()) return current();
  for (const std::shared_ptr<Form>& form : modal_) {
    if (form->page()->window()->windowHandle() == &window) return form.get();
  }
  return nullptr;
}

Form& Forms::loaded(std::string_view name) {
  // The newest of that name. One that is being left is still there to be read.
  const auto there = std::find_if(loaded_.rbegin(), loaded_.rend(),
                                  [name](const auto& form) { return form->design().name == name; });
  return there != loaded_.rend() ? **there : *load(name);
}

Form* Forms::current() const {
  return shown_.empty() ? nullptr : shown_.back().get();
}

std::vector<std::shared_ptr<Form>> Forms::all() const {
  return loaded_;
}

void Forms::closeCurrent() {
  if (Form* form = current()) unload(*form);
}

// The last handler of a form may have been called from one of its own widgets, so that nothing is
// destroyed before control is back in an event loop.
void Forms::bury() {
  if (burying_ || gone_.empty()) return;
  burying_ = true;
  QTimer::singleShot(0, &window_, [this] {
    burying_ = false;
    std::erase_if(gone_,
                  [this](const std::shared_ptr<Form>& form) { return !gate_.isRunning(*form); });
  });
}

void Forms::clear() {
  shown_.clear();
  modal_.clear();
  gone_.clear();
  loaded_.clear();
}

}  // namespace platform::inline forms
