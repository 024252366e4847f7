#pragma once

#include <QObject>
#include <QPointer>
#include <memory>
#include <utility>
#include <vector>

#include "platform/forms/keys/key_state.h"

class QAbstractNativeEventFilter;
class QKeyEvent;
class QMouseEvent;
class QWidget;
class QWindow;

namespace platform::inline forms {

class Forms;
class Ground;
class Window;

// Stands in front of the windows of the program: makes one press and one release of each hold of a
// key, works access keys and shortcuts once a hold, and drops what belongs to a page that has gone.
// It sees each event at the window, before any widget; what it lets through goes Qt's usual way.
class KeyGuard final : public QObject {
  Q_OBJECT

 public:
  // marks: how this desktop shows the repeats of a held key.
  KeyGuard(const Ground& ground, const Forms& forms, const Window& window, RepeatMarks marks);
  ~KeyGuard() override;

  // Whether a press in this widget acts now: nothing is waited for with deaf ears, its page is not
  // being left, and no box or dialog stands over its window.
  [[nodiscard]] bool mayAct(const QWidget& widget) const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  bool keyPress(QWindow& window, QKeyEvent& event);
  bool keyRelease(QWindow& window, QKeyEvent& event);
  [[nodiscard]] bool isBlocked(const QWindow& window, KeyId pressed);
  bool mouse(QWindow& window, const QMouseEvent& event);
  bool worked(QWindow& window, const QKeyEvent& event);
  [[nodiscard]] bool choosesInList(const QKeyEvent& event) const;
  [[nodiscard]] bool isMainWindow(const QWindow& window) const;
  [[nodiscard]] bool isShut(const QWindow& window) const;
  [[nodiscard]] int ownerOf(const QWindow& window) const;
  [[nodiscard]] int destinationOf(const QWindow& window) const;
  bool mayGoOn(const QWindow& window, int destination);
  void windowChanged(QWindow* window);
  void letGo();
  void deliver(const HeldKey& released);
  void sendDue();
  void schedule();

  const Ground& ground_;
  const Forms& forms_;
  const Window& window_;
  KeyState state_;
  std::unique_ptr<QAbstractNativeEventFilter> missed_;
  QPointer<QWindow> focus_;
  // When a window of ours got the keyboard, or a repeat last showed a key to be down.
  std::chrono::milliseconds lastSign_{0};
  std::vector<KeyId> letGo_;  // since a window of ours last had the keyboard
  std::vector<std::pair<KeyId, std::unique_ptr<QKeyEvent>>> heldBack_;  // releases
  int timer_ = 0;
  int mousePage_ = -1;          // the page that got the last press; none if that went elsewhere
  Qt::MouseButtons dropped_{};  // whose press was dropped, and whose release goes the same way
};

}  // namespace platform::inline forms
