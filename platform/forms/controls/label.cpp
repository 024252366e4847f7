#include "platform/forms/controls/label.h"

#include <QLabel>
#include <QPainter>
#include <algorithm>

#include "platform/forms/fonts.h"

namespace platform {

namespace {

// A QLabel for what the toolkit and assistive technology know of it, painted by our own rules.
class LabelWidget final : public QLabel {
 public:
  LabelWidget(QWidget* parent, Align align, bool border, bool mnemonic)
      : QLabel(parent), align_(align), border_(border), mnemonic_(mnemonic) {
    setTextFormat(Qt::PlainText);
  }

  void setColours(QColor ink, std::optional<QColor> ground, QColor behind) {
    ink_ = ink;
    ground_ = ground;
    behind_ = behind;
    setAttribute(Qt::WA_OpaquePaintEvent, ground.has_value());
    update();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    if (ground_) painter.fillRect(rect(), *ground_);
    if (border_ && width() > 1) {
      painter.setPen(Qt::black);
      painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    const int margin = border_ ? 2 : 0;
    // Words at the side of a coloured ground keep clear of its edge.
    const int side = ground_ && align_ != Align::Centre ? margin + font().pixelSize() / 3 : margin;
    const QRect room = rect().adjusted(side, margin, -side, -margin);
    if (laidText_ != text() || laidFont_ != font() || laidRoom_ != room.size()) {
      laidText_ = text();
      laidFont_ = font();
      laidRoom_ = room.size();
      block_.set(laidText_, laidFont_, laidRoom_, align_, mnemonic_);
    }
    block_.paint(painter, room, ink_, ground_.value_or(behind_));
  }

 private:
  Align align_;
  bool border_;
  bool mnemonic_;
  QColor ink_ = Qt::black;
  std::optional<QColor> ground_;
  QColor behind_ = Qt::white;
  TextBlock block_;
  QString laidText_;
  QFont laidFont_;
  QSize laidRoom_;
};

}  // namespace

QWidget* Label::create(QWidget* parent) {
  return new LabelWidget(parent, look().align, look().border, look().mnemonic);
}

void Label::applyLook() {
  auto* label = static_cast<LabelWidget*>(widget());
  label->setFont(fontOf(fontSpec(), fontPixels()));
  label->setColours(toColor(foreColor()),
                    look().back ? std::optional(toColor(backColor())) : std::nullopt,
                    toColor(home().design().back));
  label->setToolTip(toolTip());
  const QString words = (look().mnemonic ? withoutMnemonic(caption()) : caption()).trimmed();
  const QString spoken = toolTip().isEmpty() || words.isEmpty()
                             ? toolTip() + words
                             : QStringLiteral("%1: %2").arg(toolTip(), words);
  if (label->accessibleName() != spoken) label->setAccessibleName(spoken);
}

QString Label::caption() const {
  const auto* label = static_cast<LabelWidget*>(widget());
  return label == nullptr ? QString() : label->text();
}

void Label::setCaption(const QString& caption) {
  auto* label = static_cast<LabelWidget*>(widget());
  if (label == nullptr || label->text() == caption) return;
  label->setText(caption);
  applyLook();
}

QChar Label::accessKey() const {
  return look().mnemonic ? accessKeyOf(caption()) : QChar();
}

void Label::access() {
  const std::vector<Control*>& all = home().controls();
  auto next = std::find(all.begin(), all.end(), this);
  next = std::find_if(next, all.end(), [](const Control* control) {
    return control->widget() != nullptr && control->widget()->focusPolicy() != Qt::NoFocus;
  });
  if (next != all.end()) (*next)->setFocus();
}

}  // namespace platform
