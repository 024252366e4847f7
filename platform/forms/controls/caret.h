#pragma once

#include <QObject>
#include <QTimer>

class QLineEdit;

namespace platform::inline forms {

// When the text cursor of a line edit is seen. It blinks as the desktop has it, and stands still,
// and seen, once nobody has worked there for three seconds: blinking wakes the program. The line
// edit's own cursor is switched off; whoever makes a caret paints it.
class Caret final : public QObject {
 public:
  // edit: outlives this.
  explicit Caret(QLineEdit& edit);

  // Whether it is to be painted now.
  [[nodiscard]] bool isSeen() const;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void wake();
  void rest();

  QLineEdit& edit_;
  QTimer blink_;
  QTimer untilRest_;
  bool lit_ = true;
};

}  // namespace platform::inline forms
