#include "platform/flash/interpreter.h"

#include <algorithm>
#include <utility>

#include "platform/flash/actions.h"
#include "platform/flash/limits.h"

namespace platform::flash {

Interpreter::Interpreter(Stage& stage, CommandSink onCommand)
    : stage_(stage), onCommand_(std::move(onCommand)) {
  for (const std::span<const ActionRow> family :
       {flowActions(), arithmeticActions(), variableActions(), timelineActions()}) {
    for (const ActionRow& row : family) {
      actions_[static_cast<std::size_t>(row.op)] = row.action;
    }
  }
}

void Interpreter::execute(ScriptRun& run) {
  constexpr unsigned firstWithOperand = 0x80;
  constexpr std::int64_t actionWork = 80;
  constexpr std::int64_t byteWork = 2;
  constexpr std::int64_t faultWork = 3000;
  Budget& budget = stage_.budget();
  try {
    while (!run.ended_ && !run.code_.atEnd() && budget.spend(actionWork)) {
      const unsigned code = run.code_.u8();
      if (code == 0) {
        return;
      }
      ByteReader operand(code >= firstWithOperand ? run.code_.bytes(run.code_.u16()) : Bytes());
      budget.spend(byteWork * static_cast<std::int64_t>(operand.remaining()));
      if (const Action action = actions_[code]) {
        action(run, operand);
      }
    }
  } catch (const MovieError&) {
    // The script leads outside of its bytes: it ends here.
    budget.spend(faultWork);
  }
}

void Interpreter::run(const QueuedScript& script) {
  uponRemoval_ = script.whenRemoved;
  if (script.function != nullptr) {
    (void)call(*script.function, ObjectRef{script.clip}, {});
    return;
  }
  ScriptRun run(*this, script.block, script.clip);
  execute(run);
}

void Interpreter::bindRegisters(ScriptRun& run, const ScriptFunction& function,
                                const Value& thisValue) {
  constexpr unsigned preloadThis = 0x01;
  constexpr unsigned preloadArguments = 0x04;
  constexpr unsigned preloadSuper = 0x10;
  constexpr unsigned preloadRoot = 0x40;
  constexpr unsigned preloadParent = 0x80;
  constexpr unsigned preloadGlobal = 0x100;

  run.registers_.resize(std::size_t(function.registers));
  std::size_t next = 1;
  const auto preload = [&](unsigned flag, const Value& value) {
    if ((function.preloads & flag) != 0) {
      if (next < run.registers_.size()) {
        run.registers_[next] = value;
      }
      ++next;
    }
  };
  const Container* self = find(run.self_);
  const Value parent =
      self != nullptr && self->parent != nullptr ? Value(ObjectRef{self->parent->id}) : Value();
  preload(preloadThis, thisValue);
  preload(preloadArguments, {});
  preload(preloadSuper, {});
  preload(preloadRoot, ObjectRef{stage_.root().id});
  preload(preloadParent, parent);
  preload(preloadGlobal, {});
}

Value Interpreter::call(const ScriptFunction& function, const Value& thisValue,
                        std::vector<Value> arguments) {
  constexpr std::int64_t callWork = 500;
  constexpr std::int64_t registerWork = 10;
  constexpr std::int64_t weightWork = 10;  // for each character of a parameter's name, and more
  const std::int64_t work =
      callWork + registerWork * function.registers + weightWork * function.weight;
  if (callDepth_ >= limits::callDepth || !stage_.budget().spend(work)) {
    return {};
  }
  ++callDepth_;
  ScriptRun run(*this, function.body, function.clip);
  run.inFunction_ = true;
  run.thisValue_ = thisValue;
  run.constants_ = function.constants;
  bindRegisters(run, function, thisValue);
  arguments.resize(function.parameters.size());
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const ScriptFunction::Parameter& parameter = function.parameters[i];
    if (parameter.reg == 0) {
      run.locals_.insert(stage_.movie().folded(parameter.name), arguments[i]);
    } else if (std::size_t(parameter.reg) < run.registers_.size()) {
      run.registers_[std::size_t(parameter.reg)] = arguments[i];
    }
  }
  execute(run);
  --callDepth_;
  return std::move(run.result_);
}

void Interpreter::raiseCommand(const QString& command, const QString& args) {
  if (stage_.spendCommand()) {
    onCommand_(command, args);
  }
}

}  // namespace platform::flash
