#include "platform/forms/controls/caption_size.h"

#include <algorithm>

namespace platform::inline forms {

namespace {

constexpr double kApart = 0.7;  // of the largest: smaller ones do not pull the others down

}  // namespace

FittedCaption::~FittedCaption() {
  if (shared_ != nullptr) shared_->remove(*this);
}

void FittedCaption::shareCaptionSize(CaptionSize* shared) {
  shared_ = shared;
  captionSizeChanged();
}

void FittedCaption::captionChanged() {
  if (shared_ != nullptr) shared_->changed();
}

int FittedCaption::sharedSize(int pixels) const {
  return shared_ == nullptr ? pixels : std::min(pixels, shared_->pixelSize());
}

CaptionSize::~CaptionSize() {
  for (FittedCaption* caption : captions_) caption->shareCaptionSize(nullptr);
}

void CaptionSize::add(FittedCaption& caption) {
  captions_.push_back(&caption);
  caption.shareCaptionSize(this);
  changed();
}

void CaptionSize::remove(const FittedCaption& caption) {
  std::erase(captions_, &caption);
  changed();
}

void CaptionSize::changed() {
  if (!pixelSize_) return;
  pixelSize_.reset();
  for (FittedCaption* caption : captions_) caption->captionSizeChanged();
}

int CaptionSize::pixelSize() {
  if (!pixelSize_) {
    std::vector<int> sizes;
    sizes.reserve(captions_.size());
    for (FittedCaption* caption : captions_) sizes.push_back(caption->fittedCaption());
    std::sort(sizes.begin(), sizes.end());
    const double least = kind_ == Kind::Pair || sizes.empty() ? 0 : sizes.back() * kApart;
    const auto shared = std::lower_bound(sizes.begin(), sizes.end(), least);
    pixelSize_ = shared == sizes.end() ? 0 : *shared;
  }
  return *pixelSize_;
}

}  // namespace platform::inline forms
