#include "platform/forms/bridge_messages.h"

#include <QLatin1String>
#include <QString>
#include <QtGlobal>

namespace platform::inline forms {

namespace {

QtMessageHandler others = nullptr;

// The toolkit shows each key to the screen reader first. The first line tells that no answer came,
// the second that one came for a key which had been let through by then.
bool isOfLostReader(QtMsgType type, const QString& message) {
  if (type != QtWarningMsg) return false;
  return message.startsWith(QLatin1String("QSpiApplication::keyEventError ")) ||
         message == QLatin1String(
                        "QSpiApplication::notifyKeyboardListenerCallback with no queued key "
                        "called");
}

void hear(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (!isOfLostReader(type, message)) others(type, context, message);
}

}  // namespace

void silenceLostReaders() {
  const QtMessageHandler before = qInstallMessageHandler(hear);
  if (before != hear) others = before;
}

}  // namespace platform::inline forms
