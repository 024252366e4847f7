#include "platform/flash/movie_view.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/flash/accessible_movie.h"
#include "platform/flash/movie_file.h"
#include "platform/flash/player.h"

namespace platform::flash {

namespace {

constexpr double kSlowest = 0.5;  // frames a second
constexpr double kFastest = 120;
constexpr QRgb kEmptyBoard = 0xFFFFFFFF;

// The places as they are, or one around all of them where there are many.
std::vector<QRectF> few(std::vector<QRectF> places) {
  constexpr std::size_t kMost = 32;
  if (places.size() <= kMost) {
    return places;
  }
  QRectF all;
  for (const QRectF& place : places) {
    all = all.united(place);
  }
  return {all};
}

}  // namespace

MovieView::MovieView(TimeSource& time, QWidget* parent, Budget::Clock clock)
    : QWidget(parent),
      clock_(std::move(clock)),
      ticker_(time.makeTicker([this] { tick(); })),
      renderer_(clock_) {
  installMovieAccessibility();
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setFocusPolicy(Qt::NoFocus);
}

MovieView::~MovieView() {
  ticker_->stop();
}

void MovieView::setMovie(const QString& path) {
  waiting_.clear();
  ticker_->stop();
  player_.reset();
  renderer_.clear();
  scene_ = {};
  path_ = path;
  cutOffTold_ = false;
  startPlayer(path);
  update();
  changed();
}

void MovieView::startPlayer(const QString& path) {
  if (path.isEmpty()) return;
  std::shared_ptr<const Movie> movie;
  try {
    movie = loadMovie(path, clock_);
  } catch (const MovieError& error) {
    qWarning("Movie %s cannot be shown: %s", qUtf8Printable(path), error.what());
    return;
  }
  const double rate = std::clamp(movie->frameRate, kSlowest, kFastest);
  player_ = std::make_unique<Player>(
      std::move(movie),
      [this](const QString& command, const QString& args) { post(command, args); }, clock_);
  ticker_->setInterval(static_cast<int>(std::lround(1000 / rate)));
  adjustTicker();
  if (const auto position = mouse_ ? stagePixel(*mouse_) : std::nullopt) {
    player_->mouseMove(*position);
  }
}

void MovieView::post(const QString& command, const QString& args) {
  waiting_.push_back({command, args});
  QMetaObject::invokeMethod(this, &MovieView::tellOne, Qt::QueuedConnection);
}

// Called once for each command, by when it may have been told already, or dropped.
void MovieView::tellOne() {
  if (!waiting_.empty()) {
    const Telling telling = std::move(waiting_.front());
    waiting_.pop_front();
    Q_EMIT fsCommand(telling.command, telling.args);
  }
}

void MovieView::tellWaiting() {
  const QPointer<MovieView> self(this);
  // What the receiver makes the movie say comes from the queue, lest the two go on for ever.
  for (std::size_t left = waiting_.size(); left > 0 && self; --left) {
    tellOne();
  }
}

void MovieView::setClipProperty(const QString& target, Property property, const QString& value) {
  if (player_ != nullptr) {
    player_->setProperty(target, property, value);
    changed();
  }
}

void MovieView::gotoFrame(int frame) {
  if (player_ != nullptr) {
    player_->gotoFrame(frame);
    adjustTicker();
    changed();
  }
}

void MovieView::play() {
  if (player_ != nullptr) {
    player_->play();
    adjustTicker();
  }
}

int MovieView::currentFrame() const {
  return player_ == nullptr ? 0 : player_->currentFrame();
}

QString MovieView::clipProperty(const QString& target, Property property) const {
  return player_ == nullptr ? QString() : player_->property(target, property);
}

QRectF MovieView::clipPlace(const QString& name) const {
  return player_ == nullptr ? QRectF() : stageToWidget().mapRect(player_->placeOf(name));
}

bool MovieView::isClickable(const QString& clip) const {
  return player_ != nullptr && player_->clickPoint(clip).has_value();
}

// The hand's own mouse is where it was, before and after.
void MovieView::clickClip(const QString& clip) {
  const auto point = player_ == nullptr ? std::nullopt : player_->clickPoint(clip);
  if (!point) return;
  player_->mouseMove(*point);
  player_->mousePress(*point);
  player_->mouseRelease(*point);
  if (const auto position = mouse_ ? stagePixel(*mouse_) : std::nullopt) {
    player_->mouseMove(*position);
  } else {
    player_->mouseLeave();
  }
  adjustTicker();
  changed();
  tellWaiting();
}

void MovieView::tick() {
  if (player_ != nullptr) {
    player_->tick();
    adjustTicker();
    changed();
  }
}

void MovieView::cutOff() {
  player_->halt();
  ticker_->stop();
  if (!std::exchange(cutOffTold_, true)) {
    qWarning("Movie %s takes too much time or memory; it is shown as far as it came",
             qUtf8Printable(path_));
  }
}

void MovieView::adjustTicker() {
  if (player_->wasCutOff()) {
    cutOff();
    return;
  }
  const bool needed = player_->canChange();
  if (needed && !ticker_->isRunning()) {
    ticker_->start();
  } else if (!needed) {
    ticker_->stop();
  }
}

void MovieView::changed() {
  if (!refreshPosted_) {
    refreshPosted_ = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
          refreshPosted_ = false;
          refresh();
          tellOfferedClips(*this);
        },
        Qt::QueuedConnection);
  }
}

