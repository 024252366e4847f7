#pragma once

#include <QStringView>
#include <optional>

#include "platform/flash/instance.h"
#include "platform/flash/property.h"

namespace platform::flash {

class Stage;

[[nodiscard]] std::optional<Property> propertyOfNumber(int number);
// "_x", "_alpha", ... in any case of letters.
[[nodiscard]] std::optional<Property> propertyOfName(QStringView name);

// Positions and sizes in pixels of the parent, scales and alpha in percent, angles in degrees
// clockwise, frames from 1. What this player has nothing to tell about is undefined.
[[nodiscard]] Value propertyOf(const Stage& stage, const Container& of, Property property);
// What cannot be set, or not to that value, stays. All but visibility and name let the timeline
// leave the instance alone from now on.
void setPropertyOf(Stage& stage, Container& of, Property property, const Value& value);

}  // namespace platform::flash
