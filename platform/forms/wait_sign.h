#pragma once

#include <QPointer>
#include <QString>
#include <QTimer>
#include <functional>

class QLabel;
class QWidget;

namespace platform::inline forms {

class Runtime;

// Words in the middle of a window while something keeps it waiting. They come after half a second:
// what answers sooner is not worth a flash.
class WaitSign {
 public:
  // over: the window. shown: called when the words come up.
  WaitSign(QWidget& over, const QString& words, std::function<void()> shown);
  ~WaitSign();
  WaitSign(const WaitSign&) = delete;
  WaitSign& operator=(const WaitSign&) = delete;

 private:
  void show();

  QPointer<QLabel> label_;  // the window's, which may go before the wait ends
  std::function<void()> shown_;
  QTimer timer_;
};

// `Runtime::waitDeaf`, and seen: with the hourglass, and from half a second on with the words over
// the window in use, which are announced as well.
void waitVisibly(Runtime& runtime, const QString& words, const std::function<void()>& work);

}  // namespace platform::inline forms
