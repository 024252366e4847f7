#pragma once

#include <QString>
#include <unordered_map>

#include "platform/flash/value.h"

namespace platform::flash {

// The books on what the variables of a running movie keep in memory, counted in characters,
// roughly: their names and texts, and the functions in them with their constants, and on the names
// of clips. Constants that many functions share count once.
class ScriptMemory {
 public:
  // A variable, by its folded name, is given a value. before: what it holds; null for a new one.
  // False, and nothing is counted, where that would be too much.
  [[nodiscard]] bool replace(const QString& key, const Value* before, const Value& after);
  // A variable goes with all that it holds.
  void forget(const QString& key, const Value& value);

  // A clip comes with a name, gets another one, and goes. A new name is refused, and the old one
  // counted on, where that would be too much; what the movie itself has named is there already.
  void name(const QString& name) { characters_ += name.size(); }
  [[nodiscard]] bool rename(const QString& before, const QString& after);
  void unname(const QString& name) { characters_ -= name.size(); }

 private:
  void add(const Value& value);
  void subtract(const Value& value);

  qsizetype characters_ = 0;
  std::unordered_map<const ConstantPool*, int> keepers_;  // how many variables keep them
};

}  // namespace platform::flash
