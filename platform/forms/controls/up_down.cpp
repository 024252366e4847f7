#include "platform/forms/controls/up_down.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <algorithm>

#include "platform/base/numbers.h"
#include "platform/forms/controls/text_box.h"
#include "platform/forms/controls/up_down_widget.h"
#include "platform/forms/ground.h"

namespace platform::inline forms {

// Takes the Up and Down keys from the box, which has no use for them.
class UpDown::BoxKeys final : public QObject {
 public:
  BoxKeys(UpDown& spinner, QWidget* box) : QObject(box), spinner_(spinner) {
    box->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Up && key != Qt::Key_Down) return false;
    spinner_.step(key == Qt::Key_Up ? 1 : -1);
    return true;
  }

 private:
  UpDown& spinner_;
};

UpDown::~UpDown() = default;

QWidget* UpDown::create(QWidget* parent) {
  return new UpDownWidget(
      parent, ground().time(),
      {.step = [this](int by) { step(by); }, .moveTo = [this](int value) { enter(value); }});
}

void UpDown::bind(TextBox& box, int lowest, int highest) {
  box_ = &box;
  lowest_ = lowest;
  highest_ = highest;
  static_cast<UpDownWidget*>(widget())->setLimits(lowest, highest);
  widget()->setAccessibleName(box.toolTip());
  auto* line = static_cast<QLineEdit*>(box.widget());
  QObject::connect(line, &QLineEdit::textChanged, widget(),
                   [this](const QString& text) { tell(text); });
  tell(line->text());
  // On-screen keyboards show what such a number is made of.
  line->setInputMethodHints(lowest < 0 ? Qt::ImhFormattedNumbersOnly : Qt::ImhDigitsOnly);
  new BoxKeys(*this, line);
}

void UpDown::tell(const QString& text) {
  const double value = std::clamp<double>(leadingNumber(text), lowest_, highest_);
  static_cast<UpDownWidget*>(widget())->show(int(value));
}

// Whatever comes of it, the spinner says what the box has.
void UpDown::enter(int value) {
  if (mayAct()) moveTo(value);
  if (box_ != nullptr) tell(box_->text());
}

void UpDown::step(int by) {
  if (box_ != nullptr) moveTo(leadingNumber(box_->text()) + by);
}

void UpDown::moveTo(double value) {
  if (box_ == nullptr || !box_->isEnabled()) return;
  const int next = int(std::clamp<double>(value, lowest_, highest_));
  if (box_->text() == plain(next)) return;
  raiseEvent([this, next] {
    box_->setText(plain(next));
    if (changed_) changed_();
  });
}

void UpDown::applyLook() {
  widget()->setToolTip(toolTip());
}

}  // namespace platform::inline forms
