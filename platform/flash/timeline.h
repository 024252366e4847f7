#pragma once

#include <QString>
#include <optional>

#include "platform/flash/instance.h"

namespace platform::flash {

class Stage;

// How clips move along their timelines. Frames count from 0 here.

// Does what the tags of the clip's present frame say, in their order: the display list changes at
// once, scripts wait their turn.
void workOffFrame(Stage& stage, Clip& clip);
// One tick: a clip that plays goes one frame on, after the last one to the first.
void advance(Stage& stage, Clip& clip);
// Shows a frame from anywhere. What the same command has placed in both frames stays, with its own
// playhead and properties. Only the target's own scripts run. Going to the frame that is shown
// already runs nothing; beyond the last frame the last one is shown, without its scripts. play says
// whether the clip plays on from there, also where it does not move.
void gotoFrame(Stage& stage, Clip& clip, int frame, bool play);
// The frame of a label, in any case of letters up to version 6.
[[nodiscard]] std::optional<int> frameOfLabel(const Stage& stage, const Clip& clip,
                                              const QString& label);

}  // namespace platform::flash
