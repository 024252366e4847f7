#include <array>

#include "platform/flash/actions.h"
#include "platform/flash/properties.h"
#include "platform/flash/targets.h"

namespace platform::flash {

namespace {

void getVariable(ScriptRun& run, ByteReader&) {
  run.push(run.variable(run.popText()));
}

void setVariable(ScriptRun& run, ByteReader&) {
  const Value value = run.pop();
  run.setVariable(run.popText(), value);
}

void defineLocal(ScriptRun& run, ByteReader&) {
  const Value value = run.pop();
  run.setLocal(run.popText(), value);
}

void declareLocal(ScriptRun& run, ByteReader&) {
  run.setLocal(run.popText(), Undefined{});
}

// The clip that a value names: itself, or a path from the target.
Container* named(ScriptRun& run, const Value& value) {
  return std::holds_alternative<ObjectRef>(value) ? run.container(value)
                                                  : run.resolve(run.text(value));
}

void getProperty(ScriptRun& run, ByteReader&) {
  const auto property = propertyOfNumber(toInteger(run.pop(), run.version()));
  const Container* of = named(run, run.pop());
  run.push(property && of != nullptr ? propertyOf(run.stage(), *of, *property) : Value());
}

void setProperty(ScriptRun& run, ByteReader&) {
  const Value value = run.pop();
  const auto property = propertyOfNumber(toInteger(run.pop(), run.version()));
  Container* of = named(run, run.pop());
  if (property && of != nullptr) {
    setPropertyOf(run.stage(), *of, *property, value);
  }
}

void getMember(ScriptRun& run, ByteReader&) {
  const QString name = run.popText();
  run.push(run.member(run.pop(), name));
}

void setMember(ScriptRun& run, ByteReader&) {
  const Value value = run.pop();
  const QString name = run.popText();
  run.setMember(run.pop(), name, value);
}

void typeOf(ScriptRun& run, ByteReader&) {
  constexpr std::array<QStringView, std::variant_size_v<Value>> kWords{
      u"undefined", u"null", u"boolean", u"number", u"string", u"movieclip", u"function"};
  run.pushText(kWords[run.pop().index()].toString());
}

void targetPath(ScriptRun& run, ByteReader&) {
  const Container* object = run.container(run.pop());
  if (object == nullptr) {
    run.push(Undefined{});
  } else {
    run.pushText(dotPath(run.stage(), *object));
  }
}

constexpr std::array kVariableRows{
    ActionRow{Op::GetVariable, getVariable}, ActionRow{Op::SetVariable, setVariable},
    ActionRow{Op::DefineLocal, defineLocal}, ActionRow{Op::DefineLocal2, declareLocal},
    ActionRow{Op::GetProperty, getProperty}, ActionRow{Op::SetProperty, setProperty},
    ActionRow{Op::GetMember, getMember},     ActionRow{Op::SetMember, setMember},
    ActionRow{Op::TypeOf, typeOf},           ActionRow{Op::TargetPath, targetPath},
};

}  // namespace

std::span<const ActionRow> variableActions() {
  return kVariableRows;
}

}  // namespace platform::flash
