#include "platform/forms/controls/text_box_widget.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPointer>
#include <QValidator>
#include <algorithm>
#include <limits>
#include <utility>

#include "platform/forms/keys/key_codes.h"
#include "platform/forms/press_event.h"

namespace platform::inline forms {

namespace {

enum class Entry { Text, Command, None };

// What a key press is to a line of text. Ctrl and Alt together are what some desktops report for
// the third level of a key; with Alt or the system's key alone a character means something else,
// and the line edit would take it for text.
Entry entryOf(const QKeyEvent& event) {
  const QString text = event.text();
  const bool character = !text.isEmpty() && text[0].category() != QChar::Other_Control;
  if (!character) return Entry::Command;
  const bool control = event.modifiers().testFlag(Qt::ControlModifier);
  const bool alt = event.modifiers().testFlag(Qt::AltModifier);
  if (event.modifiers().testFlag(Qt::MetaModifier)) return Entry::None;
  if (control == alt) return Entry::Text;
  return control ? Entry::Command : Entry::None;
}

}  // namespace

// Marks what the box itself does to its text.
class TextBoxWidget::OwnWork {
 public:
  explicit OwnWork(TextBoxWidget& box) : box_(box) { ++box_.ownWork_; }
  ~OwnWork() { --box_.ownWork_; }
  OwnWork(const OwnWork&) = delete;
  OwnWork& operator=(const OwnWork&) = delete;

 private:
  TextBoxWidget& box_;
};

// Undoes every change that does not come one of the box's own ways, as from assistive technology,
// which writes past all events, and has the new text entered anew.
class TextBoxWidget::Watch final : public QValidator {
 public:
  explicit Watch(TextBoxWidget& box) : QValidator(&box), box_(box) {}

  State validate(QString& input, int& cursor) const override {
    if (box_.ownWork_ > 0 || input == box_.text_) return Acceptable;
    QMetaObject::invokeMethod(
        &box_, [&box = box_, input] { box.enterAnew(input); }, Qt::QueuedConnection);
    input = box_.text_;
    cursor = std::min(cursor, int(input.size()));
    return Acceptable;
  }

 private:
  TextBoxWidget& box_;
};

TextBoxWidget::TextBoxWidget(QWidget* parent, Hooks hooks, Pictures& pictures)
    : QLineEdit(parent), hooks_(std::move(hooks)), pictures_(pictures) {
  setFrame(false);
  setContextMenuPolicy(Qt::NoContextMenu);
  // Its own limit would cut what the program sets.
  setMaxLength(std::numeric_limits<int>::max());
  setValidator(new Watch(*this));
  connect(this, &QLineEdit::textChanged, this, &TextBoxWidget::noteChange);
  connect(this, &QLineEdit::cursorPositionChanged, this, [this] { update(); });
}

void TextBoxWidget::putText(const QString& text) {
  const OwnWork work(*this);
  setText(text);
}

int TextBoxWidget::filtered(int keyAscii) const {
  hooks_.keyPress(keyAscii);
  return keyAscii;
}

// Each character is in before the filter is asked for the next, as when they are typed; however
// many, they are one change.
void TextBoxWidget::enter(const QString& text) {
  entering_ = true;
  QString kept;
  for (const QChar character : text) {
    if (character.category() == QChar::Other_Control) continue;
    const int key = filtered(character.unicode());
    if (key > 0 && key <= 0xFFFF) kept += QChar(char16_t(key));
    if (!character.isHighSurrogate() && !isReadOnly()) insertKept(std::exchange(kept, {}));
  }
  entering_ = false;
  noteChange();
}

// What does not fit is left out; the halves of a character are never parted.
void TextBoxWidget::insertKept(QString kept) {
  if (limit_ > 0) {
    const qsizetype room = limit_ - (text().size() - selectedText().size());
    kept.truncate(std::max<qsizetype>(0, room));
    if (!kept.isEmpty() && kept.back().isHighSurrogate()) kept.chop(1);
  }
  if (kept.isEmpty()) return;
  const OwnWork work(*this);
  insert(kept);
}

void TextBoxWidget::enterAnew(const QString& text) {
  if (isReadOnly() || !hooks_.mayAct()) return;
  if (text.isEmpty()) {
    putText({});
  } else {
    selectAll();
    enter(text);
  }
}

void TextBoxWidget::noteChange() {
  if (entering_ || text_ == text()) return;
  text_ = text();
  fitFont();
  hooks_.changed();
}

bool TextBoxWidget::pressable() const {
  return isEnabled() && (!isReadOnly() || hooks_.clickable());
}

bool TextBoxWidget::event(QEvent* event) {
  if (event->type() != pressEvent()) return QLineEdit::event(event);
  if (!pressable()) return true;
  if (isReadOnly()) {
    hooks_.clicked();
    return true;
  }
  const QPointer<TextBoxWidget> self(this);
  (void)filtered(kKeyEnter);
  if (self) hooks_.keyUp(kKeyEnter);
  return true;
}

void TextBoxWidget::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Paste)) {
    if (!isReadOnly()) enter(QApplication::clipboard()->text());
    return;
  }
  const Entry entry = entryOf(*event);
  if (entry == Entry::Text) enter(event->text());
  if (entry == Entry::None) event->ignore();
  if (entry != Entry::Command) return;
  // These are characters to the filter, too. Enter acts at its release and never becomes text.
  const int code = keyCodeOf(*event);
  const bool enterKey = code == kKeyEnter;
  if (enterKey || code == kKeyBackspace || code == kKeyEscape) {
    if (filtered(code) != code || enterKey) return;
  }
  const OwnWork work(*this);
  QLineEdit::keyPressEvent(event);
}

void TextBoxWidget::keyReleaseEvent(QKeyEvent* event) {
  QLineEdit::keyReleaseEvent(event);
  hooks_.keyUp(keyCodeOf(*event));
}

// What an input method hands over is entered like typing; what it still composes is only shown.
void TextBoxWidget::inputMethodEvent(QInputMethodEvent* event) {
  if (isReadOnly()) {
    event->ignore();
    return;
  }
  const QString committed = event->commitString();
  composing_ = !event->preeditString().isEmpty();
  {
    const OwnWork work(*this);
    QInputMethodEvent bare(committed.isEmpty() ? event->preeditString() : QString(),
                           event->attributes());
    bare.setCommitString({}, event->replacementStart(), event->replacementLength());
    QLineEdit::inputMethodEvent(&bare);
  }
  if (!committed.isEmpty()) {
    enter(committed);
    if (composing_) {
      const OwnWork work(*this);
      QInputMethodEvent rest(event->preeditString(), event->attributes());
      QLineEdit::inputMethodEvent(&rest);
    }
  }
  event->accept();
}

void TextBoxWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton) {
    const QClipboard* clipboard = QApplication::clipboard();
    if (!isReadOnly() && clipboard->supportsSelection()) {
      deselect();
      enter(clipboard->text(QClipboard::Selection));
    }
    return;
  }
  QLineEdit::mouseReleaseEvent(event);
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
    hooks_.clicked();
  }
}

void TextBoxWidget::dropEvent(QDropEvent* event) {
  if (isReadOnly() || !event->mimeData()->hasText()) return;
  deselect();
  setCursorPosition(cursorPositionAt(event->position().toPoint()));
  event->acceptProposedAction();
  enter(event->mimeData()->text());
}

// Whatever way the focus comes, the text stays as it is: no key press wipes it out unawares.
void TextBoxWidget::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) {
    deselect();
    end(false);
  }
}

}  // namespace platform::inline forms
