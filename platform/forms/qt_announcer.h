#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWidget>
#include <functional>

#include "platform/base/services.h"

namespace platform::inline forms {

// Speaks through the desktop's screen reader. What is told while one event is handled is spoken
// together, once that is over, on behalf of what has the focus then: a screen reader hears nothing
// else, and the handler that tells a sentence may move the focus afterwards.
//
// Behind a box nothing is spoken; when it has gone and a window has the keyboard again, what waited
// is, and before it what the box had broken off, unless the page that it was about has gone.
//
// How the system at hand is told is settled in desktop_voice: from Qt 6.8 on as an announcement of
// the toolkit's. Before, the toolkit has none: under Linux, where it tells of a changed description
// without its words, they go over its own connection to the accessibility bus, as a description
// that is taken back at once.
class QtAnnouncer final : public QObject, public Announcer {
 public:
  // Tells words on behalf of a widget.
  using Tell = std::function<void(QWidget& speaker, const QString& words)>;

  // For so long, in milliseconds, a voice may still be at what it was told last.
  static constexpr int kBreath = 3000;

  // tell: how the desktop is told; as above without it.
  explicit QtAnnouncer(Tell tell = {}, int breath = kBreath);

  void announce(const QString& sentence) override;
  void boxOpens() override;
  void boxCloses() override;

  bool event(QEvent* event) override;

 private:
  void speakSoon();
  void waitRound();
  [[nodiscard]] QWidget* speaker() const;
  [[nodiscard]] bool isBrokenOff() const;
  void speak();

  Tell tell_;
  int breath_;
  QStringList untold_;
  QStringList told_;              // together, the last time
  QPointer<QWidget> toldAround_;  // what held the speaker then
  QElapsedTimer sinceTold_;
  int rounds_ = 0;               // of the queue that are still waited for
  int boxes_ = 0;                // that stand in front
  bool behindBox_ = false;       // one has gone, and no window has had the keyboard since
  QPointer<QWidget> lastFocus_;  // where nothing has the focus a screen reader is still there
};

}  // namespace platform::inline forms
