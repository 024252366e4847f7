#pragma once

#include <functional>
#include <memory>

#include "platform/base/services.h"

namespace platform::inline devices {

class SoundDesk;

// Sound on a thread of its own, which the first sound starts: a call only leaves word on a desk.
// What the system has for sound is that thread's alone.
//
// A missing file beeps at once. Nobody ever waits for the thread: a sound system that hangs may
// hold it for half a minute. It outlives this object when need be, with the desk that it shares
// with it.
class DeskSound : public Sound {
 public:
  // The whole life of the sound thread: takes requests from the desk until that is closed.
  using Serve = void (*)(SoundDesk& desk);

  // beep: the desktop's beep; called on the thread that calls play. The object lives on the thread
  // of the QCoreApplication and goes before it.
  DeskSound(std::function<void()> beep, Serve serve);
  ~DeskSound() override;
  DeskSound(const DeskSound&) = delete;
  DeskSound& operator=(const DeskSound&) = delete;

  void play(const QString& path) final;

 private:
  std::shared_ptr<SoundDesk> desk_;
  Serve serve_;
  bool brings_ = false;  // the thread that brings what the other says has been started
  bool plays_ = false;   // the sound thread has
};

}  // namespace platform::inline devices
