#pragma once

namespace platform {

// The program's own look on every desktop: one style, fixed colours, so that a dark or
// high-contrast desktop theme does not change what the forms fix. To be called once, before the
// first window.
void applyAppearance();

}  // namespace platform
