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
  constexpr unsigned kFirstWithOperand = 0x80;
  constexpr std::int64_t kActionWork = 80;
  constexpr std::int64_t kByteWork = 2;
  constexpr std::int64_t kFaultWork = 3000;
  Budget& budget = stage_.budget();
  try {
    while (!run.ended_ && !run.code_.atEnd() && budget.spend(kActionWork)) {
      const unsigned code = run.code_.u8();
      if (code == 0) {
        return;
      }
      ByteReader operand(code >= kFirstWithOperand ? run.code_.bytes(run.code_.u16()) : Bytes());
      budget.spend(kByteWork * static_cast<std::int64_t>(operand.remaining()));
      if (const Action action = actions_[code]) {
        action(run, operand);
      }
    }
  } catch (const MovieError&) {
    // The script leads outside of its bytes: it ends here.
    budget.spend(kFaultWork);
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
  constexpr unsigned kPreloadThis = 0x01;
  constexpr unsigned kPreloadArguments = 0x04;
  constexpr unsigned kPreloadSuper = 0x10;
  constexpr unsigned kPreloadRoot = 0x40;
  constexpr unsigned kPreloadParent = 0x80;
  constexpr unsigned kPreloadGlobal = 0x100;

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
  preload(kPreloadThis, thisValue);
  preload(kPreloadArguments, {});
  preload(kPreloadSuper, {});
  preload(kPreloadRoot, ObjectRef{stage_.root().id});
  preload(kPreloadParent, parent);
  preload(kPreloadGlobal, {});
}

Value Interpreter::call(const ScriptFunction& function, const Value& thisValue,
                        std::vector<Value> arguments) {
  constexpr std::int64_t kCallWork = 500;
  constexpr std::int64_t kRegisterWork = 10;
  constexpr std::int64_t kWeightWork = 10;  // for each character of a parameter's name, and more
  const std::int64_t work =
      kCallWork + kRegisterWork * function.registers + kWeightWork * function.weight;
  if (callDepth_ >= limits::kCallDepth || !stage_.budget().spend(work)) {
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
