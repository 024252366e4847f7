#include "platform/forms/controls/caption_size.h"

#include <algorithm>

#include "platform/forms/controls/button_widget.h"

namespace platform {

namespace {

constexpr double kApart = 0.8;  // of the largest: smaller ones do not pull the others down

}  // namespace

CaptionSize::~CaptionSize() {
  for (ButtonWidget* button : buttons_) button->shareCaptionSize(nullptr);
}

void CaptionSize::add(ButtonWidget& button) {
  buttons_.push_back(&button);
  button.shareCaptionSize(this);
  changed();
}

void CaptionSize::remove(const ButtonWidget& button) {
  std::erase(buttons_, &button);
  changed();
}

void CaptionSize::changed() {
  if (!pixelSize_) return;
  pixelSize_.reset();
  for (ButtonWidget* button : buttons_) button->update();
}

int CaptionSize::pixelSize() {
  if (!pixelSize_) {
    std::vector<int> sizes;
    sizes.reserve(buttons_.size());
    for (ButtonWidget* button : buttons_) sizes.push_back(button->fittedCaption());
    std::sort(sizes.begin(), sizes.end());
    const double least = sizes.empty() ? 0 : sizes.back() * kApart;
    const auto shared = std::lower_bound(sizes.begin(), sizes.end(), least);
    pixelSize_ = shared == sizes.end() ? 0 : *shared;
  }
  return *pixelSize_;
}

}  // namespace platform
