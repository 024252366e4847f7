#include "platform/forms/wait_sign.h"

#include <QApplication>
#include <QLabel>
#include <QWindow>
#include <chrono>

#include "platform/forms/colors.h"
#include "platform/forms/fonts.h"
#include "platform/forms/form.h"
#include "platform/forms/runtime.h"
#include "platform/forms/wait_pointer.h"

namespace platform::inline forms {

namespace {

constexpr std::chrono::milliseconds kWorthWords{500};
constexpr double kTextPixels = 20;

}  // namespace

WaitSign::WaitSign(QWidget& over, const QString& words, std::function<void()> shown)
    : label_(new QLabel(words, &over)), shown_(std::move(shown)) {
  label_->setObjectName(QStringLiteral("WaitSign"));
  label_->setTextFormat(Qt::PlainText);
  label_->setAlignment(Qt::AlignCenter);
  label_->setFont(fontOf({}, pixelsBeside(over.height(), kTextPixels)));
  label_->setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
  label_->setMargin(label_->font().pixelSize());
  label_->setAutoFillBackground(true);
  QPalette colors = label_->palette();
  colors.setColor(QPalette::Window, colors::kYellow);
  colors.setColor(QPalette::WindowText, Qt::black);
  label_->setPalette(colors);
  label_->hide();
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { show(); });
  timer_.setSingleShot(true);
  timer_.start(kWorthWords);
}

WaitSign::~WaitSign() {
  delete label_.data();
}

void WaitSign::show() {
  if (!label_) return;
  const QWidget& over = *label_->parentWidget();
  const QSize size = label_->sizeHint().boundedTo(over.size());
  label_->setGeometry(QRect(over.rect().center() - QPoint(size.width(), size.height()) / 2, size));
  label_->raise();
  label_->show();
  shown_();
}

void waitVisibly(Runtime& runtime, const QString& words, const std::function<void()>& work) {
  QWidget* modal = QApplication::activeModalWidget();
  QWidget& inUse = modal != nullptr ? *modal : runtime.window();
  const WaitPointer hourglass;
  const WaitSign sign(inUse, words, [&, window = QPointer(inUse.windowHandle())] {
    // What the words stand over is seen, even where it was to be painted only when it is ready.
    runtime.window().releasePicture();
    if (modal != nullptr) modal->setUpdatesEnabled(true);
    Form* form = window ? runtime.forms().shownIn(*window) : nullptr;
    if (form != nullptr) form->announce(words);
  });
  runtime.waitDeaf(work);
}

}  // namespace platform::inline forms
