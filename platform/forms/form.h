#pragma once

#include <QIcon>
#include <QPointer>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "platform/forms/control.h"
#include "platform/forms/control_array.h"
#include "platform/forms/design.h"
#include "platform/forms/gate.h"
#include "platform/forms/page.h"

namespace platform {

class MenuItem;
class Runtime;

// A form of the program: a page of the one window, made of named controls that its design rows
// describe. Derived forms hold their controls as members, wire their handlers in the constructor
// and override the four events of a form's life.
//
// Showing and unloading are settled by `Forms`; a form says where to go by name.
class Form : public ControlHost, public std::enable_shared_from_this<Form> {
 public:
  Form(Runtime& runtime, const FormDesign& design);
  ~Form() override;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  [[nodiscard]] const QString& name() const { return name_; }
  [[nodiscard]] const FormDesign& design() const { return design_; }
  [[nodiscard]] Runtime& runtime() const { return runtime_; }
  [[nodiscard]] const QString& caption() const { return caption_; }
  void setCaption(const QString& caption);
  [[nodiscard]] const QString& tag() const { return tag_; }
  void setTag(const QString& tag) { tag_ = tag; }
  [[nodiscard]] const QIcon& icon() const { return icon_; }
  void setIcon(const QIcon& icon);

  // The inner area, in twips of the page as it stands now.
  [[nodiscard]] double width() const { return design_.width * scale_.x; }
  [[nodiscard]] double height() const { return design_.height * scale_.y; }
  // Cuts the design off at so many of its own twips, or lengthens it; the window of a form shown
  // over the main one follows.
  void setDesignHeight(double twips);
  // Paints the background from white at the top to full yellow at the bottom, once, at the present
  // size; what a later resize uncovers shows the last colour.
  void paintGradient();

  // Every control in the order of the design rows, then what was made at run time.
  [[nodiscard]] const std::vector<Control*>& controls() const { return controls_; }
  // Members that no row of the design stands for; a form with one is a mistake.
  [[nodiscard]] std::vector<const Control*> withoutRow() const;

  // What stands on the screen of the form, from its building on.
  [[nodiscard]] Page* page() const { return page_; }

  // Marks that a new case has begun: what still waits for the old one does not go on.
  void newCase() { ++caseNumber_; }
  [[nodiscard]] int caseNumber() const { return caseNumber_; }

  // Lets queued events run once. Does not return when the form or its case has gone meanwhile.
  void letEventsRun();

  // Shows `panel` over everything: only what is in it takes mouse, Tab and access keys, until it is
  // hidden. The focus goes to its first button and comes back afterwards.
  void cover(Control& panel);
  void uncover(Control& panel);
  [[nodiscard]] Control* covering() const { return cover_; }
  // Whether the control can be reached now, or lies under a covering panel.
  [[nodiscard]] bool isCovered(const Control& control) const;
  // Remembers a focus that was given to a covered control.
  void setFocusBelow(Control& control) { focusBelow_ = control.widget(); }
  // Takes the focus from what has been hidden where nothing else could take it: what is not on the
  // screen hears no keys.
  void dropHiddenFocus();

  // Runs a handler through the gate; false when it did not come to its end.
  bool run(const std::function<void()>& handler, Gate::Cases cases = Gate::Cases::Matter);

  // Has a screen reader speak a sentence.
  void announce(const QString& sentence);

  // Alt and a key. True when something of the form took it.
  bool accessKey(QChar key);
  // A key with modifiers, as the shortcuts of the menu have it. True when an item took it.
  bool shortcut(const QKeySequence& keys);
  // The window lost the keyboard while keys were down: they are let go without effect.
  void keysLetGo();

  [[nodiscard]] bool isLoaded() const { return built_ && !unloaded_; }
  [[nodiscard]] bool isUnloaded() const { return unloaded_; }

  // ControlHost
  [[nodiscard]] Form& form() override { return *this; }
  [[nodiscard]] const Scale& scale() const override { return scale_; }
  void declare(Control& control) override { declared_.push_back(&control); }

  // Called by `Forms` and by the ground's own parts only.
  void build(QWidget* parent);
  void takeSize();
  void dispose();
  void leave() { leaving_ = true; }
  [[nodiscard]] bool isLeaving() const { return leaving_; }
  void adopt(Control& control);
  void release(const Control& control);
  void fireLoad() { onLoad(); }
  void fireActivate() { onActivate(); }
  void fireUnload() { onUnload(); }
  void fireClose() { onClose(); }
  // The proportional layout: puts every control where it belongs on the page as it is now.
  void layOut();

 protected:
  virtual void onLoad() {}
  virtual void onResize() {}
  virtual void onActivate() {}
  virtual void onUnload() {}
  // The user closes the window of its own that the form is shown in.
  virtual void onClose();

 private:
  void buildRows();
  void focusCover();
  void focusMoved(QWidget* now);
  [[nodiscard]] QWidget* parentFor(const Row& row) const;
  void setTabOrder();

  Runtime& runtime_;
  FormDesign design_;
  QString name_;
  QString caption_;
  QString tag_;
  QIcon icon_;
  QPointer<Page> page_;
  Scale scale_;
  std::vector<Control*> declared_;
  std::vector<Control*> controls_;
  Control* cover_ = nullptr;
  QPointer<QWidget> focusBelow_;
  int caseNumber_ = 0;
  bool built_ = false;
  bool laidOut_ = false;
  bool leaving_ = false;
  bool unloaded_ = false;
};

}  // namespace platform
