#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWidget>
#include <functional>

#include "platform/base/services.h"

namespace platform {

// Speaks through the desktop's screen reader. What is told while one event is handled is spoken
// together, once that is over, on behalf of what has the focus then: a screen reader hears nothing
// else, and the handler that tells a sentence may move the focus afterwards.
//
// From Qt 6.8 on it is an announcement of the toolkit's. Before, the toolkit has none, and tells of
// a changed description without its words; so the words go over the toolkit's own connection to the
// accessibility bus, as a description that is taken back at once.
class QtAnnouncer final : public QObject, public Announcer {
 public:
  // Tells words on behalf of a widget.
  using Tell = std::function<void(QWidget& speaker, const QString& words)>;

  // tell: how the desktop is told; as above without it.
  explicit QtAnnouncer(Tell tell = {});

  void announce(const QString& sentence) override;

  bool event(QEvent* event) override;

 private:
  void waitRound(int rounds);
  [[nodiscard]] QWidget* speaker() const;
  void speak();

  Tell tell_;
  QStringList untold_;
  int rounds_ = 0;               // of the queue that are waited for after the next
  QPointer<QWidget> lastFocus_;  // where nothing has the focus a screen reader is still there
};

}  // namespace platform
