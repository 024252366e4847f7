#pragma once

#include <QApplication>
#include <QCursor>

namespace platform::inline forms {

// The hourglass over the whole program while one lives.
class WaitPointer {
 public:
  WaitPointer() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  ~WaitPointer() { QApplication::restoreOverrideCursor(); }
  WaitPointer(const WaitPointer&) = delete;
  WaitPointer& operator=(const WaitPointer&) = delete;
};

}  // namespace platform::inline forms
