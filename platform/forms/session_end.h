#pragma once

#include <QObject>

namespace platform::inline forms {

class Runtime;

// Ends the program with the desktop's session. Of itself the toolkit would ask every window to
// close, and an open box or dialog, which wants its own answer, would refuse the session's end.
// Nothing has to be saved.
class SessionEnd final : public QObject {
  Q_OBJECT

 public:
  // From here on, for the life of this object.
  explicit SessionEnd(Runtime& runtime);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Runtime& runtime_;
};

}  // namespace platform::inline forms
