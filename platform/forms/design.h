#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <variant>

#include "platform/forms/geometry.h"

// The vocabulary of a form's design: rows of data, one for each control, from which the ground
// makes the controls. A row is bound to the form's member that stands for the control by a pointer
// to member, which gives the control's kind, the way to it, and its name.
namespace platform::inline forms {

class Control;
class Form;

// Red, green and blue, 0 to 255.
struct Rgb {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;

  friend constexpr bool operator==(const Rgb&, const Rgb&) = default;
};

inline constexpr Rgb kBlack{0, 0, 0};
inline constexpr Rgb kWhite{255, 255, 255};

enum class Face { Tahoma, Arial };

// size: points at the design's size of the form.
struct FontSpec {
  Face face = Face::Tahoma;
  double size = 9.75;
  bool bold = false;
};

enum class Align { Left, Centre, Right };

// A property of a reusable control that its stored instance does not keep at the default.
struct StoredProperty {
  std::string_view name;
  std::variant<bool, std::int16_t, std::int32_t, double, std::string_view> value;
};

// What a control looks like at the start. What a kind has no use for stays as it is. All texts are
// UTF-8.
struct Look {
  std::string_view caption = {};  // "&" stands before the access key; text boxes: their text
  std::string_view toolTip = {};  // also what assistive technology calls a control without words
  FontSpec font = {};
  std::optional<Rgb> fore = {};
  std::optional<Rgb> back = {};  // without one a label is transparent and a button plain
  Align align = Align::Left;
  bool border = false;  // a fixed single border
  bool hidden = false;
  bool disabled = false;
  bool checked = false;            // menu items, options, check boxes
  bool mnemonic = false;           // labels: "&" marks a key that leads to the next control
  bool locked = false;             // text boxes: read-only
  int maxLength = 0;               // text boxes: 0 is no limit
  int borderWidth = 1;             // shapes and lines: logical pixels
  std::string_view picture = {};   // a drawing of the program's, by its name
  std::string_view in = {};        // the container's name; the form itself without one
  std::string_view label = {};     // boxes: the label, or labels, that ask for what goes into it
  std::string_view shortcut = {};  // menu items: "Ctrl+S"
  std::span<const StoredProperty> stored = {};
};

struct Row {
  std::string_view name;
  int index;  // in a control array; -1 outside of one
  Control& (*control)(Form& form, int index);
  TwipsRect place;
  Look look;
};

// A form's design. Tables are read one after the other; a row with the name and index of an
// earlier one takes its place in the order, so that forms can share a table and change a few rows.
struct FormDesign {
  std::string_view name;
  std::string_view caption;  // "" for a form whose caption the language must not set
  double width = 0;          // of the client area, in twips
  double height = 0;
  Rgb back = kWhite;
  std::span<const std::span<const Row>> tables;
  // Its page has the design's shape in any window. Other pages take the whole of a wide window.
  bool keepsShape = false;
};

namespace design {

template <auto Member>
consteval std::string_view signatureOf() {
  return __PRETTY_FUNCTION__;
}

// The member's own name, out of the compiler's spelling of a signature that holds it:
// "... [with auto Member = &somme::FormAvvio::BottoneAvvio; ...]" or "[Member = &...]".
template <auto Member>
consteval std::string_view spelledName() {
  std::string_view text = signatureOf<Member>();
  text = text.substr(text.find("Member = "));
  text = text.substr(0, text.find_first_of(";]"));
  while (text.back() == ')') text.remove_suffix(1);
  return text.substr(text.rfind("::") + 2);
}

template <class T>
struct MemberOf;
template <class Owner, class Type>
struct MemberOf<Type Owner::*> {
  using Class = Owner;
  using Kind = Type;
};

template <class T>
concept IsArray = requires(T& t) { t.element(0); };
template <class T>
concept IsOptional = requires(T& t) { t.element(); };

// The control that a member stands for.
template <class T>
constexpr Control& controlOf(T& member) {
  if constexpr (IsOptional<T>) {
    return member.element();
  } else {
    return member;
  }
}

}  // namespace design

// The name of the control that a member stands for, for `Look::in`.
template <auto Member>
inline constexpr std::string_view nameOf = design::spelledName<Member>();

// A row for a member outside of an array: a control, or one that only some designs have.
template <auto Member>
constexpr Row row(TwipsRect place, Look look = {}) {
  using Owner = typename design::MemberOf<decltype(Member)>::Class;
  return {nameOf<Member>, -1,
          [](Form& form, int) -> Control& {
            return design::controlOf(static_cast<Owner&>(form).*Member);
          },
          place, look};
}

// A row for a control that a part of the form owns. Part: the form's member that is the part.
template <auto Part, auto Member>
constexpr Row row(TwipsRect place, Look look = {}) {
  using Owner = typename design::MemberOf<decltype(Part)>::Class;
  return {nameOf<Member>, -1,
          [](Form& form, int) -> Control& {
            return design::controlOf(static_cast<Owner&>(form).*Part.*Member);
          },
          place, look};
}

// A row for element `index` of a control array.
template <auto Member>
  requires design::IsArray<typename design::MemberOf<decltype(Member)>::Kind>
constexpr Row row(int index, TwipsRect place, Look look = {}) {
  using Owner = typename design::MemberOf<decltype(Member)>::Class;
  return {
      nameOf<Member>, index,
      [](Form& form, int i) -> Control& { return (static_cast<Owner&>(form).*Member).element(i); },
      place, look};
}

// A row for a control that has no place: a menu item, a socket.
template <auto Member>
constexpr Row item(Look look) {
  return row<Member>(TwipsRect{}, look);
}
template <auto Member>
constexpr Row item(int index, Look look) {
  return row<Member>(index, TwipsRect{}, look);
}

}  // namespace platform::inline forms
