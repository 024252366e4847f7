#include "platform/forms/controls/combo_box.h"

#include <QComboBox>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include "platform/forms/fonts.h"

namespace platform::inline forms {

namespace {

class ComboWidget final : public QComboBox {
 public:
  ComboWidget(QWidget* parent, std::function<bool()> mayAct)
      : QComboBox(parent), mayAct_(std::move(mayAct)) {}

  void showPopup() override {
    if (mayAct_()) QComboBox::showPopup();
  }

 private:
  std::function<bool()> mayAct_;
};

QComboBox* boxOf(QWidget* widget) {
  return static_cast<QComboBox*>(widget);
}

}  // namespace

QWidget* ComboBox::create(QWidget* parent) {
  auto* box = new ComboWidget(parent, [this] { return mayAct(); });
  QObject::connect(box, &QComboBox::currentIndexChanged, box, [this](int index) {
    // Assistive technology chooses past all events.
    if (index != chosen_ && !choosing_ && !mayAct()) {
      const QSignalBlocker quiet(widget());
      boxOf(widget())->setCurrentIndex(chosen_);
      return;
    }
    chosen_ = index;
    if (index >= 0) raiseEvent(clicked_);
  });
  return box;
}

void ComboBox::applyLook() {
  widget()->setFont(fontOf(fontSpec(), fontPixels()));
  widget()->setToolTip(toolTip());
  if (widget()->accessibleName() != toolTip()) widget()->setAccessibleName(toolTip());
}

void ComboBox::setItems(const QStringList& items) {
  // Qt chooses the first line by itself.
  const QSignalBlocker quiet(widget());
  boxOf(widget())->clear();
  boxOf(widget())->addItems(items);
  boxOf(widget())->setCurrentIndex(-1);
  chosen_ = -1;
}

QStringList ComboBox::items() const {
  QStringList result;
  for (int i = 0; i < boxOf(widget())->count(); ++i) result.append(boxOf(widget())->itemText(i));
  return result;
}

QString ComboBox::text() const {
  return boxOf(widget())->currentText();
}

int ComboBox::listIndex() const {
  return boxOf(widget())->currentIndex();
}

void ComboBox::setListIndex(int index) {
  const QScopedValueRollback byProgram(choosing_, true);
  boxOf(widget())->setCurrentIndex(index);
}

void ComboBox::choose(const QString& text) {
  const int index = boxOf(widget())->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
  if (index >= 0) setListIndex(index);
}

}  // namespace platform::inline forms
