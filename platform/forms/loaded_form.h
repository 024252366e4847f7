#pragma once

#include "platform/forms/form.h"

namespace platform::inline forms {

// A form as the engine has it, which builds, shows, activates and unloads it and brings it keys.
// Authors of forms do not include this.
class LoadedForm {
 public:
  explicit LoadedForm(Form& form) : form_(form) {}

  // Makes the page and the controls. parent: of the page.
  void build(QWidget* parent) { form_.build(parent); }
  // The events of a form's life, each through the gate. False when it did not come to its end.
  bool runLoad();
  bool runActivate();
  bool runUnload();
  bool runClose();
  // Runs the form's Resize, if it is loaded.
  void takeSize() { form_.takeSize(); }
  // The form is on its way out: another one is being shown in its place.
  void leave() { form_.leaving_ = true; }
  [[nodiscard]] bool isLeaving() const { return form_.leaving_; }
  // The end: what runs by itself stops, and the page goes from the screen.
  void dispose() { form_.dispose(); }

  // Alt and a key. True when something of the form took it.
  bool accessKey(QChar key) { return form_.accessKey(key); }
  // A key with modifiers, as the shortcuts of the menu have it. True when an item took it.
  bool shortcut(const QKeySequence& keys) { return form_.shortcut(keys); }
  // The window lost the keyboard while keys were down: they are let go without effect.
  void keysLetGo() { form_.keysLetGo(); }

  // The proportional layout: puts every control where it belongs on the page as it is now.
  void layOut() { form_.layOut(); }

 private:
  Form& form_;
};

}  // namespace platform::inline forms
