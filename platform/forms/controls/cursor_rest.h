#pragma once

#include <QObject>
#include <QTimer>

class QLineEdit;

namespace platform {

// Lets the text cursor of a line edit stand still, and seen, once nobody has worked in it for three
// seconds: its blinking wakes the program six times a second. With the next key it blinks again as
// the desktop has it.
class CursorRest final : public QObject {
 public:
  // edit: outlives this.
  explicit CursorRest(QLineEdit& edit);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QTimer rest_;
};

}  // namespace platform
