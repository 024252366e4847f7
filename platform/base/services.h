#pragma once

#include <QString>

namespace platform::inline base {

// Plays short sounds. A call returns at once and cuts off a sound that is still playing.
class Sound {
 public:
  virtual ~Sound() = default;
  // path: a WAV file. A missing file gives the system's beep, no device gives silence.
  virtual void play(const QString& path) = 0;
};

// Tells assistive technology sentences that a screen reader speaks, each once, in their order. A
// call returns at once; nothing happens where nobody listens.
class Announcer {
 public:
  virtual ~Announcer() = default;
  virtual void announce(const QString& sentence) = 0;
  // A box comes to stand in front of everything, and has gone; boxes may stand one over another. A
  // screen reader breaks off whatever it says and tells the box, so that what is told meanwhile,
  // and what has only just been told, is spoken when the last box has gone.
  virtual void boxOpens() = 0;
  virtual void boxCloses() = 0;
};

// What the desktop lets move. It is asked anew before each movement, so that a change of mind
// counts at once.
class Motion {
 public:
  virtual ~Motion() = default;
  // False where the desktop asks for no animations.
  [[nodiscard]] virtual bool isWanted() = 0;
};

// Hands documents to the desktop.
class Documents {
 public:
  virtual ~Documents() = default;
  // Opens the document with whatever the desktop has for it; nothing happens where it has nothing.
  virtual void open(const QString& path) = 0;
};

// Ends the process at once, whatever is loaded; no form is unloaded by it.
class ProcessEnd {
 public:
  virtual ~ProcessEnd() = default;
  // status: the exit status of the process.
  virtual void end(int status) = 0;
};

// Tells whether another instance of the same program, started by the same user, is running.
class InstanceLock {
 public:
  virtual ~InstanceLock() = default;
  // Takes the lock for the life of this process; false when a living process holds it.
  [[nodiscard]] virtual bool take() = 0;
};

}  // namespace platform::inline base
