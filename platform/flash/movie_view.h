#pragma once

#include <QCursor>
#include <QString>
#include <QTransform>
#include <QWidget>
#include <deque>
#include <memory>
#include <optional>
#include <vector>

#include "platform/base/time_source.h"
#include "platform/flash/property.h"
#include "platform/flash/renderer.h"
#include "platform/flash/scene.h"

namespace platform::flash {

class Player;

// A control that plays a movie: as large as fits in while it keeps its shape, in the middle, the
// rest in the movie's background colour; smooth and sharp at any size. It speaks with its owner by
// the operations below and by signals, and takes the mouse but never the focus. To assistive
// technology it is a graphic; its name and description are the owner's to set, and which of its
// clips are buttons.
class MovieView final : public QWidget {
  Q_OBJECT

 public:
  // time: paces the frames; it must outlive the view. clock: what ends the steps of a movie that
  // take too long.
  explicit MovieView(TimeSource& time, QWidget* parent = nullptr,
                     Budget::Clock clock = Budget::processorTime);
  ~MovieView() override;

  // Loads the movie anew, also the one that is loaded already, and starts it. A file that is
  // missing or broken gives an empty or partial board; nothing fails. One that takes too much to
  // load, play or draw is shown as far as it came, and one line on the error stream says so. An
  // empty path unloads the movie. Commands of the old movie that have not been delivered yet are
  // dropped.
  void setMovie(const QString& path);
  // target: the name of a clip, or a path from the root as "a/b"; empty for the root. Places are
  // pixels, scales and alpha percent, rotation degrees, visibility "0" or "1". Nothing happens for
  // a name that no clip has, or a value that is no number.
  // (QObject::setProperty is something else.)
  void setClipProperty(const QString& target, Property property, const QString& value);
  // Shows a frame of the main timeline, counted from 1, runs its scripts, and stops there.
  void gotoFrame(int frame);
  // Lets the main timeline run on.
  void play();

  // From here on no movie feels the mouse: nothing on it looks as if it could be pressed.
  void ignoreMouse() { ignoresMouse_ = true; }

  // The frame of the main timeline, from 1; 0 without a movie.
  [[nodiscard]] int currentFrame() const;
  // What setClipProperty sets, as it stands now; empty for what does not exist.
  [[nodiscard]] QString clipProperty(const QString& target, Property property) const;
  // Where a clip of the main timeline stands, shown or not, in pixels of this widget; empty for a
  // name that no clip has.
  [[nodiscard]] QRectF clipPlace(const QString& name) const;

  // A clip of the main timeline as a button of assistive technology's.
  struct OfferedClip {
    QString clip;
    QString name;  // what it is called
  };
  // What assistive technology may press, in the order in which it finds it. Each is there while a
  // click in its middle would reach it.
  void offerClips(std::vector<OfferedClip> clips) { offered_ = std::move(clips); }
  [[nodiscard]] const std::vector<OfferedClip>& offeredClips() const { return offered_; }
  // Whether a click in the middle of a clip works on that clip.
  [[nodiscard]] bool isClickable(const QString& clip) const;
  // Clicks there, if so, wherever the mouse is.
  void clickClip(const QString& clip);

 Q_SIGNALS:
  // Assistive technology presses a clip that is offered. Whether that is a click is the owner's to
  // say.
  void clipPressed(const QString& clip);

  // The movie speaks to its owner: what a press or a release makes it say at the end of that event,
  // as a button clicks, so that the next event finds what the receiver has changed; everything else
  // from the event queue. Never from within one of the operations above, so a receiver may call
  // them, wait, or destroy the view.
  void fsCommand(const QString& command, const QString& args);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  // From twips of the stage to this widget's own pixels.
  [[nodiscard]] QTransform stageToWidget() const;
  // What the movie feels the mouse at; none beside the stage.
  [[nodiscard]] std::optional<QPointF> stagePixel(QPointF position) const;
  void startPlayer(const QString& path);
  void post(const QString& command, const QString& args);
  void tellOne();
  // Tells what waits, in its order. To be called last: the view may be gone afterwards.
  void tellWaiting();
  void tick();
  // The movie may have changed: looks at it when the events that are waiting have been handled.
  void changed();
  void adjustTicker();
  void refresh();
  void showHand(bool hand);
  void paintRect(QPainter& painter, const QRect& rect);
  // The movie took too much: it stands still, and that is told once.
  void cutOff();

  Budget::Clock clock_;
  std::unique_ptr<Ticker> ticker_;
  QString path_;
  bool cutOffTold_ = false;
  std::unique_ptr<Player> player_;  // null: no movie
  Renderer renderer_;
  Scene scene_;  // what the widget shows, or has asked to be repainted to
  struct Telling {
    QString command, args;
  };
  std::deque<Telling> waiting_;  // what the movie has said and its owner has not heard yet
  bool refreshPosted_ = false;
  std::vector<OfferedClip> offered_;
  std::optional<QPointF> mouse_;
  bool ignoresMouse_ = false;
  // The owner's cursor, while the hand is shown; without a value inside: none of its own.
  bool handShown_ = false;
  std::optional<QCursor> ownersCursor_;
};

}  // namespace platform::flash
