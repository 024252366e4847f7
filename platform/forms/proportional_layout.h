#pragma once

namespace platform::inline forms {

class Form;

// Keeps every control of a form in proportion to the form's size, fonts included: x by the width,
// y by the height, fonts by the smaller of the two.
class ProportionalLayout {
 public:
  explicit ProportionalLayout(Form& form) : form_(form) {}

  // Takes the form's present size; from a form's Load.
  void start();
  // Follows a new size; from a form's Resize.
  void resize();

 private:
  Form& form_;
};

}  // namespace platform::inline forms
