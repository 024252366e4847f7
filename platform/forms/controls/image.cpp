#include "platform/forms/controls/image.h"

#include "platform/forms/controls/image_widget.h"
#include "platform/forms/ground.h"

namespace platform {

QWidget* Image::create(QWidget* parent) {
  return new ImageWidget(
      parent, ground().pictures(),
      QString::fromUtf8(look().picture.data(), qsizetype(look().picture.size())));
}

void Image::applyLook() {
  widget()->setToolTip(toolTip());
  widget()->setAccessibleName(toolTip());
}

}  // namespace platform
