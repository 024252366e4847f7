#pragma once

#include <cstdint>
#include <memory>

struct xcb_connection_t;

namespace bench {

// In pixels of the screen, from a window's left upper corner.
struct Riquadro {
  int x;
  int y;
  int larghezza;
  int altezza;
};

// A hand at the Return key and an eye on a window, of somebody outside the program: over a
// connection to the display server of their own, so that they may live on another thread.
class Mano {
 public:
  // finestra: the window's number at the display server. Throws without the server or such a key.
  explicit Mano(std::uint32_t finestra);
  ~Mano();
  Mano(const Mano&) = delete;
  Mano& operator=(const Mano&) = delete;

  // Milliseconds from the press until something has been painted in a rectangle of the window.
  // Throws when nothing is.
  double premiFinoA(const Riquadro& dove);
  void premi() { batti(true); }
  void lascia() { batti(false); }

 private:
  void batti(bool giu);
  // Whether one of the paintings that are told is in there; takes all that are told.
  bool dipinto(const Riquadro& dove);

  xcb_connection_t* schermo_ = nullptr;
  std::uint8_t invio_ = 0;
};

}  // namespace bench
