#pragma once

#include <functional>
#include <vector>

#include "platform/flash/property.h"
#include "platform/forms/control.h"

namespace platform::inline boards {

// A movie on a form. The form drives it by the operations below and hears of it by one event, which
// runs through the form's gate like any other; what the movie shows is the movie's own business.
//
// A board lies under buttons and panels; among what is painted on the form the order of the design
// rows holds, so a frame around it comes before its row, and nothing that must be read after it.
//
// To assistive technology it is a graphic, called by its tool tip, which never pops up; what stands
// on it the form tells as its description, and the clips that the form offers are buttons on it.
class Board : public Control {
 public:
  using Control::Control;
  using Property = flash::Property;

  // The movie speaks to the form. Never from within one of the operations below.
  void onFsCommand(std::function<void(const QString& command, const QString& args)> handler) {
    command_ = std::move(handler);
  }

  // From here on the movie does not feel the mouse: a hand, or a bead that sinks, would promise
  // what the form does not do.
  void ignoreMouse();

  // Loads the movie anew, also the one that is loaded already; a missing or broken file gives an
  // empty board. Until the running handler has ended the board is not painted, so that what the
  // form hides in it is never seen.
  void setMovie(const QString& path);
  // target: the name of a clip. Alpha is a percentage, visibility "0" or "1". Nothing happens for a
  // name that no clip has.
  void tSetProperty(const QString& target, Property property, const QString& value);
  // A frame of the main timeline, from 1; the movie stops there.
  void gotoFrame(int frame);
  void play();

  // What stands on the board, in words.
  void setDescription(const QString& words);

  // A clip of the movie that assistive technology may press, and what it is called.
  struct Offered {
    QString clip;
    QString name;
  };
  // Offers these in the place of those offered before, in their order, whatever movie is loaded. A
  // press is what a click in the clip's middle is, and obeys the same rules.
  void offerClips(const std::vector<Offered>& clips);

  void setVisible(bool visible) override;
  void formGone() override;
  [[nodiscard]] int layer() const override { return 0; }

 protected:
  [[nodiscard]] QWidget* create(QWidget* parent) override;
  void applyLook() override;

 private:
  void press(const QString& clip);

  std::function<void(const QString&, const QString&)> command_;
  int loading_ = 0;  // how many loads the handlers that did them have not ended after yet
};

}  // namespace platform::inline boards
