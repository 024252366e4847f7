#include "platform/forms/qt_message_boxes.h"

#include <QCloseEvent>
#include <QMessageBox>
#include <QPushButton>

#include "platform/forms/fonts.h"

namespace platform::inline forms {

namespace {

constexpr double kTextPixels = 17;
// Of a button, where the writing has that size.
constexpr QSize kButtonSize{110, 60};

// Takes no answer but a button's, where the box asks for one.
class Box final : public QMessageBox {
 public:
  Box(QWidget* parent, bool mustAnswer) : QMessageBox(parent), mustAnswer_(mustAnswer) {}

  void reject() override {
    if (!mustAnswer_) QMessageBox::reject();
  }

 protected:
  void closeEvent(QCloseEvent* event) override {
    if (mustAnswer_) {
      event->ignore();
    } else {
      QMessageBox::closeEvent(event);
    }
  }

  void keyPressEvent(QKeyEvent* event) override {
    if (mustAnswer_ && event->key() == Qt::Key_Escape) return;
    QMessageBox::keyPressEvent(event);
  }

 private:
  bool mustAnswer_;
};

QMessageBox::Icon iconOf(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::Critical:
      return QMessageBox::Critical;
    case BoxIcon::Information:
      return QMessageBox::Information;
    case BoxIcon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

QPushButton* addButton(Box& box, const QString& words, QMessageBox::ButtonRole role) {
  QPushButton* button = box.addButton(words, role);
  button->setMinimumSize(kButtonSize * (box.font().pixelSize() / kTextPixels));
  return button;
}

}  // namespace

BoxAnswer QtMessageBoxes::show(const MessageBox& message) {
  QWidget* window = parent_();
  Box box(window, message.buttons == BoxButtons::YesNo);
  box.setWindowTitle(message.title);
  box.setTextFormat(Qt::PlainText);
  box.setText(message.text);
  // The drawing goes by the letters.
  box.setFont(fontOf({}, pixelsOver(window, kTextPixels)));
  box.setIcon(iconOf(message.icon));
  const ButtonWords words = words_();
  if (message.buttons == BoxButtons::Ok) {
    QPushButton* ok = addButton(box, words.ok, QMessageBox::AcceptRole);
    box.setDefaultButton(ok);
    box.setEscapeButton(ok);
    box.exec();
    return BoxAnswer::Ok;
  }
  QPushButton* yes = addButton(box, words.yes, QMessageBox::YesRole);
  addButton(box, words.no, QMessageBox::NoRole);
  box.setDefaultButton(yes);
  box.exec();
  return box.clickedButton() == yes ? BoxAnswer::Yes : BoxAnswer::No;
}

}  // namespace platform::inline forms
