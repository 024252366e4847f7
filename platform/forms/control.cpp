#include "platform/forms/control.h"

#include <QWidget>

#include "platform/forms/ground.h"

namespace platform::inline forms {

namespace {

constexpr int kOwnPointer = 99;

}  // namespace

Control::Control(ControlHost& host) : host_(host) {
  host.declare(*this);
}

Control::~Control() {
  delete widget_.data();
}

void Control::build(QWidget* parent, const QString& name, int index, const TwipsRect& place,
                    const Look& look) {
  name_ = index < 0 ? name : QStringLiteral("%1(%2)").arg(name).arg(index);
  index_ = index;
  place_ = place;
  look_ = look;
  points_ = look.font.size;
  fore_ = look.fore.value_or(kBlack);
  back_ = look.back.value_or(kWhite);
  visible_ = !look.hidden;
  enabled_ = !look.disabled;
  widget_ = create(parent);
  built_ = true;
  if (widget_) {
    widget_->setObjectName(name_);
    if (!enabled_) widget_->setEnabled(false);
    if (!visible_) widget_->hide();
    setMousePointer(kOwnPointer);
  }
  setToolTip(QString::fromUtf8(look.toolTip.data(), qsizetype(look.toolTip.size())));
  if (hasCaption()) {
    setCaption(QString::fromUtf8(look.caption.data(), qsizetype(look.caption.size())));
  }
}

QWidget* Control::surroundings() const {
  return widget_ ? widget_->parentWidget() : nullptr;
}

void buildCopy(Control& copy, const Control& original, int index) {
  Look look = original.look();
  look.hidden = true;
  look.shortcut = {};
  look.fore = original.foreColor();
  look.back = look.back ? std::optional(original.backColor()) : std::nullopt;
  const QString& name = original.name();
  copy.build(original.surroundings(), name.left(name.indexOf(u'(')), index, original.designPlace(),
             look);
  copy.setCaption(original.caption());
  copy.setToolTip(original.toolTip());
  copy.setTag(original.tag());
  copy.setEnabled(original.isEnabled());
  copy.setFontSize(original.fontSize());
  copy.setMousePointer(original.mousePointer());
  original.home().adopt(copy);
}

void takeOff(Control& control) {
  control.home().release(control);
}

void Control::applyScale() {
  if (!widget_) return;
  Control::placeChanged();
  applyLook();
}

void Control::setPlace(double left, double top, double width, double height) {
  place_ = {left / scale().x, top / scale().y, width / scale().x, height / scale().y};
  if (widget_) placeChanged();
}

void Control::placeChanged() {
  widget_->setGeometry(scale().pixels(place_));
}

std::vector<QWidget*> Control::tabStops() const {
  if (!widget_ || widget_->focusPolicy() == Qt::NoFocus) return {};
  return {widget_};
}

void Control::setLeft(double twips) {
  setPlace(twips, top(), width(), height());
}
void Control::setTop(double twips) {
  setPlace(left(), twips, width(), height());
}
void Control::setWidth(double twips) {
  setPlace(left(), top(), twips, height());
}
void Control::setHeight(double twips) {
  setPlace(left(), top(), width(), twips);
}

void Control::setVisible(bool visible) {
  visible_ = visible;
  if (!widget_) return;
  widget_->setVisible(visible);
  if (!visible) home().dropHiddenFocus();
}

void Control::setEnabled(bool enabled) {
  enabled_ = enabled;
  if (widget_) widget_->setEnabled(enabled);
}

void Control::setCaption(const QString& /*caption*/) {}

void Control::setToolTip(const QString& toolTip) {
  toolTip_ = toolTip;
  if (widget_) applyLook();
}

void Control::setBackColor(Rgb color) {
  if (back_ == color) return;
  back_ = color;
  if (widget_) applyLook();
}

void Control::setForeColor(Rgb color) {
  if (fore_ == color) return;
  fore_ = color;
  if (widget_) applyLook();
}

double Control::fontSize() const {
  return points_ * scale().font();
}

void Control::setFontSize(double points) {
  points_ = points / scale().font();
  if (widget_) applyLook();
}

FontSpec Control::fontSpec() const {
  return {look_.font.face, points_, look_.font.bold};
}

void Control::setMousePointer(int pointer) {
  pointer_ = pointer;
  if (!widget_) return;
  if (pointer == kOwnPointer) {
    widget_->setCursor(ground().pointer());
  } else {
    widget_->setCursor(Qt::ArrowCursor);
  }
}

void Control::setFocus() {
  if (!widget_ || !enabled_ || !visible_) return;
  if (home().isCovered(*this)) {
    home().setFocusBelow(*this);
    return;
  }
  if (widget_->isVisible()) widget_->setFocus(Qt::OtherFocusReason);
}

bool Control::hasFocus() const {
  return widget_ && widget_->hasFocus();
}

void Control::bringToFront() {
  if (widget_) widget_->raise();
}

bool Control::mayAct() const {
  return widget_ && !home().isCovered(*this) && ground().mayAct(*widget_);
}

void Control::raiseEvent(const std::function<void()>& handler) const {
  if (handler) home().raise(handler);
}

}  // namespace platform::inline forms
