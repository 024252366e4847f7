#include "platform/forms/page.h"

#include <QApplication>
#include <QHideEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QResizeEvent>

#include "platform/forms/colors.h"
#include "platform/forms/design.h"
#include "platform/forms/menu_bar.h"
#include "platform/forms/text_block.h"

namespace platform::inline forms {

namespace {

constexpr QColor kGradientFirst = colors::gradient(0);
constexpr QColor kGradientLast = colors::gradient(255);
// Where a form for paper is laid out, in pixels: on any screen its controls come out at the same
// places. A sheet of 24 columns and 23 rows has 63 by 46 whole pixels to a cell, and no twip over.
constexpr QSize kPaperRoom(1512, 1512);

}  // namespace

Page::Page(PageOwner& owner, QWidget* parent)
    : QWidget(parent), owner_(owner), canvas_(new Canvas(owner, this)) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

MenuBar* Page::menuBar() {
  if (menuBar_ == nullptr) menuBar_ = new MenuBar(this);
  return menuBar_;
}

bool Page::arrange() {
  int top = 0;
  if (menuBar_ != nullptr) {
    menuBar_->scaleTo(height());
    top = menuBar_->heightForWidth(width());
    if (top <= 0) top = menuBar_->sizeHint().height();
    menuBar_->setGeometry(0, 0, width(), top);
  }
  const FormDesign& design = owner_.design();
  const bool forPaper = design.keepsShape;
  const QSize room = forPaper ? kPaperRoom : QSize(width(), std::max(1, height() - top));
  const QSize client = clientPixels(room, {design.width, design.height}, forPaper);
  const QPoint letterbox((room.width() - client.width()) / 2,
                         top + (room.height() - client.height()) / 2);
  // Beside the page, which stays empty: the window has no room for it.
  canvas_->setGeometry(QRect(forPaper ? QPoint(width(), 0) : letterbox, client));
  const bool changed = client != arranged_;
  arranged_ = client;
  return changed;
}

// A page that comes up gets its resize event late: its form has taken the size already.
void Page::resizeEvent(QResizeEvent* /*event*/) {
  if (arrange()) owner_.takeSize();
}

// An open menu or list has a window of its own, which does not leave the screen with the page.
void Page::hideEvent(QHideEvent* /*event*/) {
  QWidget* open = QApplication::activePopupWidget();
  for (const QObject* above = open; above != nullptr; above = above->parent()) {
    if (above != this) continue;
    open->close();
    return;
  }
}

void Page::paintEvent(QPaintEvent* event) {
  // Only the letterbox shows of the page itself. A gradient goes on in its colours at the ends.
  QPainter painter(this);
  const std::optional<QColor> cover = owner_.coverColor();
  if (cover || !canvas_->hasGradient()) {
    painter.fillRect(event->rect(), cover.value_or(toColor(owner_.design().back)));
    return;
  }
  painter.fillRect(event->rect(), kGradientLast);
  painter.fillRect(event->rect() & QRect(0, 0, width(), canvas_->y()), kGradientFirst);
}

}  // namespace platform::inline forms
