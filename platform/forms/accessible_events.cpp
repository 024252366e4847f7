#include "platform/forms/accessible_events.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QWidget>
#include <algorithm>
#include <utility>
#include <vector>

#include "platform/forms/accessible_labels.h"
#include "platform/forms/controls/label_widget.h"

namespace platform::inline forms {

namespace {

// The toolkit hands an event to its handler or to the desktop, never to both.
void passToDesktop(QAccessibleEvent& event) {
  QAccessible::installUpdateHandler(nullptr);
  QAccessible::updateAccessibility(&event);
  QAccessible::installUpdateHandler(hearAccessibleEvent);
}

// What comes or goes, and whether it was there before.
struct Coming {
  QPointer<QWidget> widget;
  bool wasThere;
};

struct Held {
  std::function<void(QAccessibleEvent&)> pass;
  int together = 0;   // how many ComingsToldTogether live
  int unwritten = 0;  // how many WritingNotTold live
  std::vector<Coming> comings;
  QPointer<QWidget> focus;  // has come to the focus since this event began; null for none
  // Enabled or disabled while they were hidden, and not told.
  std::vector<QPointer<QWidget>> changedUnseen;
};

Held& held() {
  static Held all;
  return all;
}

// What a box asks for changes with its labels, and whoever listens remembers what it was.
void tellName(QWidget& box) {
  if (labelsTogether(box).isEmpty()) return;
  QAccessibleEvent event(&box, QAccessible::NameChanged);
  held().pass(event);
}

// Only the last place of the focus is told.
void holdFocus(QWidget& widget) {
  const bool waiting = held().focus != nullptr;
  held().focus = &widget;
  if (waiting) return;
  QMetaObject::invokeMethod(
      qApp,
      [] {
        QWidget* last = std::exchange(held().focus, nullptr);
        if (last == nullptr) return;
        tellName(*last);
        QAccessibleEvent event(last, QAccessible::Focus);
        held().pass(event);
      },
      Qt::QueuedConnection);
}

bool isAboutText(QAccessible::Event type) {
  switch (type) {
    case QAccessible::TextCaretMoved:
    case QAccessible::TextInserted:
    case QAccessible::TextRemoved:
    case QAccessible::TextUpdated:
    case QAccessible::TextSelectionChanged:
    case QAccessible::ValueChanged:
      return true;
    default:
      return false;
  }
}

// Who was enabled and disabled again has nothing to tell.
void noteUnseen(QWidget& widget) {
  std::vector<QPointer<QWidget>>& changed = held().changedUnseen;
  const auto known = std::find(changed.begin(), changed.end(), &widget);
  if (known == changed.end()) {
    changed.emplace_back(&widget);
  } else {
    changed.erase(known);
  }
}

void tellUnseen(QWidget& widget) {
  if (std::erase(held().changedUnseen, &widget) == 0) return;
  QAccessible::State state;
  state.disabled = true;  // which one has changed, not how it is
  QAccessibleStateChangeEvent event(&widget, state);
  held().pass(event);
}

// Whether a box holds another text than when this was asked last; kept by the box itself.
bool isWrittenAnew(QLineEdit& box) {
  constexpr const char* kText = "accessibleText";
  if (box.property(kText).toString() == box.text()) return false;
  box.setProperty(kText, box.text());
  return true;
}

// Where only the program writes, the cursor goes along with the text, which is told: the toolkit
// moves it first. One that was moved alone is told where the box has the keyboard.
bool isIdleCursor(QWidget& widget, const QAccessibleEvent& event) {
  auto* box = qobject_cast<QLineEdit*>(&widget);
  if (box == nullptr || !box->isReadOnly() || !isAboutText(event.type())) return false;
  const bool anew = isWrittenAnew(*box);
  return event.type() == QAccessible::TextCaretMoved && (anew || !box->hasFocus());
}

// What is never there for whoever listens neither comes nor goes.
bool isOfSilent(const QWidget& widget, const QAccessibleEvent& event) {
  const auto* label = qobject_cast<const LabelWidget*>(&widget);
  return label != nullptr && label->isSilent() &&
         (event.type() == QAccessible::ObjectShow || event.type() == QAccessible::ObjectHide);
}

// True for an event that is not told, or not yet: of something hidden, or of writing that a
// sentence tells.
bool keepUnseen(QWidget& widget, QAccessibleEvent& event) {
  if (isAboutText(event.type()) && (!widget.isVisible() || held().unwritten > 0)) return true;
  if (widget.isVisible()) return false;
  if (event.type() != QAccessible::StateChanged) return false;
  const auto& change = static_cast<const QAccessibleStateChangeEvent&>(event);
  if (!change.changedStates().disabled) return false;
  noteUnseen(widget);
  return true;
}

// True for a coming or going that is told later.
bool keepComing(QWidget& widget, QAccessible::Event type) {
  const bool comes = type == QAccessible::ObjectShow;
  if (held().together == 0 || (!comes && type != QAccessible::ObjectHide)) return false;
  std::vector<Coming>& comings = held().comings;
  const auto known = [&widget](const Coming& coming) { return coming.widget == &widget; };
  if (std::ranges::none_of(comings, known)) comings.push_back({&widget, !comes});
  return true;
}

void tellComing(QWidget& widget) {
  const bool comes = widget.isVisible();
  QAccessibleEvent event(&widget, comes ? QAccessible::ObjectShow : QAccessible::ObjectHide);
  held().pass(event);
  if (comes) tellUnseen(widget);
}

}  // namespace

WritingNotTold::WritingNotTold() {
  ++held().unwritten;
}

WritingNotTold::~WritingNotTold() {
  --held().unwritten;
}

ComingsToldTogether::ComingsToldTogether() {
  ++held().together;
}

ComingsToldTogether::~ComingsToldTogether() {
  if (--held().together > 0) return;
  for (const Coming& coming : std::exchange(held().comings, {})) {
    if (coming.widget && coming.widget->isVisible() != coming.wasThere) tellComing(*coming.widget);
  }
}

void hearAccessibleEvent(QAccessibleEvent* event) {
  auto* widget = qobject_cast<QWidget*>(event->object());
  const bool whole = widget != nullptr && event->child() < 0;
  if (event->type() == QAccessible::Focus) {
    held().focus = whole ? held().focus : nullptr;
    if (whole) {
      holdFocus(*widget);
      return;
    }
  }
  if (whole && (isIdleCursor(*widget, *event) || isOfSilent(*widget, *event) ||
                keepUnseen(*widget, *event) || keepComing(*widget, event->type()))) {
    return;
  }
  held().pass(*event);
  if (whole && event->type() == QAccessible::ObjectShow) tellUnseen(*widget);
}

void installAccessibleEvents(std::function<void(QAccessibleEvent& event)> pass) {
  held() = {.pass = pass ? std::move(pass) : passToDesktop};
  QAccessible::installUpdateHandler(hearAccessibleEvent);
}

}  // namespace platform::inline forms
