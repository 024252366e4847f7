#pragma once

#include <QDialog>

namespace platform::inline forms {

class Form;

// A window over the main one that shows a form and takes all input until the form is unloaded. It
// is as large as the form's design allows on the main window, and keeps that size.
class ModalWindow final : public QDialog {
  Q_OBJECT

 public:
  // over: the main window.
  ModalWindow(QWidget& over, Form& form);

  // Takes the size that the form's design has now.
  void fit();
  // Takes the form's caption.
  void takeTitle();
  // Closing the window and Esc ask the form.
  void reject() override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void stayOver();

  QWidget& over_;
  Form& form_;
  double growth_ = 0;  // of the design's logical pixels; settled when the window comes up
};

}  // namespace platform::inline forms
