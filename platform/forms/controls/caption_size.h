#pragma once

#include <optional>
#include <vector>

namespace platform {

class ButtonWidget;

// The size of letters that buttons of one kind share, so that a menu does not speak in ten voices:
// that of the caption which needs the smallest. One that needs much smaller letters than the rest
// keeps them to itself.
class CaptionSize {
 public:
  CaptionSize() = default;
  ~CaptionSize();
  CaptionSize(const CaptionSize&) = delete;
  CaptionSize& operator=(const CaptionSize&) = delete;

  void add(ButtonWidget& button);
  void remove(const ButtonWidget& button);
  // A caption, a font or a size has changed.
  void changed();
  // Pixels; at most what the smallest needs, leaving out those far below the largest.
  [[nodiscard]] int pixelSize();

 private:
  std::vector<ButtonWidget*> buttons_;
  std::optional<int> pixelSize_;
};

}  // namespace platform
