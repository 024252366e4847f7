#pragma once

#include <span>

#include "platform/flash/interpreter.h"

namespace platform::flash {

// The known actions by family, one file each.
[[nodiscard]] std::span<const ActionRow> flowActions();        // actions_flow.cpp
[[nodiscard]] std::span<const ActionRow> arithmeticActions();  // actions_arithmetic.cpp
[[nodiscard]] std::span<const ActionRow> variableActions();    // actions_variables.cpp
[[nodiscard]] std::span<const ActionRow> timelineActions();    // actions_timeline.cpp

// The methods of every clip: gotoAndStop and its kind (actions_timeline.cpp). False when the name
// is none of them.
bool callTimelineMethod(ScriptRun& run, Clip& clip, const QString& name,
                        const std::vector<Value>& arguments);

}  // namespace platform::flash
