#include "platform/boards/board.h"

#include "platform/flash/movie_view.h"
#include "platform/forms/gate.h"
#include "platform/forms/ground.h"

namespace platform::inline boards {

using flash::MovieView;

namespace {

MovieView& viewOf(QWidget* widget) {
  return *static_cast<MovieView*>(widget);
}

}  // namespace

QWidget* Board::create(QWidget* parent) {
  auto* view = new MovieView(ground().time(), parent);
  QObject::connect(view, &MovieView::fsCommand, view,
                   [this](const QString& command, const QString& args) {
                     if (command_) raiseEvent([&] { command_(command, args); });
                   });
  // As an event of its own, like a click.
  QObject::connect(
      view, &MovieView::clipPressed, view, [this](const QString& clip) { press(clip); },
      Qt::QueuedConnection);
  return view;
}

void Board::press(const QString& clip) {
  const bool live = widget()->isVisible() && widget()->isEnabled();
  if (live && mayAct()) viewOf(widget()).clickClip(clip);
}

void Board::offerClips(const std::vector<Offered>& clips) {
  std::vector<MovieView::OfferedClip> offered;
  offered.reserve(clips.size());
  for (const Offered& clip : clips) offered.push_back({clip.clip, clip.name});
  if (widget() != nullptr) viewOf(widget()).offerClips(std::move(offered));
}

void Board::ignoreMouse() {
  if (widget() != nullptr) viewOf(widget()).ignoreMouse();
}

void Board::applyLook() {
  if (widget()->accessibleName() != toolTip()) widget()->setAccessibleName(toolTip());
}

void Board::setMovie(const QString& path) {
  if (widget() == nullptr) return;
  ++loading_;
  widget()->hide();
  viewOf(widget()).setMovie(path);
  // The control lives as long as its widget.
  ground().gate().afterHandler([this, view = QPointer<QWidget>(widget())] {
    if (view && --loading_ == 0) view->setVisible(isVisible());
  });
}

void Board::setVisible(bool visible) {
  Control::setVisible(visible);
  if (loading_ > 0) widget()->hide();
}

void Board::tSetProperty(const QString& target, Property property, const QString& value) {
  if (widget() != nullptr) viewOf(widget()).setClipProperty(target, property, value);
}

void Board::gotoFrame(int frame) {
  if (widget() != nullptr) viewOf(widget()).gotoFrame(frame);
}

void Board::play() {
  if (widget() != nullptr) viewOf(widget()).play();
}

void Board::setDescription(const QString& words) {
  if (widget() != nullptr && widget()->accessibleDescription() != words) {
    widget()->setAccessibleDescription(words);
  }
}

void Board::formGone() {
  if (widget() != nullptr) viewOf(widget()).setMovie({});
}

}  // namespace platform::inline boards
