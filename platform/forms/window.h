#pragma once

#include <QMainWindow>
#include <functional>

class QStackedWidget;

namespace platform::inline base {
class TimeSource;
}

namespace platform::inline forms {

class Form;

// The one main window: it shows one form at a time, from which it takes its caption and icon, and
// keeps its own size, place and maximised state from form to form.
class Window final : public QMainWindow {
  Q_OBJECT

 public:
  // time: waits for the desktop. closed: the user closes the window.
  Window(TimeSource& time, std::function<void()> closed);

  // The parent of the pages.
  [[nodiscard]] QWidget* pages();
  // Resizes the form to the window, runs its Resize, and puts it on the screen.
  void showPage(Form& form);
  // From here on forms are not painted: what stands on the screen stays to be seen. Only a change
  // of the window's size paints them all the same.
  void holdPicture();
  // Paints the form on the screen again; nothing where it is not held.
  void releasePicture();
  // Takes caption and icon of the form on the screen.
  void takeTitle(const Form& form);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void appear();

  TimeSource& time_;
  std::function<void()> closed_;
  QStackedWidget* stack_;
};

}  // namespace platform::inline forms
