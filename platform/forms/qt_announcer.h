#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/base/services.h"

namespace platform {

// Speaks through the desktop's screen reader, on behalf of what has the focus. From Qt 6.8 on that
// is an announcement of the toolkit's. Before, the toolkit has none, and tells of a changed
// description without its words; so the words go over the toolkit's own connection to the
// accessibility bus, as the change of a description that does not last: the object's own follows.
class QtAnnouncer final : public Announcer {
 public:
  void announce(const QString& sentence) override;

 private:
  // A screen reader hears an object only while it has the focus, or had it last.
  QPointer<QWidget> speaker_;
};

}  // namespace platform
