#pragma once

class QWidget;

namespace platform::inline forms {

// Tells Qt how buttons and pictures of this ground stand in the accessibility tree. Called once.
void installAccessibility();

// What has the focus for whoever listens: the widget with the keyboard, or what a key panel with
// the keyboard points at; null without either.
[[nodiscard]] QWidget* focusSpoken();

// While one lives, a button that is enabled or disabled tells it only when the focus comes to it:
// for changes of many at once, which would drown what is to be heard. Whoever asks a button for its
// state gets it as it is.
class StatesToldLater {
 public:
  StatesToldLater();
  ~StatesToldLater();
  StatesToldLater(const StatesToldLater&) = delete;
  StatesToldLater& operator=(const StatesToldLater&) = delete;

  [[nodiscard]] static bool holds();
};

}  // namespace platform::inline forms
