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
#include "platform/forms/pictures.h"
#include "platform/forms/window.h"

namespace platform {

class KeyGuard;

// What the ground needs from outside; a test hands in its own.
struct RuntimeServices {
  TimeSource& time;
  MessageBoxes& boxes;
  ProcessEnd& end;
  Announcer& announcer;
  Network* network = nullptr;  // none under forms without sockets
};

// The ground under the forms of one program: its window, the forms now loaded, the gate of their
// handlers, the keys. Everything that a form needs of the ground is reached from here.
class Runtime {
 public:
  // title: the program's, for message boxes. pictures: where its drawings lie. pointer: the name of
  // the drawing of the program's own mouse pointer. factory: makes a form from its name.
  Runtime(RuntimeServices services, QString title, QString pictures, QString pointer,
          Forms::Factory factory);
  ~Runtime();
  Runtime(const Runtime&) = delete;
  Runtime& operator=(const Runtime&) = delete;

  [[nodiscard]] TimeSource& time() { return services_.time; }
  [[nodiscard]] Announcer& announcer() { return services_.announcer; }
  [[nodiscard]] Network* network() { return services_.network; }
  [[nodiscard]] Gate& gate() { return gate_; }
  [[nodiscard]] Forms& forms() { return forms_; }
  [[nodiscard]] Window& window() { return *window_; }
  [[nodiscard]] Pictures& pictures() { return pictures_; }
  [[nodiscard]] KeyGuard& keys() { return *keys_; }
  [[nodiscard]] const QString& title() const { return title_; }
  // The program's own pointer, 32 by 32 logical pixels.
  [[nodiscard]] const QCursor& pointer();

  // Shows a box from a handler. Does not return into it when its form has gone meanwhile; a new
  // case does not matter.
  BoxAnswer showBox(const MessageBox& box);
  // Lets a wait of the running handler work while every window of the program takes no mouse button
  // and no key: for a device that may keep the handler waiting for seconds. Does not return into it
  // when its form has gone meanwhile; a new case does not matter.
  void waitDeaf(const std::function<void()>& work);
  [[nodiscard]] bool isDeaf() const { return deaf_ > 0; }
  // Ends the process at once: no handler starts any more and no form is unloaded.
  void endProcess(int status);

 private:
  BoxAnswer ask(const MessageBox& box);
  void failed(const RunTimeError& error);

  RuntimeServices services_;
  QString title_;
  QString pointerName_;
  std::unique_ptr<QCursor> pointer_;
  Pictures pictures_;
  Gate gate_;
  Forms forms_;
  std::unique_ptr<Window> window_;
  std::unique_ptr<KeyGuard> keys_;
  int deaf_ = 0;
};

}  // namespace platform
