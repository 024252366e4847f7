#include "mano.h"

#include <poll.h>
#include <xcb/damage.h>
#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include <cstdlib>
#include <stdexcept>

#include "schermo.h"

namespace bench {

namespace {

constexpr xcb_keysym_t kInvio = 0xff0d;
constexpr double kPazienza = 10'000;  // milliseconds

std::uint8_t tastoDi(xcb_connection_t* schermo, xcb_keysym_t simbolo) {
  const xcb_setup_t* setup = xcb_get_setup(schermo);
  const auto quanti = std::uint8_t(setup->max_keycode - setup->min_keycode + 1);
  const std::unique_ptr<xcb_get_keyboard_mapping_reply_t, decltype(&std::free)> mappa(
      xcb_get_keyboard_mapping_reply(
          schermo, xcb_get_keyboard_mapping(schermo, setup->min_keycode, quanti), nullptr),
      &std::free);
  if (mappa == nullptr) throw std::runtime_error("no keyboard");
  const xcb_keysym_t* simboli = xcb_get_keyboard_mapping_keysyms(mappa.get());
  for (int i = 0; i < quanti; ++i) {
    if (simboli[std::ptrdiff_t{i} * mappa->keysyms_per_keycode] == simbolo) {
      return std::uint8_t(setup->min_keycode + i);
    }
  }
  throw std::runtime_error("no such key");
}

bool siToccano(const Riquadro& uno, const xcb_rectangle_t& altro) {
  return altro.x < uno.x + uno.larghezza && uno.x < altro.x + altro.width &&
         altro.y < uno.y + uno.altezza && uno.y < altro.y + altro.height;
}

}  // namespace

Mano::Mano(std::uint32_t finestra) : schermo_(xcb_connect(nullptr, nullptr)) {
  if (xcb_connection_has_error(schermo_) != 0) throw std::runtime_error("no display");
  std::free(
      xcb_damage_query_version_reply(schermo_, xcb_damage_query_version(schermo_, 1, 1), nullptr));
  xcb_damage_create(schermo_, xcb_generate_id(schermo_), finestra,
                    XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
  invio_ = tastoDi(schermo_, kInvio);
}

Mano::~Mano() {
  xcb_disconnect(schermo_);
}

void Mano::batti(bool giu) {
  xcb_test_fake_input(schermo_, giu ? XCB_KEY_PRESS : XCB_KEY_RELEASE, invio_, XCB_CURRENT_TIME,
                      XCB_NONE, 0, 0, 0);
  xcb_flush(schermo_);
}

bool Mano::dipinto(const Riquadro& dove) {
  const std::uint8_t dipinta =
      xcb_get_extension_data(schermo_, &xcb_damage_id)->first_event + XCB_DAMAGE_NOTIFY;
  bool trovato = false;
  while (xcb_generic_event_t* evento = xcb_poll_for_event(schermo_)) {
    if ((evento->response_type & 0x7f) == dipinta) {
      const auto* che = reinterpret_cast<const xcb_damage_notify_event_t*>(evento);
      trovato = trovato || siToccano(dove, che->area);
    }
    std::free(evento);
  }
  return trovato;
}

double Mano::premiFinoA(const Riquadro& dove) {
  (void)dipinto(dove);
  const double prima = adesso();
  premi();
  while (!dipinto(dove)) {
    if (adesso() - prima > kPazienza) throw std::runtime_error("no verdict was painted");
    pollfd attesa{xcb_get_file_descriptor(schermo_), POLLIN, 0};
    poll(&attesa, 1, 100);
  }
  return adesso() - prima;
}

}  // namespace bench
