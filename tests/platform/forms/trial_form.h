#pragma once

#include <QStringList>
#include <functional>

#include "platform/forms/controls/button.h"
#include "platform/forms/controls/image.h"
#include "platform/forms/controls/label.h"
#include "platform/forms/controls/line.h"
#include "platform/forms/controls/menu_item.h"
#include "platform/forms/controls/picture_box.h"
#include "platform/forms/controls/rich_text_box.h"
#include "platform/forms/controls/timer.h"
#include "platform/forms/form.h"
#include "platform/forms/proportional_layout.h"

// A form of the tests' own, with a little of everything.
namespace trial {

// Writes the events of its life into a log, as "One.Load", and does what a test hands in.
class TrialForm final : public platform::Form {
 public:
  TrialForm(platform::Ground& ground, const platform::FormDesign& design, QStringList& log);

  platform::Label Words{*this};
  platform::Line Stripe{*this};
  platform::ControlArray<platform::Label> Square{*this};
  platform::Image Sign{*this};
  platform::Button First{*this};
  platform::Button Second{*this};
  platform::Button Third{*this};
  platform::ControlArray<platform::Button> Number{*this};
  platform::PictureBox Panel{*this};
  platform::RichTextBox PanelText{*this};
  platform::Button PanelFirst{*this};
  platform::Button PanelSecond{*this};
  platform::Timer Clock{*this};
  platform::MenuItem MenuAct{*this};
  platform::MenuItem MenuMore{*this};
  platform::MenuItem MenuPlain{*this};
  platform::MenuItem MenuKeyed{*this};

  std::function<void()> loading;
  std::function<void()> resizing;
  std::function<void()> activating;
  std::function<void()> unloading;

  // Waits in a handler, as the program does: events go on, and it does not return into a handler
  // whose form or case has gone.
  void wait(double seconds);
  void write(const QString& what) { log_.append(what); }

  platform::ProportionalLayout layout{*this};

 protected:
  void onLoad() override;
  void onResize() override;
  void onActivate() override;
  void onUnload() override;

 private:
  void happened(const char* event, const std::function<void()>& then);

  QStringList& log_;
};

// Three forms that differ by nothing but their names.
extern const platform::FormDesign kOne;
extern const platform::FormDesign kTwo;
extern const platform::FormDesign kThree;

}  // namespace trial
