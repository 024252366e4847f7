#pragma once

#include <QByteArray>
#include <optional>

#include "platform/forms/drawing.h"

namespace somme {

// A picture (the bytes of an SVG file) as the program takes it: drawn once, with every element that
// has an id as a part of that name. Such elements are in no group that is moved or turned. Nothing
// where the picture cannot be read.
[[nodiscard]] std::optional<platform::Drawing> Registra(const QByteArray& svg);

}  // namespace somme
