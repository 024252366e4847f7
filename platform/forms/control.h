#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>
#include <vector>

#include "platform/forms/control_home.h"
#include "platform/forms/design.h"

namespace platform::inline forms {

// What controls live in: a form, or a reusable control that is made of controls itself.
class ControlHost {
 public:
  virtual ~ControlHost() = default;
  // The form that it is, or stands on.
  [[nodiscard]] virtual ControlHome& home() = 0;
  // How the design stands on the page now.
  [[nodiscard]] virtual const Scale& scale() const = 0;
  // Takes note of a member when it is constructed.
  virtual void declare(Control& control) = 0;
};

// A named control of a form: a thin handle on one of Qt's widgets, with the place in twips, apart
// from pixels, and the few properties that every kind has. It exists as a member of its form from
// the start; its widget is made when the form is built from its design rows.
//
// Whoever derives says which widget it is and how it follows the look; the place, the scaling and
// the way of an event through the form's gate are settled here.
class Control {
 public:
  explicit Control(ControlHost& host);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  // As the language files write it: "Name", or "Name(Index)" in a control array.
  [[nodiscard]] const QString& name() const { return name_; }
  [[nodiscard]] int index() const { return index_; }  // -1 outside of an array
  [[nodiscard]] bool isBuilt() const { return built_; }
  [[nodiscard]] ControlHome& home() const { return host_.home(); }

  // The place in the container, in twips of the page as it stands now. It is kept as a fraction of
  // the page, so that it follows every resize without drift.
  [[nodiscard]] double left() const { return place_.left * scale().x; }
  [[nodiscard]] double top() const { return place_.top * scale().y; }
  [[nodiscard]] double width() const { return place_.width * scale().x; }
  [[nodiscard]] double height() const { return place_.height * scale().y; }
  void setLeft(double twips);
  void setTop(double twips);
  void setWidth(double twips);
  void setHeight(double twips);
  void setPlace(double left, double top, double width, double height);
  // The place as it is in the design's own twips.
  [[nodiscard]] const TwipsRect& designPlace() const { return place_; }

  // The control's own flag, whatever its parents show.
  [[nodiscard]] bool isVisible() const { return visible_; }
  virtual void setVisible(bool visible);
  [[nodiscard]] virtual bool isEnabled() const { return enabled_; }
  virtual void setEnabled(bool enabled);

  // Controls without a caption say so; setting theirs does nothing.
  [[nodiscard]] virtual bool hasCaption() const { return false; }
  [[nodiscard]] virtual QString caption() const { return {}; }
  virtual void setCaption(const QString& caption);
  [[nodiscard]] const QString& toolTip() const { return toolTip_; }
  virtual void setToolTip(const QString& toolTip);
  [[nodiscard]] const QString& tag() const { return tag_; }
  void setTag(const QString& tag) { tag_ = tag; }

  [[nodiscard]] Rgb backColor() const { return back_; }
  void setBackColor(Rgb color);
  [[nodiscard]] Rgb foreColor() const { return fore_; }
  void setForeColor(Rgb color);
  // Points as they stand on the page now, so that a size can be handed from control to control.
  [[nodiscard]] double fontSize() const;
  void setFontSize(double points);

  // 0: the system's arrow; 99: the program's own pointer.
  void setMousePointer(int pointer);
  [[nodiscard]] int mousePointer() const { return pointer_; }

  // Does nothing where the control cannot take the focus. Below a covering panel the focus comes
  // when the panel has gone.
  virtual void setFocus();
  [[nodiscard]] virtual bool hasFocus() const;
  void bringToFront();

  // The widget on the screen, or null: menu items and sockets have none.
  [[nodiscard]] QWidget* widget() const { return widget_; }
  // The widget that the rows of contained controls are made in.
  [[nodiscard]] virtual QWidget* container() const { return widget_; }
  // What a copy of this control, made at run time, is made in.
  [[nodiscard]] virtual QWidget* surroundings() const;

  // Called by the form: makes the control from its row, or as a copy of element 0 at run time.
  void build(QWidget* parent, const QString& name, int index, const TwipsRect& place,
             const Look& look);
  // Called by the form after a resize.
  virtual void applyScale();
  // The widgets that Tab stops at, in their order.
  [[nodiscard]] virtual std::vector<QWidget*> tabStops() const;
  // Where the control stands among its siblings: 0 for what is painted on the form (pictures,
  // shapes, labels), 1 for lines over them, 2 for what has a window of its own.
  [[nodiscard]] virtual int layer() const { return 2; }
  [[nodiscard]] const Look& look() const { return look_; }
  // The key that the control answers to with Alt, upper case; null without one.
  [[nodiscard]] virtual QChar accessKey() const { return {}; }
  // What the access key does; at once.
  virtual void access() {}
  // The window lost the keyboard while keys were down: they are let go without effect.
  virtual void keysLetGo() {}
  // The form was unloaded: what runs by itself stops.
  virtual void formGone() {}

 protected:
  [[nodiscard]] ControlHost& host() const { return host_; }
  [[nodiscard]] const Scale& scale() const { return host_.scale(); }
  [[nodiscard]] Ground& ground() const { return home().ground(); }
  // Whether what a user does here acts now; for what assistive technology does past all events.
  [[nodiscard]] bool mayAct() const;
  // Runs a handler of the form through its gate.
  void raiseEvent(const std::function<void()>& handler) const;

  // Makes the widget; null for a control that has none.
  [[nodiscard]] virtual QWidget* create(QWidget* parent) = 0;
  // Follows a new place that the program has given the control: by default its widget takes it.
  virtual void placeChanged();
  // Brings colours, font and spoken name to the widget.
  virtual void applyLook() {}
  [[nodiscard]] double fontPixels() const { return scale().fontPixels(points_); }
  [[nodiscard]] FontSpec fontSpec() const;

 private:
  ControlHost& host_;
  QPointer<QWidget> widget_;
  QString name_;
  int index_ = -1;
  TwipsRect place_;
  Look look_;
  QString toolTip_;
  QString tag_;
  Rgb fore_ = kBlack;
  Rgb back_ = kWhite;
  double points_ = 0;
  int pointer_ = 99;
  bool visible_ = true;
  bool enabled_ = true;
  bool built_ = false;
};

}  // namespace platform::inline forms
