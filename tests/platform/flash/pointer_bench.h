// Movies with buttons and clips that tell what the mouse does to them.
#pragma once

#include <QPointF>
#include <initializer_list>
#include <utility>

#include "running.h"

namespace pointer_bench {

using namespace hand_made;
using running::Running;
using running::words;

// The transitions of the mouse as DefineButton2 stores them.
inline constexpr unsigned kIdleToOverUp = 1;
inline constexpr unsigned kOverUpToIdle = 2;
inline constexpr unsigned kOverUpToOverDown = 4;
inline constexpr unsigned kOverDownToOverUp = 8;
inline constexpr unsigned kOverDownToOutDown = 16;
inline constexpr unsigned kOutDownToOverDown = 32;
inline constexpr unsigned kOutDownToIdle = 64;
inline constexpr unsigned kIdleToOverDown = 128;
inline constexpr unsigned kOverDownToIdle = 256;

inline QByteArray record(unsigned states, unsigned id, bool second, int x = 0, unsigned depth = 1) {
  return u8(states) + u16(id) + u16(depth) + shift(x * 20, 0) +
         (second ? Bits().raw("0 0 0000").bytes() : QByteArray());
}

// A button whose hit state is the square of 20 pixels (character 1) and which tells every
// transition; it looks red, green and blue (characters 2, 3, 4).
inline QByteArray tellingButton(unsigned id, bool menu = false) {
  struct Row {
    unsigned events;
    const char* word;
  };
  const QList<Row> rows{{kIdleToOverUp, "rollOver"},        {kOverUpToIdle, "rollOut"},
                        {kOverUpToOverDown, "press"},       {kOverDownToOverUp, "release"},
                        {kOverDownToOutDown, "dragOut"},    {kOutDownToOverDown, "dragOver"},
                        {kOutDownToIdle, "releaseOutside"}, {kIdleToOverDown, "menuOver"},
                        {kOverDownToIdle, "menuOut"}};
  const QByteArray records =
      record(1, 2, true) + record(2, 3, true) + record(4, 4, true) + record(8, 1, true) + u8(0);
  QByteArray handlers;
  for (qsizetype i = 0; i < rows.size(); ++i) {
    const QByteArray body = u16(rows[i].events) + tell(rows[i].word) + u8(0);
    const bool last = i + 1 == rows.size();
    handlers += u16(last ? 0 : unsigned(body.size()) + 2) + body;
  }
  return tag(34,
             u16(id) + u8(menu ? 1 : 0) + u16(unsigned(records.size()) + 2) + records + handlers);
}

// The characters that the button needs.
inline QByteArray looks() {
  return square(1, 20, 0) + square(2, 20, 0xFF0000) + square(3, 20, 0x00FF00) +
         square(4, 20, 0x0000FF);
}

// PlaceObject2 with handlers of version 6: pairs of event bits and words that are told.
inline QByteArray placeWithHandlers(
    unsigned depth, unsigned id, int x,
    std::initializer_list<std::pair<unsigned, const char*>> handlers) {
  QByteArray records;
  for (const auto& [events, word] : handlers) {
    const QByteArray actions = tell(word) + u8(0);
    records += u32(events) + u32(std::uint32_t(actions.size())) + actions;
  }
  return tag(26, u8(0x86) + u16(depth) + u16(id) + shift(x * 20, 0) + u16(0) + u32(0xFFFF) +
                     records + u32(0));
}

inline constexpr QPointF inside(10, 10);
inline constexpr QPointF outside(50, 50);

}  // namespace pointer_bench
