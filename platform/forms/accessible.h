#pragma once

class QWidget;

namespace platform {

// Tells Qt how buttons and pictures of this ground stand in the accessibility tree. Called once.
void installAccessibility();

// What has the focus for whoever listens: the widget with the keyboard, or what a key panel with
// the keyboard points at; null without either.
[[nodiscard]] QWidget* focusSpoken();

}  // namespace platform
