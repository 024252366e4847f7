#pragma once

#include <sys/types.h>

#include <cstdint>
#include <memory>
#include <string>

struct xcb_connection_t;

namespace bench {

// A program started by the benchmark and watched from the display server's side.
class Programma {
 public:
  // Starts it; `percorso` is its file.
  explicit Programma(const std::string& percorso);
  ~Programma();
  Programma(const Programma&) = delete;
  Programma& operator=(const Programma&) = delete;

  [[nodiscard]] pid_t pid() const { return pid_; }
  // Milliseconds from exec to the first picture in its first window; waits for it.
  [[nodiscard]] double attendiDipinto();
  // Throws where it has ended by itself; so do the two that follow.
  void deveVivere() const;
  // Proportional set size, in kilobytes.
  [[nodiscard]] long pss() const;
  // How often its threads have gone to sleep and been woken since they started.
  [[nodiscard]] long risvegli() const;
  // A click of the left button at a place of the screen.
  void clicca(int x, int y);

 private:
  pid_t pid_ = 0;
  double partenza_ = 0;
  xcb_connection_t* schermo_ = nullptr;
};

[[nodiscard]] double adesso();  // milliseconds
void dormi(double secondi);

}  // namespace bench