void MovieView::refresh() {
  if (player_ == nullptr) {
    showHand(false);
    return;
  }
  Scene now = player_->scene();
  const QTransform toWidget = stageToWidget();
  for (const QRectF& place : few(differences(scene_, now))) {
    // A pixel more for the smoothed edge, and for lines thinner than a pixel.
    update(toWidget.mapRect(place).toAlignedRect().adjusted(-1, -1, 1, 1) & rect());
  }
  scene_ = std::move(now);
  if (!scene_.isWhole) cutOff();
  showHand(player_->showsHand());
}

void MovieView::showHand(bool hand) {
  if (hand == handShown_) {
    return;
  }
  handShown_ = hand;
  if (hand) {
    ownersCursor_ = testAttribute(Qt::WA_SetCursor) ? std::optional(cursor()) : std::nullopt;
    setCursor(Qt::PointingHandCursor);
  } else if (ownersCursor_) {
    setCursor(*ownersCursor_);
  } else {
    unsetCursor();
  }
}

QTransform MovieView::stageToWidget() const {
  const QRectF stage = player_->movie().stage;
  const double scale = std::min(width() / stage.width(), height() / stage.height());
  const QPointF middle = QRectF(rect()).center() - stage.center() * scale;
  return {scale, 0, 0, scale, middle.x(), middle.y()};
}

void MovieView::paintEvent(QPaintEvent* event) {
  refresh();
  QPainter painter(this);
  // Each part takes the whole scene through its hands, so many parts are painted as one.
  constexpr int kMostParts = 2;
  const QRegion& region = event->region();
  if (region.rectCount() > kMostParts) {
    paintRect(painter, region.boundingRect());
    return;
  }
  for (const QRect& rect : region) {
    paintRect(painter, rect);
  }
}

// The picture is made in the pixels of the device, so that it is sharp where a logical pixel is
// more than one of them, or one and a half.
void MovieView::paintRect(QPainter& painter, const QRect& rect) {
  if (player_ == nullptr) {
    painter.fillRect(rect, QColor::fromRgb(kEmptyBoard));
    return;
  }
  const QRgb background = player_->movie().background;
  painter.fillRect(rect, QColor::fromRgb(background));
  const QTransform toDevice = painter.deviceTransform();
  const QTransform stageToDevice = stageToWidget() * toDevice;
  const QRect stage = stageToDevice.mapRect(player_->movie().stage).toAlignedRect();
  const QRect part = toDevice.mapRect(QRectF(rect)).toAlignedRect() & stage;
  if (part.isEmpty()) {
    return;
  }
  QImage image(part.size(), QImage::Format_RGB32);
  if (!renderer_.paint(scene_, stageToDevice * QTransform::fromTranslate(-part.x(), -part.y()),
                       background, image)) {
    cutOff();
  }
  painter.drawImage(toDevice.inverted().mapRect(QRectF(part)), image);
}

}  // namespace platform::flash
