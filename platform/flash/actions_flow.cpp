#include <array>

#include "platform/flash/actions.h"

namespace platform::flash {

namespace {

// What kind of value a push names.
enum class Pushed : std::uint8_t {
  Text,
  Float,
  Null,
  Undefined,
  Register,
  Boolean,
  Double,
  Integer,
  Constant,      // by a number of 8 bits
  WideConstant,  // of 16
};

Value constant(ScriptRun& run, std::size_t index) {
  const ScriptRun::Constants& texts = run.constants();
  return texts != nullptr && index < texts->texts.size() ? Value(texts->texts[index]) : Value();
}

void pushValue(ScriptRun& run, ByteReader& operand) {
  switch (Pushed(operand.u8())) {
    case Pushed::Text:
      return run.pushText(run.decoded(operand));
    case Pushed::Float:
      return run.push(double(operand.f32()));
    case Pushed::Null:
      return run.push(Null{});
    case Pushed::Undefined:
      return run.push(Undefined{});
    case Pushed::Register:
      return run.push(run.reg(operand.u8()));
    case Pushed::Boolean:
      return run.push(operand.u8() != 0);
    case Pushed::Double:
      return run.push(operand.f64());
    case Pushed::Integer:
      return run.push(double(static_cast<std::int32_t>(operand.u32())));
    case Pushed::Constant:
      return run.push(constant(run, operand.u8()));
    case Pushed::WideConstant:
      return run.push(constant(run, operand.u16()));
  }
  throw MovieError("a script pushes a value of no known type", operand.position());
}

void pushValues(ScriptRun& run, ByteReader& operand) {
  while (!operand.atEnd()) pushValue(run, operand);
}

void setConstantPool(ScriptRun& run, ByteReader& operand) {
  auto texts = std::make_shared<ConstantPool>();
  for (int left = operand.u16(); left > 0 && !run.stage().budget().isSpent(); --left) {
    texts->add(run.decoded(operand));
  }
  run.setConstants(std::move(texts));
}

void jump(ScriptRun& run, ByteReader& operand) {
  run.jump(operand.s16());
}

void jumpIf(ScriptRun& run, ByteReader& operand) {
  const int offset = operand.s16();
  if (toBoolean(run.pop(), run.version())) {
    run.jump(offset);
  }
}

void popValue(ScriptRun& run, ByteReader&) {
  (void)run.pop();
}

void duplicate(ScriptRun& run, ByteReader&) {
  const Value value = run.pop();
  run.push(value);
  run.push(value);
}

void swapTop(ScriptRun& run, ByteReader&) {
  Value top = run.pop();
  Value below = run.pop();
  run.push(std::move(top));
  run.push(std::move(below));
}

// The value stays on the stack.
void storeRegister(ScriptRun& run, ByteReader& operand) {
  const Value value = run.pop();
  run.reg(operand.u8()) = value;
  run.push(value);
}

void returnValue(ScriptRun& run, ByteReader&) {
  run.endWith(run.pop());
}

// The body of a function follows its definition and is not run here. One without a name is a value.
void define(ScriptRun& run, ByteReader& operand, bool second) {
  constexpr std::size_t kFunctionMemory = 200;
  auto function = std::make_shared<ScriptFunction>();
  run.stage().budget().hold(kFunctionMemory);
  const QString name = run.decoded(operand);
  int parameters = operand.u16();
  if (second) {
    function->registers = operand.u8();
    function->preloads = operand.u16();
  }
  for (; parameters > 0 && !run.stage().budget().isSpent(); --parameters) {
    const int reg = second ? operand.u8() : 0;
    function->addParameter(reg, run.decoded(operand));
  }
  function->body = run.code().bytes(operand.u16());
  function->constants = run.constants();
  if (const Clip* clip = run.target()) {
    function->clip = clip->id;
  }
  if (name.isEmpty()) {
    run.push(FunctionRef(std::move(function)));
  } else {
    run.setLocal(name, FunctionRef(std::move(function)));
  }
}

void defineFunction(ScriptRun& run, ByteReader& operand) {
  define(run, operand, false);
}
void defineFunction2(ScriptRun& run, ByteReader& operand) {
  define(run, operand, true);
}

std::vector<Value> popArguments(ScriptRun& run) {
  std::vector<Value> arguments;
  for (double left = run.popNumber(); left >= 1 && !run.stage().budget().isSpent(); --left) {
    if (arguments.size() >= 255) {
      throw MovieError("a script calls with too many arguments", run.code().position());
    }
    arguments.push_back(run.pop());
  }
  return arguments;
}

Value callIfFunction(ScriptRun& run, const Value& function, const Value& thisValue,
                     std::vector<Value> arguments) {
  const auto* found = std::get_if<FunctionRef>(&function);
  if (found == nullptr) {
    return {};
  }
  const FunctionRef kept = *found;
  return run.machine().call(*kept, thisValue, std::move(arguments));
}

void callFunction(ScriptRun& run, ByteReader&) {
  const Value function = run.variable(run.popText());
  const Clip* target = run.target();
  const Value thisValue = target == nullptr ? Value() : Value(ObjectRef{target->id});
  std::vector<Value> arguments = popArguments(run);
  run.push(callIfFunction(run, function, thisValue, std::move(arguments)));
}

void callMethod(ScriptRun& run, ByteReader&) {
  const QString name = run.popText();
  const Value object = run.pop();
  std::vector<Value> arguments = popArguments(run);
  if (name.isEmpty()) {
    run.push(callIfFunction(run, object, {}, std::move(arguments)));
    return;
  }
  Clip* clip = asClip(run.container(object));
  if (clip != nullptr && callTimelineMethod(run, *clip, name, arguments)) {
    run.push(Undefined{});
    return;
  }
  run.push(callIfFunction(run, run.member(object, name), object, std::move(arguments)));
}

constexpr std::array kFlowRows{
    ActionRow{Op::Push, pushValues},
    ActionRow{Op::Pop, popValue},
    ActionRow{Op::ConstantPool, setConstantPool},
    ActionRow{Op::Jump, jump},
    ActionRow{Op::If, jumpIf},
    ActionRow{Op::PushDuplicate, duplicate},
    ActionRow{Op::StackSwap, swapTop},
    ActionRow{Op::StoreRegister, storeRegister},
    ActionRow{Op::Return, returnValue},
    ActionRow{Op::DefineFunction, defineFunction},
    ActionRow{Op::DefineFunction2, defineFunction2},
    ActionRow{Op::CallFunction, callFunction},
    ActionRow{Op::CallMethod, callMethod},
    ActionRow{Op::Trace, popValue},  // a trace goes nowhere
};

}  // namespace

std::span<const ActionRow> flowActions() {
  return kFlowRows;
}

}  // namespace platform::flash
