#include "platform/forms/runtime.h"

#include <QPainter>
#include <QPixmap>
#include <QScopeGuard>
#include <utility>

#include "platform/base/run_time_error.h"
#include "platform/forms/form.h"
#include "platform/forms/keys/key_guard.h"
#include "platform/forms/keys/keyboard_state.h"

namespace platform::inline forms {

namespace {

constexpr int kPointerSize = 32;
constexpr int kFailedStatus = 1;

}  // namespace

Runtime::Runtime(RuntimeServices services, QString title, QString pointer, Forms::Factory factory)
    : services_(services),
      title_(std::move(title)),
      pointerName_(std::move(pointer)),
      gate_([this](const RunTimeError& error) { failed(error); }, [this] { forms_.bury(); }),
      window_(std::make_unique<Window>(services.time,
                                       [this] {
                                         forms_.closeCurrent();
                                         endProcess(0);
                                       })),
      forms_(gate_, services.time, *window_, std::move(factory)),
      keys_(std::make_unique<KeyGuard>(*this, forms_, *window_, askForRepeatMarks())) {}

Runtime::~Runtime() {
  gate_.close();
  forms_.clear();
}

const QCursor& Runtime::pointer() {
  if (!pointer_) {
    const qreal ratio = window_->devicePixelRatioF();
    QPixmap image = services_.pictures.pixmap(pointerName_, {kPointerSize, kPointerSize}, ratio);
    const QPoint tip = services_.pictures.hotSpot(pointerName_, {kPointerSize, kPointerSize});
    pointer_ = std::make_unique<QCursor>(image, tip.x(), tip.y());
  }
  return *pointer_;
}

bool Runtime::mayMove() {
  return services_.motion != nullptr && services_.motion->isWanted();
}

bool Runtime::mayAct(const QWidget& widget) const {
  return keys_->mayAct(widget);
}

// A box is there to be answered: while it stands it hears, whatever is waited for below it. It is
// modal, so that the windows under it stay shut.
BoxAnswer Runtime::ask(const MessageBox& box) {
  const int deaf = std::exchange(deaf_, 0);
  const auto deafAgain = qScopeGuard([this, deaf] { deaf_ = deaf; });
  services_.announcer.boxOpens();
  const auto closed = qScopeGuard([this] { services_.announcer.boxCloses(); });
  return services_.boxes.show(box);
}

BoxAnswer Runtime::showBox(const MessageBox& box) {
  BoxAnswer answer{};
  MessageBox shown = box;
  if (shown.title.isEmpty()) shown.title = title_;
  gate_.wait([&] { answer = ask(shown); }, Gate::Cases::DoNotMatter);
  return answer;
}

void Runtime::waitDeaf(const std::function<void()>& work) {
  gate_.wait(
      [&] {
        ++deaf_;
        const auto hearAgain = qScopeGuard([this] { --deaf_; });
        work();
      },
      Gate::Cases::DoNotMatter);
}

void Runtime::endProcess(int status) {
  gate_.close();
  services_.end.end(status);
}

void Runtime::failed(const RunTimeError& error) {
  if (gate_.isClosed()) return;
  gate_.close();
  (void)ask({error.boxText(), title_, BoxIcon::Critical, BoxButtons::Ok});
  services_.end.end(kFailedStatus);
}

}  // namespace platform::inline forms
