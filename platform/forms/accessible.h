#pragma once

namespace platform {

// Tells Qt how buttons and pictures of this ground stand in the accessibility tree. Called once.
void installAccessibility();

}  // namespace platform
