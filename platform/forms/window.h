#pragma once

#include <QMainWindow>

class QStackedWidget;

namespace platform {

class Form;
class Runtime;

// The one main window: it shows one form at a time, from which it takes its caption and icon, and
// keeps its own size, place and maximised state from form to form.
class Window final : public QMainWindow {
  Q_OBJECT

 public:
  explicit Window(Runtime& runtime);

  // The parent of the pages.
  [[nodiscard]] QWidget* pages();
  // Resizes the form to the window, runs its Resize, and puts it on the screen.
  void showPage(Form& form);
  // Caption and icon follow the form on the screen.
  void formChanged(const Form& form);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void appear();

  Runtime& runtime_;
  QStackedWidget* stack_;
};

}  // namespace platform
