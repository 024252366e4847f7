#pragma once

#include <QString>
#include <QStringView>

#include "platform/flash/instance.h"

namespace platform::flash {

class Stage;

// How scripts and the host name clips: "a/b", "/a", "../a", "a.b", "_root.a", "_parent", "this".

// What the path leads to from there; the empty path is from itself. Null when a step leads nowhere.
[[nodiscard]] Container* resolveTarget(const Stage& stage, Container* from, QStringView path);
// The container's child of that name, the one furthest back where there are more.
[[nodiscard]] Container* childNamed(const Stage& stage, const Container& parent, QStringView name);
// From the root, as "/a/b"; the root is "/". Cut off where it becomes too long for a text.
[[nodiscard]] QString slashPath(const Stage& stage, const Instance& instance);
// From the root, as "_level0.a.b".
[[nodiscard]] QString dotPath(const Stage& stage, const Instance& instance);

}  // namespace platform::flash
