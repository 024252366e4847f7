#include <array>

#include "platform/flash/actions.h"

namespace platform::flash {

namespace {

void pushValues(ScriptRun& run, ByteReader& operand) {
  const auto constant = [&](std::size_t index) {
    const ScriptRun::Constants& texts = run.constants();
    return texts != nullptr && index < texts->texts.size() ? Value(texts->texts[index]) : Value();
  };
  while (!operand.atEnd()) {
    switch (operand.u8()) {
      case 0:
        run.pushText(run.decoded(operand));
        break;
      case 1:
        run.push(double(operand.f32()));
        break;
      case 2:
        run.push(Null{});
        break;
      case 3:
        run.push(Undefined{});
        break;
      case 4:
        run.push(run.reg(operand.u8()));
        break;
      case 5:
        run.push(operand.u8() != 0);
        break;
      case 6:
        run.push(operand.f64());
        break;
      case 7:
        run.push(double(static_cast<std::int32_t>(operand.u32())));
        break;
      case 8:
        run.push(constant(operand.u8()));
        break;
      case 9:
        run.push(constant(operand.u16()));
        break;
      default:
        throw MovieError("a script pushes a value of no known type", operand.position());
    }
  }
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
  constexpr std::size_t functionMemory = 200;
  auto function = std::make_shared<ScriptFunction>();
  run.stage().budget().hold(functionMemory);
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

constexpr std::array rows{
    ActionRow{0x96, pushValues},      ActionRow{0x17, popValue},
    ActionRow{0x88, setConstantPool}, ActionRow{0x99, jump},
    ActionRow{0x9D, jumpIf},          ActionRow{0x4C, duplicate},
    ActionRow{0x4D, swapTop},         ActionRow{0x87, storeRegister},
    ActionRow{0x3E, returnValue},     ActionRow{0x9B, defineFunction},
    ActionRow{0x8E, defineFunction2}, ActionRow{0x3D, callFunction},
    ActionRow{0x52, callMethod},      ActionRow{0x26, popValue},  // a trace goes nowhere
};

}  // namespace

std::span<const ActionRow> flowActions() {
  return rows;
}

}  // namespace platform::flash
