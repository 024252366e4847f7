#include "platform/forms/modal_window.h"

#include <QResizeEvent>
#include <algorithm>

#include "platform/forms/loaded_form.h"

namespace platform::inline forms {

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

// The growth goes by the tallest that the form has been, so that one that changes its height keeps
// its scale.
void ModalWindow::fit() {
  const FormDesign& design = form_.design();
  const QSizeF plain(Twips(design.width) / kPixel, Twips(design.height) / kPixel);
  const QSizeF room = QSizeF(over_.size()) * kShare;
  if (growth_ <= 0) {
    const double tallest = Twips(form_.tallestDesign()) / kPixel;
    growth_ = std::max(1.0, std::min(room.width() / plain.width(), room.height() / tallest));
  }
  setFixedSize((plain * growth_).toSize());
  if (isVisible()) stayOver();
}

// One that has become taller goes up rather than beyond the lower edge of the main window.
void ModalWindow::stayOver() {
  const int lowest = over_.frameGeometry().bottom() + 1 - frameGeometry().height();
  if (y() > lowest) move(x(), std::max(over_.frameGeometry().top(), lowest));
}

void ModalWindow::reject() {
  if (form_.isUnloaded()) {
    QDialog::reject();
  } else if (!form_.ground().isDeaf()) {
    // While a device is waited for the title bar's button does nothing, like those of the form.
    LoadedForm(form_).runClose();
  }
}

void ModalWindow::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  form_.page()->setGeometry(rect());
}

}  // namespace platform::inline forms
