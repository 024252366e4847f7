#include "platform/forms/controls/image.h"

#include "platform/forms/controls/image_widget.h"
#include "platform/forms/ground.h"

namespace platform::inline forms {

namespace {

constexpr int kPop = 250;  // milliseconds

}  // namespace

QWidget* Image::create(QWidget* parent) {
  return new ImageWidget(
      parent, ground().pictures(),
      QString::fromUtf8(look().picture.data(), qsizetype(look().picture.size())));
}

void Image::applyLook() {
  widget()->setToolTip(toolTip());
  widget()->setAccessibleName(toolTip());
}

void Image::pop(Pop how) {
  how_ = how;
  movement_.run(ground(), kPop);
}

void Image::keepClear(double share) {
  if (auto* image = static_cast<ImageWidget*>(widget())) image->setMargin(share);
}

void Image::show(double part) {
  if (auto* image = static_cast<ImageWidget*>(widget())) image->setPop(how_, part);
}

void Image::setVisible(bool visible) {
  if (!visible) movement_.finish();
  Control::setVisible(visible);
}

}  // namespace platform::inline forms
