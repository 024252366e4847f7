#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <optional>

#include "platform/flash/interpreter.h"
#include "platform/flash/pointer.h"
#include "platform/flash/property.h"
#include "platform/flash/scene.h"
#include "platform/flash/stage.h"

namespace platform::flash {

// A running movie without a window. Time passes only by tick(); each call works off everything that
// follows from it before it returns, within bounds (limits.h). A movie whose scripts and frames
// need more in one call is cut off there: it stands still from then on and runs no script, and only
// the host moves it. It draws nothing: who wants a picture takes the scene.
class Player {
 public:
  using CommandSink = Interpreter::CommandSink;

  // Shows the first frame and runs its scripts. onCommand takes what scripts tell the host by
  // fscommand, in the middle of the call that caused it; it must not call the player.
  Player(std::shared_ptr<const Movie> movie, CommandSink onCommand,
         Budget::Clock clock = Budget::processorTime);

  [[nodiscard]] const Movie& movie() const { return stage_.movie(); }

  // One frame of time.
  void tick();
  // Lets the movie stand still, as after a call that took too much.
  void halt() { cutOff_ = true; }
  // Whether some call took too much and was cut off.
  [[nodiscard]] bool wasCutOff() const { return cutOff_; }
  // Whether a tick could change anything or run a script: something plays, or listens to frames.
  [[nodiscard]] bool canChange() const;

  // The frame of the main timeline, from 1.
  [[nodiscard]] int currentFrame() const { return stage_.root().frame + 1; }
  // Shows a frame of the main timeline, counted from 1, and stops there. Below 1 means 1, beyond
  // the end the last one.
  void gotoFrame(int frame);
  void play();
  void stop();
  // Nothing happens for a target that does not exist, a property that cannot be set, or a value
  // that is no number where one is needed.
  void setProperty(const QString& target, Property property, const QString& value);
  // Empty for what does not exist. Truth values are "1" and "0".
  [[nodiscard]] QString property(const QString& target, Property property) const;
  // What a clip or button of the main timeline covers, shown or not, in twips of the stage; empty
  // for a name that nothing has.
  [[nodiscard]] QRectF placeOf(const QString& name) const;
  // Where a click works on a clip or button of the main timeline: its middle, as a position of the
  // mouse. None where something else lies there, where the thing is hidden, or takes no click.
  [[nodiscard]] std::optional<QPointF> clickPoint(const QString& name) const;

  // The mouse; positions in pixels of the stage at its own size, from its upper left corner.
  void mouseMove(QPointF position);
  void mousePress(QPointF position);
  void mouseRelease(QPointF position);
  void mouseLeave();
  // Lets go of what is pressed, beside the stage.
  void mouseReleaseOutside();
  // Whether the pointer should be the pointing hand.
  [[nodiscard]] bool showsHand() const;

  [[nodiscard]] Scene scene() const;

 private:
  // Runs what call does as one entry: full budgets before, all scripts after.
  template <typename Call>
  void enter(Call call);
  void runScripts();
  // What look finds, within the budget of a question.
  template <typename Look>
  auto ask(Look look) const;
  [[nodiscard]] QPointF toStage(QPointF position) const;

  mutable Budget budget_;
  Stage stage_;
  Interpreter interpreter_;
  Pointer pointer_;
  bool cutOff_ = false;
};

}  // namespace platform::flash
