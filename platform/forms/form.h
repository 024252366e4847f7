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
#include "platform/forms/ground.h"
#include "platform/forms/page.h"

namespace platform::inline forms {

// A form of the program: a page of the one window, made of named controls that its design rows
// describe. Derived forms hold their controls as members, wire their handlers in the constructor
// and override the four events of a form's life.
//
// Showing and unloading are settled by `Forms`; a form says where to go by name. What the engine
// does with a form stands in loaded_form.h.
class Form : public ControlHost,
             public ControlHome,
             public PageOwner,
             public HandlerOwner,
             public std::enable_shared_from_this<Form> {
 public:
  Form(Ground& ground, const FormDesign& design);
  ~Form() override;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  [[nodiscard]] const QString& name() const { return name_; }
  [[nodiscard]] const QString& caption() const { return caption_; }
  void setCaption(const QString& caption);
  [[nodiscard]] const QString& tag() const { return tag_; }
  void setTag(const QString& tag) { tag_ = tag; }
  [[nodiscard]] const QIcon& icon() const { return icon_; }
  void setIcon(const QIcon& icon);

  // The inner area, in twips of the page as it stands now.
  [[nodiscard]] double width() const { return design_.width * scale_.x; }
  [[nodiscard]] double height() const { return design_.height * scale_.y; }
  // Cuts the design off at that height, in its own twips, or lengthens it; the window of a form
  // shown over the main one follows.
  void setDesignHeight(double twips);
  // The greatest height that the design has had, in its own twips.
  [[nodiscard]] double tallestDesign() const { return tallest_; }
  // Paints the background from white at the top to full yellow at the bottom, once, at the present
  // size; what a later resize uncovers shows the last colour.
  void paintGradient();

  // The panel over everything, or null.
  [[nodiscard]] Control* covering() const { return cover_; }
  // Members that no row of the design stands for; a form with one is a mistake.
  [[nodiscard]] std::vector<const Control*> withoutRow() const;

  // Marks that a new case has begun: what still waits for the old one does not go on.
  void newCase() { ++caseNumber_; }
  [[nodiscard]] int caseNumber() const override { return caseNumber_; }

  // Runs a handler through the gate; false when it did not come to its end.
  bool run(const std::function<void()>& handler, Gate::Cases cases = Gate::Cases::Matter);

  // Has a screen reader speak a sentence.
  void announce(const QString& sentence);

  [[nodiscard]] bool isLoaded() const { return built_ && !unloaded_; }
  [[nodiscard]] bool isUnloaded() const override { return unloaded_; }

  // ControlHost
  [[nodiscard]] ControlHome& home() override { return *this; }
  [[nodiscard]] const Scale& scale() const override { return scale_; }
  void declare(Control& control) override { declared_.push_back(&control); }

  // ControlHome
  [[nodiscard]] Ground& ground() const override { return ground_; }
  [[nodiscard]] const FormDesign& design() const override { return design_; }
  [[nodiscard]] Page* page() const override { return page_; }
  [[nodiscard]] const std::vector<Control*>& controls() const override { return controls_; }
  void letEventsRun() override;
  void cover(Control& panel) override;
  void uncover(Control& panel) override;
  [[nodiscard]] bool isCovered(const Control& control) const override;

 protected:
  // Takes the form from the screen at once; see `Ground::unload`.
  void unload() { ground_.unload(*this); }

  virtual void onLoad() {}
  virtual void onResize() {}
  virtual void onActivate() {}
  virtual void onUnload() {}
  // The user closes the window of its own that the form is shown in.
  virtual void onClose();

 private:
  friend class LoadedForm;

  // ControlHome
  bool raise(const std::function<void()>& handler) override { return run(handler); }
  void setFocusBelow(Control& control) override { focusBelow_ = control.widget(); }
  void dropHiddenFocus() override;
  void adopt(Control& control) override;
  void release(const Control& control) override;
  // PageOwner
  [[nodiscard]] const QWidget* focusRoom() const override;
  [[nodiscard]] std::optional<QColor> coverColor() const override;
  void takeSize() override;

  void build(QWidget* parent);
  void dispose();
  void layOut();
  bool accessKey(QChar key);
  bool shortcut(const QKeySequence& keys);
  void keysLetGo();

  void buildRows();
  void focusCover();
  void focusMoved(QWidget& now);
  [[nodiscard]] QWidget* parentFor(const Row& row) const;
  void bindLabels();
  void setTabOrder();

  Ground& ground_;
  FormDesign design_;
  double tallest_ = 0;
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

}  // namespace platform::inline forms
