#include "platform/flash/script_memory.h"

#include "platform/flash/limits.h"

namespace platform::flash {

namespace {

// What a variable counts for beside its value: its name, and something for being there.
qsizetype nameWeight(const QString& key) {
  constexpr qsizetype kOverhead = 32;
  return key.size() + kOverhead;
}

// What a value counts for without the constants of a function.
qsizetype ownWeight(const Value& value) {
  if (const auto* text = std::get_if<QString>(&value)) {
    return text->size();
  }
  constexpr qsizetype kFunctionOverhead = 64;
  const auto* function = std::get_if<FunctionRef>(&value);
  return function == nullptr ? 0 : kFunctionOverhead + (*function)->weight;
}

const ConstantPool* constantsOf(const Value& value) {
  const auto* function = std::get_if<FunctionRef>(&value);
  return function == nullptr ? nullptr : (*function)->constants.get();
}

}  // namespace

void ScriptMemory::add(const Value& value) {
  characters_ += ownWeight(value);
  if (const ConstantPool* constants = constantsOf(value);
      constants != nullptr && ++keepers_[constants] == 1) {
    characters_ += constants->weight;
  }
}

void ScriptMemory::subtract(const Value& value) {
  characters_ -= ownWeight(value);
  if (const ConstantPool* constants = constantsOf(value);
      constants != nullptr && --keepers_[constants] == 0) {
    characters_ -= constants->weight;
    keepers_.erase(constants);
  }
}

bool ScriptMemory::replace(const QString& key, const Value* before, const Value& after) {
  const qsizetype name = before == nullptr ? nameWeight(key) : 0;
  characters_ += name;
  add(after);
  if (before != nullptr) {
    subtract(*before);
  }
  if (characters_ <= limits::kScriptCharacters) {
    return true;
  }
  if (before != nullptr) {
    add(*before);
  }
  subtract(after);
  characters_ -= name;
  return false;
}

bool ScriptMemory::rename(const QString& before, const QString& after) {
  const qsizetype then = characters_ - before.size() + after.size();
  if (after.size() > before.size() && then > limits::kScriptCharacters) {
    return false;
  }
  characters_ = then;
  return true;
}

void ScriptMemory::forget(const QString& key, const Value& value) {
  characters_ -= nameWeight(key);
  subtract(value);
}

}  // namespace platform::flash
