#pragma once

#include <QString>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace platform::inline devices {

struct SoundRequest {
  QString path;
  std::chrono::steady_clock::time_point asked;

  // A sound that could not start within this comes no more: it would belong to another answer.
  static constexpr std::chrono::milliseconds kLatestStart{1000};
  [[nodiscard]] bool isTooLate() const {
    return std::chrono::steady_clock::now() - asked > kLatestStart;
  }
};

// Where the program and its sound thread meet: the last request that nobody has taken yet, what the
// thread has to say, and whether the program is still there to hear. Owned by both. No call holds
// the other side up.
class SoundDesk : public std::enable_shared_from_this<SoundDesk> {
 public:
  // beep: called on the program's thread.
  explicit SoundDesk(std::function<void()> beep) : beep_(std::move(beep)) {}

  // The program's side.
  // Takes the place of a request that is still waiting.
  void leave(SoundRequest request);
  void beep() const { beep_(); }
  // The program goes: no beep comes through any more, and the threads end when they look.
  void close();

  // The life of a thread beside: brings what the sound thread sends. That one may have no file of
  // the program's open, and it takes one to wake an event loop.
  void bringMessages();

  // The thread's side.
  // Sleeps until there is a request; nothing when the program has gone.
  [[nodiscard]] std::optional<SoundRequest> waitForRequest();
  // Sleeps for that long; false, and earlier, when there is a request or the program has gone.
  [[nodiscard]] bool rest(std::chrono::milliseconds time);
  // Has the program beep.
  void sendBeep();
  // Has the program say on its stderr why there is no sound, in one line; once in a run.
  void sendComplaint(const std::string& why);

 private:
  // Has the program's thread do something, unless it goes before.
  void send(std::function<void()> action);

  const std::function<void()> beep_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::condition_variable sent_;
  std::optional<SoundRequest> request_;
  std::vector<std::function<void()>> messages_;  // on their way to the program
  // Also read without the lock, so that the program waits for nobody who holds it.
  std::atomic<bool> closed_ = false;
  bool complained_ = false;  // the thread's own
};

}  // namespace platform::inline devices
