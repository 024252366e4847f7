#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include "platform/flash/actions.h"

namespace platform::flash {

namespace {

// The operands of a binary action; the right one lies on top.
struct Pair {
  Value left, right;
};

Pair popPair(ScriptRun& run) {
  Value right = run.pop();
  return {run.pop(), std::move(right)};
}

std::pair<double, double> popNumbers(ScriptRun& run) {
  const double right = run.popNumber();
  return {run.popNumber(), right};
}

bool isText(const Value& value) {
  return std::holds_alternative<QString>(value);
}

void add(ScriptRun& run, ByteReader&) {
  const auto [left, right] = popNumbers(run);
  run.push(left + right);
}

// Joins when one side is a text or a clip.
void addTyped(ScriptRun& run, ByteReader&) {
  const Pair pair = popPair(run);
  const auto joins = [](const Value& value) {
    return isText(value) || std::holds_alternative<ObjectRef>(value) ||
           std::holds_alternative<FunctionRef>(value);
  };
  if (joins(pair.left) || joins(pair.right)) {
    run.pushText(run.text(pair.left) + run.text(pair.right));
  } else {
    run.push(toNumber(pair.left, run.version()) + toNumber(pair.right, run.version()));
  }
}

void subtract(ScriptRun& run, ByteReader&) {
  const auto [left, right] = popNumbers(run);
  run.push(left - right);
}

void multiply(ScriptRun& run, ByteReader&) {
  const auto [left, right] = popNumbers(run);
  run.push(left * right);
}

// By zero: a text in version 4, infinity or no number later.
void divide(ScriptRun& run, ByteReader&) {
  const auto [left, right] = popNumbers(run);
  if (right != 0) {
    run.push(left / right);
  } else if (run.version() < 5) {
    run.pushText(QStringLiteral("#ERROR#"));
  } else if (left == 0 || std::isnan(left)) {
    run.push(std::numeric_limits<double>::quiet_NaN());
  } else {
    run.push(std::copysign(std::numeric_limits<double>::infinity(), left));
  }
}

void modulo(ScriptRun& run, ByteReader&) {
  const auto [left, right] = popNumbers(run);
  run.push(std::fmod(left, right));
}

void increment(ScriptRun& run, ByteReader&) {
  run.push(run.popNumber() + 1);
}
void decrement(ScriptRun& run, ByteReader&) {
  run.push(run.popNumber() - 1);
}
void toWhole(ScriptRun& run, ByteReader&) {
  run.push(double(toInteger(run.pop(), run.version())));
}
void toNumberAction(ScriptRun& run, ByteReader&) {
  run.push(run.popNumber());
}
void toTextAction(ScriptRun& run, ByteReader&) {
  run.pushText(run.popText());
}

void equals(ScriptRun& run, ByteReader&) {
  const auto [left, right] = popNumbers(run);
  run.pushLogical(left == right);
}

void equalsTyped(ScriptRun& run, ByteReader&) {
  const Pair pair = popPair(run);
  run.push(looselyEqual(pair.left, pair.right, run.version()));
}

void equalsStrictly(ScriptRun& run, ByteReader&) {
  const Pair pair = popPair(run);
  run.push(pair.left == pair.right);
}

void less(ScriptRun& run, ByteReader&) {
  const auto [left, right] = popNumbers(run);
  run.pushLogical(left < right);
}

// Two texts by their characters, all else by numbers; what is no number compares as undefined.
void pushLess(ScriptRun& run, const Value& left, const Value& right) {
  if (isText(left) && isText(right)) {
    run.push(std::get<QString>(left) < std::get<QString>(right));
    return;
  }
  const double leftNumber = toNumber(left, run.version());
  const double rightNumber = toNumber(right, run.version());
  if (std::isnan(leftNumber) || std::isnan(rightNumber)) {
    run.push(Undefined{});
  } else {
    run.push(leftNumber < rightNumber);
  }
}

void lessTyped(ScriptRun& run, ByteReader&) {
  const Pair pair = popPair(run);
  pushLess(run, pair.left, pair.right);
}

void greaterTyped(ScriptRun& run, ByteReader&) {
  const Pair pair = popPair(run);
  pushLess(run, pair.right, pair.left);
}

void negate(ScriptRun& run, ByteReader&) {
  run.pushLogical(!toBoolean(run.pop(), run.version()));
}

void logicalAnd(ScriptRun& run, ByteReader&) {
  const Pair pair = popPair(run);
  run.pushLogical(toBoolean(pair.left, run.version()) && toBoolean(pair.right, run.version()));
}

void logicalOr(ScriptRun& run, ByteReader&) {
  const Pair pair = popPair(run);
  run.pushLogical(toBoolean(pair.left, run.version()) || toBoolean(pair.right, run.version()));
}

void stringAdd(ScriptRun& run, ByteReader&) {
  const QString right = run.popText();
  run.pushText(run.popText() + right);
}

void stringEquals(ScriptRun& run, ByteReader&) {
  const QString right = run.popText();
  run.pushLogical(run.popText() == right);
}

void stringLess(ScriptRun& run, ByteReader&) {
  const QString right = run.popText();
  run.pushLogical(run.popText() < right);
}

void stringLength(ScriptRun& run, ByteReader&) {
  run.push(double(run.popText().size()));
}

// Count, first character (from 1), text.
void stringExtract(ScriptRun& run, ByteReader&) {
  const int count = toInteger(run.pop(), run.version());
  const int first = std::max(1, toInteger(run.pop(), run.version()));
  run.pushText(run.popText().mid(first - 1, count));
}

constexpr std::array kArithmeticRows{
    ActionRow{Op::Add, add},
    ActionRow{Op::Add2, addTyped},
    ActionRow{Op::Subtract, subtract},
    ActionRow{Op::Multiply, multiply},
    ActionRow{Op::Divide, divide},
    ActionRow{Op::Modulo, modulo},
    ActionRow{Op::Increment, increment},
    ActionRow{Op::Decrement, decrement},
    ActionRow{Op::ToInteger, toWhole},
    ActionRow{Op::ToNumber, toNumberAction},
    ActionRow{Op::ToString, toTextAction},
    ActionRow{Op::Equals, equals},
    ActionRow{Op::Equals2, equalsTyped},
    ActionRow{Op::StrictEquals, equalsStrictly},
    ActionRow{Op::Less, less},
    ActionRow{Op::Less2, lessTyped},
    ActionRow{Op::Greater, greaterTyped},
    ActionRow{Op::Not, negate},
    ActionRow{Op::And, logicalAnd},
    ActionRow{Op::Or, logicalOr},
    ActionRow{Op::StringAdd, stringAdd},
    ActionRow{Op::StringEquals, stringEquals},
    ActionRow{Op::StringLess, stringLess},
    ActionRow{Op::StringLength, stringLength},
    ActionRow{Op::StringExtract, stringExtract},
};

}  // namespace

std::span<const ActionRow> arithmeticActions() {
  return kArithmeticRows;
}

}  // namespace platform::flash
