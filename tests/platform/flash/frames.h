#pragma once

#include <QByteArray>

#include "hand_made.h"

// Timelines whose frames tell their names as they run.
namespace frames {

using namespace hand_made;

// A frame that tells its number and does more.
inline QByteArray frame(const char* name, const QByteArray& actions = {}) {
  return doAction(tell(name) + actions) + showFrame();
}

inline QByteArray gotoFrame(unsigned frameFrom0) {
  return action(0x81, u16(frameFrom0));
}

// Four frames that tell "1" to "4"; the first one does more, too.
inline QByteArray fourFrames(const QByteArray& first) {
  return frame("1", first) + frame("2") + frame("3") + frame("4");
}

}  // namespace frames
