#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

class QWindow;

namespace platform::inline base {
class TimeSource;
}

namespace platform::inline forms {

class Form;
class Gate;
class Window;

// The forms now loaded, and the moves between them. A form is named by its name, so that who asks
// for one need not know it.
class Forms {
 public:
  // Makes a form from its name; null for a name that the program does not have.
  using Factory = std::function<std::shared_ptr<Form>(std::string_view name)>;

  // window: shows one form at a time. time: waits while a form stands over it.
  Forms(Gate& gate, TimeSource& time, Window& window, Factory factory);
  ~Forms();

  // Shows a form: Load in full, where it is not loaded, then Resize, the change of page, Activate,
  // all before the call returns. From its start the old page takes no input. Does not return into
  // a handler whose program is ending.
  void show(std::string_view name);
  // The program's one way from form to form: shows the next, then unloads the one that is left.
  void pass(Form& from, std::string_view to);
  // Shows a loaded form in a window of its own over the main one and returns when it has been
  // unloaded, or the program is ending: Resize and Activate come first. The form on the screen is
  // activated again after the running handler.
  void showModal(Form& form);
  // Activates the form on the screen after the running handler, as when a form over it has gone.
  void activateAgain();
  // Takes a form from the screen at once; it is destroyed when no handler of it is left on the
  // stack. A form that it was shown over comes back and is activated after the running handler.
  void unload(Form& form);
  // A form for reading something of it, also one that is being left: loaded without being shown
  // where it was not.
  [[nodiscard]] Form& loaded(std::string_view name);

  // Caption, icon or height of a form have changed: the window that shows it follows.
  void formChanged(Form& form);

  // The form on the screen, or null.
  [[nodiscard]] Form* current() const;
  // The form that this window of the program shows, or null.
  [[nodiscard]] Form* shownIn(const QWindow& window) const;
  // Every form now loaded, hidden ones too, in the order of their loading.
  [[nodiscard]] std::vector<std::shared_ptr<Form>> all() const;
  // Counts the changes of page, so that a mouse or key event can be told to belong to another page.
  [[nodiscard]] int pageNumber() const { return pageNumber_; }
  // Whether a form is being shown and the old page must not take input.
  [[nodiscard]] bool isChanging() const { return changing_ > 0; }
  // Closing the window: unloads the form on the screen; the caller ends the program.
  void closeCurrent();

  // Called by the gate and at the end: frees unloaded forms once nothing of them runs.
  void bury();
  void clear();

 private:
  std::shared_ptr<Form> find(std::string_view name) const;
  std::shared_ptr<Form> load(std::string_view name);
  void activateLater(const std::shared_ptr<Form>& form);

  Gate& gate_;
  TimeSource& time_;
  Window& window_;
  Factory factory_;
  std::vector<std::shared_ptr<Form>> loaded_;
  std::vector<std::shared_ptr<Form>> shown_;  // the last is on the screen
  std::vector<std::shared_ptr<Form>> gone_;
  std::vector<std::shared_ptr<Form>> modal_;  // in windows of their own
  int pageNumber_ = 0;
  int changing_ = 0;
  bool burying_ = false;
};

}  // namespace platform::inline forms
