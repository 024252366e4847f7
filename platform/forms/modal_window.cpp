#include "platform/forms/modal_window.h"

#include <QResizeEvent>
#include <algorithm>

#include "platform/forms/loaded_form.h"

namespace platform {

namespace {

// How much of the main window such a window may take.
constexpr double kShare = 0.9;

}  // namespace

ModalWindow::ModalWindow(QWidget& over, Form& form) : QDialog(&over), over_(over), form_(form) {
  setModal(true);
  takeTitle();
  setWindowIcon(form.icon());
  form.page()->setParent(this);
  form.page()->show();
}

void ModalWindow::takeTitle() {
  setWindowTitle(form_.caption());
  setAccessibleName(form_.caption());
}

// The growth goes by the design's own width, so that a form that changes its height keeps its
// scale.
void ModalWindow::fit() {
  const FormDesign& design = form_.design();
  const QSizeF plain(design.width / kTwipsPerPixel, design.height / kTwipsPerPixel);
  const QSizeF room = QSizeF(over_.size()) * kShare;
  if (growth_ <= 0) {
    growth_ = std::max(1.0, std::min(room.width() / plain.width(), room.height() / plain.height()));
  }
  setFixedSize((plain * growth_).toSize());
}

void ModalWindow::reject() {
  if (form_.isUnloaded()) {
    QDialog::reject();
  } else {
    LoadedForm(form_).runClose();
  }
}

void ModalWindow::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  form_.page()->setGeometry(rect());
}

}  // namespace platform
