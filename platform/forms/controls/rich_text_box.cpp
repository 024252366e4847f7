#include "platform/forms/controls/rich_text_box.h"

#include <QPlainTextEdit>
#include <QScrollBar>
#include <cmath>

#include "platform/forms/colors.h"
#include "platform/forms/focus_ring.h"
#include "platform/forms/fonts.h"
#include "platform/forms/text_block.h"
#include "platform/forms/text_pages.h"

namespace platform::inline forms {

namespace {

constexpr double kMargin = 0.75;  // of the letters' size, from the paper's edge to the text

}  // namespace

QWidget* RichTextBox::create(QWidget* parent) {
  auto* box = new QPlainTextEdit(parent);
  box->setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
  box->setReadOnly(true);
  box->setUndoRedoEnabled(false);
  box->setTabChangesFocus(true);
  box->setContextMenuPolicy(Qt::NoContextMenu);
  box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  // Over the text the control's own pointer, not the toolkit's.
  box->viewport()->unsetCursor();
  return box;
}

void RichTextBox::applyLook() {
  auto* box = static_cast<QPlainTextEdit*>(widget());
  box->setFont(fontOf(fontSpec(), fontPixels()));
  box->setLineWidth(markPixels(*box, 1));
  box->document()->setDocumentMargin(std::round(fontPixels() * kMargin));
  box->setToolTip(toolTip());
  box->setAccessibleName(toolTip());
  QPalette palette = box->palette();
  palette.setColor(QPalette::Base, toColor(backColor()));
  palette.setColor(QPalette::Text, toColor(foreColor()));
  palette.setColor(QPalette::WindowText, colors::kBorder);
  box->setPalette(palette);
}

void RichTextBox::setText(const QString& text) {
  text_ = text;
  static_cast<QPlainTextEdit*>(widget())->setPlainText(text);
}

void RichTextBox::append(const QString& text) {
  text_ += text;
  auto* box = static_cast<QPlainTextEdit*>(widget());
  QTextCursor end(box->document());
  end.movePosition(QTextCursor::End);
  const QTextCursor before = box->textCursor();
  const int anchor = before.anchor();
  const int position = before.position();
  end.insertText(text);
  // A selection that reaches to the end does not grow with the text.
  QTextCursor selected = box->textCursor();
  selected.setPosition(anchor);
  selected.setPosition(position, QTextCursor::KeepAnchor);
  box->setTextCursor(selected);
  box->verticalScrollBar()->setValue(box->verticalScrollBar()->maximum());
}

qsizetype RichTextBox::formatRange(QPainter* painter, const QRectF& area, qsizetype from) const {
  QFont font = fontOf(fontSpec(), Twips::points(fontSpec().size).count());
  font.setHintingPreference(QFont::PreferNoHinting);
  return setTextInto(painter, text_, font, toColor(foreColor()), area, from);
}

}  // namespace platform::inline forms
