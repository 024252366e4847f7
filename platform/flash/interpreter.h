#pragma once

#include <array>
#include <functional>
#include <span>

#include "platform/flash/op.h"
#include "platform/flash/stage.h"

namespace platform::flash {

class Interpreter;

// One block or function body while it runs: its bytes, its stack, what its names mean. Actions are
// functions over it (actions.h).
class ScriptRun {
 public:
  // self: the clip on whose behalf the script runs.
  ScriptRun(Interpreter& machine, ActionBlock block, std::uint32_t self)
      : machine_(machine), code_(block), self_(self), target_(self), thisValue_(ObjectRef{self}) {}

  [[nodiscard]] Interpreter& machine() { return machine_; }
  [[nodiscard]] Stage& stage();
  [[nodiscard]] int version();
  [[nodiscard]] ByteReader& code() { return code_; }

  // An empty stack gives undefined; one that is full ends the run. A text costs work by its length,
  // since whatever takes it may read all of it.
  Value pop();
  void push(Value value);
  [[nodiscard]] std::size_t stackSize() const { return stack_.size(); }
  // The next text of an action's operand.
  [[nodiscard]] QString decoded(ByteReader& operand);
  double popNumber() { return toNumber(pop(), version()); }
  QString popText() { return text(pop()); }
  // A truth value; version 4 knows only 1 and 0.
  void pushLogical(bool truth);
  // Cut off where it is too long.
  void pushText(QString text);
  // Like toText, but knows the paths of clips.
  [[nodiscard]] QString text(const Value& value);

  // Null when it has been removed, or a target was set that does not exist.
  [[nodiscard]] Clip* target();
  [[nodiscard]] Container* container(const Value& value);
  // What the path leads to from the target.
  [[nodiscard]] Container* resolve(QStringView path);
  // The empty path is the clip that the script belongs to.
  void setTarget(const QString& path);

  [[nodiscard]] Value variable(const QString& name);
  void setVariable(const QString& name, const Value& value);
  // A variable of this function; outside of a function one of the target.
  void setLocal(const QString& name, const Value& value);
  [[nodiscard]] Value member(const Value& object, const QString& name);
  void setMember(const Value& object, const QString& name, const Value& value);

  [[nodiscard]] Value& reg(int number);

  // Null before the script has set any.
  using Constants = std::shared_ptr<const ConstantPool>;
  [[nodiscard]] const Constants& constants() const { return constants_; }
  void setConstants(Constants constants) { constants_ = std::move(constants); }

  // Goes on that many bytes after the present action.
  void jump(int offset);
  void end() { ended_ = true; }
  void endWith(Value result) {
    result_ = std::move(result);
    ended_ = true;
  }

 private:
  friend class Interpreter;

  [[nodiscard]] Container* find(std::uint32_t id);
  [[nodiscard]] Value ownMember(Container& owner, const QString& name);
  void setOwnMember(Container& owner, const QString& name, const Value& value);
  [[nodiscard]] Container* ownerOf(const QString& path, QString& name);

  Interpreter& machine_;
  ByteReader code_;
  std::uint32_t self_;
  std::uint32_t target_;  // 0: none
  Value thisValue_;
  Constants constants_;
  std::vector<Value> stack_;
  bool inFunction_ = false;
  QHash<QString, Value> locals_;  // by folded name
  std::vector<Value> registers_;  // of a function that has its own
  bool ended_ = false;
  Value result_;
};

// What one action does. operand holds the bytes that belong to it.
using Action = void (*)(ScriptRun& run, ByteReader& operand);
struct ActionRow {
  Op op;
  Action action;
};

// Runs scripts on a stage. An action that is unknown is skipped; a script that leads outside of its
// bytes, or uses up what its step may cost, ends.
class Interpreter {
 public:
  using CommandSink = std::function<void(const QString& command, const QString& args)>;

  // onCommand: takes the fscommands that scripts raise. It must not call back into the player.
  Interpreter(Stage& stage, CommandSink onCommand);

  void run(const QueuedScript& script);
  // The value that the function returns.
  Value call(const ScriptFunction& function, const Value& thisValue, std::vector<Value> arguments);

  [[nodiscard]] Stage& stage() { return stage_; }
  // The clip or button of that number as the running script may know it; null where it has gone.
  [[nodiscard]] Container* find(std::uint32_t id) const {
    return uponRemoval_ ? stage_.findRemoved(id) : stage_.find(id);
  }
  void raiseCommand(const QString& command, const QString& args);
  // The registers that blocks share which have none of their own.
  [[nodiscard]] std::span<Value> sharedRegisters() { return sharedRegisters_; }

 private:
  void execute(ScriptRun& run);
  void bindRegisters(ScriptRun& run, const ScriptFunction& function, const Value& thisValue);

  Stage& stage_;
  CommandSink onCommand_;
  std::array<Action, 256> actions_{};
  std::array<Value, 4> sharedRegisters_;
  int callDepth_ = 0;
  bool uponRemoval_ = false;  // the script belongs to a clip that has been removed
};

}  // namespace platform::flash
