#pragma once

#include <QKeyEvent>
#include <QWidget>
#include <optional>

// Where arrow keys, Home and End lead from a button to others.
namespace platform::inline forms {

// The way from one button to another, in pixels: in the direction of a key and across it.
struct Way {
  double along = 0;
  double across = 0;
};

// forward: to the right, or down.
struct Direction {
  bool horizontal = true;
  bool forward = true;
  bool toTheEnd = false;
};

[[nodiscard]] std::optional<Direction> directionOf(int key);
// Nothing for a key that is pressed together with others.
[[nodiscard]] std::optional<Direction> directionOf(const QKeyEvent& event);

// Nothing for a button in another row, or column: its middle lies beside the one it is seen from.
[[nodiscard]] std::optional<Way> wayBetween(const QWidget& from, const QWidget& to,
                                            const Direction& direction);

[[nodiscard]] bool isBetter(const Way& way, const Way& than, const Direction& direction);

}  // namespace platform::inline forms
