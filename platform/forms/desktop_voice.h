#pragma once

#include <QString>
#include <QWidget>

namespace platform::inline forms {

// Has the desktop's screen reader speak a sentence once, on behalf of a widget that is on the
// screen, in the way that the system at hand has for it. Nothing happens where nobody listens.
void tellDesktop(QWidget& speaker, const QString& sentence);

}  // namespace platform::inline forms
