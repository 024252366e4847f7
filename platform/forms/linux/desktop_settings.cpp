#include "platform/forms/linux/desktop_settings.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QtEndian>
#include <cstdlib>
#include <memory>
#include <string>

namespace platform::inline forms {

namespace {

enum Kind : quint8 { Number, Text, Color };

constexpr qsizetype kColorBytes = 8;

// Reads a block from front to back. Beyond its end everything is 0 and `broken()`.
class Reader {
 public:
  explicit Reader(const QByteArray& bytes) : bytes_(bytes) {
    bigEndian_ = take(1) == QByteArray(1, char(1));
    (void)take(3);
  }

  [[nodiscard]] bool broken() const { return broken_; }
  QByteArray take(qsizetype count) {
    if (count < 0 || count > bytes_.size() - at_) broken_ = true;
    if (broken_) return {};
    QByteArray taken = bytes_.mid(at_, count);
    at_ += count;
    return taken;
  }
  // Text is filled up to whole groups of four bytes.
  QByteArray takeText(qsizetype count) {
    QByteArray text = take(count);
    (void)take((4 - count % 4) % 4);
    return text;
  }
  template <class T>
  T take() {
    const QByteArray raw = take(qsizetype(sizeof(T)));
    if (broken_) return 0;
    return bigEndian_ ? qFromBigEndian<T>(raw.constData()) : qFromLittleEndian<T>(raw.constData());
  }

 private:
  const QByteArray& bytes_;
  qsizetype at_ = 0;
  bool bigEndian_ = false;
  bool broken_ = false;
};

struct Free {
  void operator()(void* reply) const { std::free(reply); }
};

xcb_atom_t atom(xcb_connection_t* display, const std::string& name) {
  const std::unique_ptr<xcb_intern_atom_reply_t, Free> reply(xcb_intern_atom_reply(
      display, xcb_intern_atom(display, 0, quint16(name.size()), name.c_str()), nullptr));
  return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

}  // namespace

std::optional<int> numberIn(const QByteArray& settings, const QByteArray& name) {
  Reader reader(settings);
  (void)reader.take<quint32>();
  const auto count = reader.take<quint32>();
  for (quint32 i = 0; i < count && !reader.broken(); ++i) {
    const auto kind = reader.take<quint8>();
    (void)reader.take(1);
    const QByteArray its = reader.takeText(reader.take<quint16>());
    (void)reader.take<quint32>();
    if (kind == Number) {
      const auto value = reader.take<qint32>();
      if (its == name && !reader.broken()) return value;
    } else if (kind == Text) {
      (void)reader.takeText(reader.take<quint32>());
    } else if (kind == Color) {
      (void)reader.take(kColorBytes);
    } else {
      return std::nullopt;
    }
  }
  return std::nullopt;
}

QByteArray desktopSettings() {
  auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
  if (x11 == nullptr || x11->connection() == nullptr) return {};
  xcb_connection_t* display = x11->connection();
  static const xcb_atom_t selection = atom(display, "_XSETTINGS_S0");
  static const xcb_atom_t property = atom(display, "_XSETTINGS_SETTINGS");
  const std::unique_ptr<xcb_get_selection_owner_reply_t, Free> owner(
      xcb_get_selection_owner_reply(display, xcb_get_selection_owner(display, selection), nullptr));
  if (!owner || owner->owner == XCB_WINDOW_NONE) return {};
  constexpr quint32 kMost = 0x10000;  // words of four bytes
  const std::unique_ptr<xcb_get_property_reply_t, Free> reply(xcb_get_property_reply(
      display, xcb_get_property(display, 0, owner->owner, property, property, 0, kMost), nullptr));
  if (!reply) return {};
  return {static_cast<const char*>(xcb_get_property_value(reply.get())),
          xcb_get_property_value_length(reply.get())};
}

}  // namespace platform::inline forms
