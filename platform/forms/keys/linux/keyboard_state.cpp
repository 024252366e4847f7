#include "platform/forms/keys/keyboard_state.h"

#include <QGuiApplication>
#include <cstdlib>
#include <memory>
#include <unordered_set>

// The header names a field with a word that C++ keeps for itself.
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit
#include <xcb/xcb.h>

namespace platform::inline forms {

namespace {

struct Free {
  void operator()(void* reply) const { std::free(reply); }
};

xcb_connection_t* connection() {
  auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 == nullptr ? nullptr : x11->connection();
}

bool serverTellsRepeatsApart(xcb_connection_t* display) {
  const std::unique_ptr<xcb_xkb_use_extension_reply_t, Free> use(xcb_xkb_use_extension_reply(
      display, xcb_xkb_use_extension(display, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION),
      nullptr));
  if (!use || use->supported == 0) return false;
  constexpr std::uint32_t kFlag = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
  const std::unique_ptr<xcb_xkb_per_client_flags_reply_t, Free> flags(
      xcb_xkb_per_client_flags_reply(
          display,
          xcb_xkb_per_client_flags(display, XCB_XKB_ID_USE_CORE_KBD, kFlag, kFlag, 0, 0, 0),
          nullptr));
  return flags && (flags->value & kFlag) != 0;
}

std::unordered_set<std::uint32_t> modifiers(xcb_connection_t* display) {
  const std::unique_ptr<xcb_get_modifier_mapping_reply_t, Free> mapping(
      xcb_get_modifier_mapping_reply(display, xcb_get_modifier_mapping(display), nullptr));
  if (!mapping) return {};
  const xcb_keycode_t* codes = xcb_get_modifier_mapping_keycodes(mapping.get());
  return {codes, codes + xcb_get_modifier_mapping_keycodes_length(mapping.get())};
}

}  // namespace

RepeatMarks askForRepeatMarks() {
  xcb_connection_t* display = connection();
  if (display == nullptr) return RepeatMarks::Flagged;
  return serverTellsRepeatsApart(display) ? RepeatMarks::PressesOnly : RepeatMarks::Unreliable;
}

std::uint32_t countedScanCode(std::uint32_t scanCode) {
  return scanCode;
}

std::optional<std::vector<KeyId>> keysDownNow() {
  xcb_connection_t* display = connection();
  if (display == nullptr) return std::nullopt;
  const std::unique_ptr<xcb_query_keymap_reply_t, Free> reply(
      xcb_query_keymap_reply(display, xcb_query_keymap(display), nullptr));
  if (!reply) return std::nullopt;
  const std::unordered_set<std::uint32_t> silent = modifiers(display);
  std::vector<KeyId> keys;
  for (std::uint32_t code = 0; code < 256; ++code) {
    const bool down = (reply->keys[code / 8] >> (code % 8) & 1) != 0;
    if (down && !silent.contains(code)) keys.push_back(KeyId::of(code, 0));
  }
  return keys;
}

// What is flagged as a repeat is one.
std::unique_ptr<QAbstractNativeEventFilter> missedReleases() {
  return nullptr;
}

}  // namespace platform::inline forms
