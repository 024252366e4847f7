#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <variant>
#include <vector>

#include "platform/flash/movie.h"

namespace platform::flash {

// The texts that a script numbers; functions that it makes keep them.
struct ConstantPool {
  std::vector<QString> texts;
  qsizetype weight = 0;  // what they take in memory, in characters, roughly

  void add(QString text);
};

// A function of a script: its body stays in the movie's bytes.
struct ScriptFunction {
  struct Parameter {
    int reg = 0;  // 0: no register, the parameter is a variable
    QString name;
  };

  std::vector<Parameter> parameters;
  int registers = 0;
  // The flags of DefineFunction2, which tell what stands in the first registers; 0 for the older
  // kind.
  unsigned preloads = 0;
  ActionBlock body;
  // Of the block of the definition; null where it had none.
  std::shared_ptr<const ConstantPool> constants;
  std::uint32_t clip = 0;  // in which the function was made
  // What it takes in memory without the constants, in characters, roughly.
  qsizetype weight = 0;

  void addParameter(int reg, QString name);
};

struct Undefined {
  bool operator==(const Undefined&) const = default;
};
struct Null {
  bool operator==(const Null&) const = default;
};
// A clip or a button on the stage, by its number there; it may have gone meanwhile.
struct ObjectRef {
  std::uint32_t id = 0;
  bool operator==(const ObjectRef&) const = default;
};
using FunctionRef = std::shared_ptr<const ScriptFunction>;

using Value = std::variant<Undefined, Null, bool, double, QString, ObjectRef, FunctionRef>;

// How values turn into one another; the movie's version (4 to 8) settles what undefined and texts
// mean. Objects have no text of their own here: what they are called is known to the stage.
[[nodiscard]] double toNumber(const Value& value, int version);
[[nodiscard]] QString toText(const Value& value, int version);
[[nodiscard]] bool toBoolean(const Value& value, int version);
// Towards zero, modulo 2 to the 32nd; 0 for what is no number.
[[nodiscard]] std::int32_t toInteger(const Value& value, int version);
// Whether two values are the same after the conversions that "==" makes.
[[nodiscard]] bool looselyEqual(const Value& left, const Value& right, int version);

// A number as scripts write it: no zeros behind the point, no more than 15 digits, with an exponent
// from 1e+15 up and below 1e-5.
[[nodiscard]] QString numberText(double number);
// The number that a whole text is; NaN where it is none, or in version 4 what it begins with.
[[nodiscard]] double numberOf(const QString& text, int version);

}  // namespace platform::flash
