#pragma once

#include <QCursor>
#include <QString>
#include <memory>

#include "platform/base/message_boxes.h"
#include "platform/base/network.h"
#include "platform/base/services.h"
#include "platform/base/time_source.h"
#include "platform/forms/forms.h"
#include "platform/forms/gate.h"
#include "platform/forms/ground.h"
#include "platform/forms/pictures.h"
#include "platform/forms/window.h"

namespace platform::inline forms {

class KeyGuard;

// What the ground needs from outside; a test hands in its own.
struct RuntimeServices {
  TimeSource& time;
  MessageBoxes& boxes;
  ProcessEnd& end;
  Announcer& announcer;
  Pictures& pictures;          // the program's drawings
  Network* network = nullptr;  // none under forms without sockets
  Motion* motion = nullptr;    // none: nothing moves for show
};

// The ground under the forms of one program: its window, the forms now loaded, the gate of their
// handlers, the keys. Everything that a form needs of the ground is reached from here.
class Runtime final : public Ground {
 public:
  // title: the program's, for message boxes. pointer: the name of the drawing of the program's own
  // mouse pointer. factory: makes a form from its name.
  Runtime(RuntimeServices services, QString title, QString pointer, Forms::Factory factory);
  ~Runtime() override;

  [[nodiscard]] Forms& forms() { return forms_; }
  [[nodiscard]] Window& window() { return *window_; }
  [[nodiscard]] KeyGuard& keys() { return *keys_; }
  [[nodiscard]] const QString& title() const { return title_; }
  // Ground
  [[nodiscard]] TimeSource& time() override { return services_.time; }
  [[nodiscard]] Announcer& announcer() override { return services_.announcer; }
  [[nodiscard]] Network* network() override { return services_.network; }
  [[nodiscard]] Gate& gate() override { return gate_; }
  [[nodiscard]] Pictures& pictures() override { return services_.pictures; }
  [[nodiscard]] bool mayMove() override;
  [[nodiscard]] const QCursor& pointer() override;
  BoxAnswer showBox(const MessageBox& box) override;
  void waitDeaf(const std::function<void()>& work) override;
  [[nodiscard]] bool isDeaf() const override { return deaf_ > 0; }
  [[nodiscard]] bool isChanging() const override { return forms_.isChanging(); }
  [[nodiscard]] bool mayAct(const QWidget& widget) const override;
  void formChanged(Form& form) override { forms_.formChanged(form); }
  void unload(Form& form) override { forms_.unload(form); }

  // Ends the process at once: no handler starts any more and no form is unloaded.
  void endProcess(int status);

 private:
  BoxAnswer ask(const MessageBox& box);
  void failed(const RunTimeError& error);

  RuntimeServices services_;
  QString title_;
  QString pointerName_;
  std::unique_ptr<QCursor> pointer_;
  Gate gate_;
  std::unique_ptr<Window> window_;
  Forms forms_;
  std::unique_ptr<KeyGuard> keys_;
  int deaf_ = 0;
};

}  // namespace platform::inline forms
