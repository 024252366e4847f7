#pragma once

#include <QStringList>
#include <bit>

#include "hand_made.h"
#include "platform/flash/player.h"

// Scripts put together by hand, and what they tell.
namespace scripts {

using namespace hand_made;
using platform::flash::Player;

// The stage on which the scripts of this test run: the root holds the clip "clip", which holds
// "inner"; x of the clip is 30 pixels.
inline QByteArray stageTags() {
  return sprite(1, showFrame()) + sprite(2, place(1, 1, 0, 0, "inner") + showFrame(), 1) +
         place(1, 2, 30, 0, "clip");
}

// All that the script tells, "command args" each.
inline QStringList toldBy(const QByteArray& actions, int version = 6, const QByteArray& more = {}) {
  QStringList told;
  const Player player(
      movie(file(stageTags() + more + doAction(actions) + showFrame(), version)),
      [&](const QString& command, const QString& args) { told << command + u' ' + args; });
  return told;
}

// What the value is, as a text, that the actions leave on the stack.
inline QString valueOf(const QByteArray& actions, int version = 6) {
  const QStringList told = toldBy(say(actions), version);
  return told.size() == 1 ? told.front().mid(4) : QStringLiteral("(nothing told)");
}

inline QByteArray pushFloat(float value) {
  return action(0x96, u8(1) + u32(std::bit_cast<std::uint32_t>(value)));
}
inline QByteArray pushDouble(double value) {
  const auto bits = std::bit_cast<std::uint64_t>(value);
  return action(0x96, u8(6) + u32(std::uint32_t(bits >> 32U)) + u32(std::uint32_t(bits)));
}
inline QByteArray pushBool(bool value) {
  return action(0x96, u8(5) + u8(value ? 1 : 0));
}
inline QByteArray pushUndefined() {
  return action(0x96, u8(3));
}
inline QByteArray pushNull() {
  return action(0x96, u8(2));
}
inline QByteArray op(unsigned code) {
  return action(code);
}
inline QByteArray getVariable(const char* name) {
  return pushText(name) + op(0x1C);
}
inline QByteArray setVariable(const char* name, const QByteArray& value) {
  return pushText(name) + value + op(0x1D);
}
inline QByteArray getMember(const QByteArray& object, const char* name) {
  return object + pushText(name) + op(0x4E);
}
// DefineFunction (0x9B) with its body behind it.
inline QByteArray function(const char* name, std::initializer_list<const char*> parameters,
                           const QByteArray& body) {
  QByteArray head = text(name) + u16(unsigned(parameters.size()));
  for (const char* parameter : parameters) {
    head += text(parameter);
  }
  return action(0x9B, head + u16(unsigned(body.size()))) + body;
}

}  // namespace scripts
