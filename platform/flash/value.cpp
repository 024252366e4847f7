#include "platform/flash/value.h"

#include <QStringView>
#include <cmath>
#include <limits>
#include <utility>

namespace platform::flash {

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr qsizetype kOverhead = 16;  // of a text, in characters

template <class... Handlers>
struct Visitor : Handlers... {
  using Handlers::operator()...;
};
template <class... Handlers>
Visitor(Handlers...) -> Visitor<Handlers...>;

bool isDigit(QChar c) {
  return c >= u'0' && c <= u'9';
}

// How many characters at the front make a decimal number; 0 for none.
qsizetype numberLength(const QString& text) {
  qsizetype at = 0;
  const auto digits = [&] {
    const qsizetype begin = at;
    while (at < text.size() && isDigit(text[at])) {
      ++at;
    }
    return at - begin;
  };
  if (at < text.size() && (text[at] == u'-' || text[at] == u'+')) {
    ++at;
  }
  qsizetype mantissa = digits();
  if (at < text.size() && text[at] == u'.') {
    ++at;
    mantissa += digits();
  }
  if (mantissa == 0) {
    return 0;
  }
  const qsizetype plain = at;
  if (at < text.size() && (text[at] == u'e' || text[at] == u'E')) {
    ++at;
    if (at < text.size() && (text[at] == u'-' || text[at] == u'+')) {
      ++at;
    }
    if (digits() == 0) {
      return plain;
    }
  }
  return at;
}

}  // namespace

void ConstantPool::add(QString text) {
  weight += text.size() + kOverhead;
  texts.push_back(std::move(text));
}

void ScriptFunction::addParameter(int reg, QString name) {
  weight += name.size() + kOverhead;
  parameters.push_back({reg, std::move(name)});
}

double numberOf(const QString& text, int version) {
  const QString trimmed = text.trimmed();
  const qsizetype length = numberLength(trimmed);
  if (length == 0 || (version >= 5 && length != trimmed.size())) {
    return version >= 5 ? kNan : 0;
  }
  return trimmed.left(length).toDouble();
}

QString numberText(double number) {
  if (std::isnan(number)) {
    return QStringLiteral("NaN");
  }
  if (std::isinf(number)) {
    return number > 0 ? QStringLiteral("Infinity") : QStringLiteral("-Infinity");
  }
  if (number == 0) {
    return QStringLiteral("0");
  }
  // All digits there are, and where the point belongs: 1.20000000000000e-07.
  constexpr int kMostDigits = 15;
  constexpr int kFirstLarge = 15;
  constexpr int kLastSmall = -6;
  const QString scientific = QString::number(std::abs(number), 'e', kMostDigits - 1);
  const qsizetype mark = scientific.indexOf(u'e');
  const int exponent = QStringView(scientific).sliced(mark + 1).toInt();
  QString digits = scientific.left(mark).remove(u'.');
  while (digits.size() > 1 && digits.back() == u'0') {
    digits.chop(1);
  }
  const QString sign = number < 0 ? QStringLiteral("-") : QString();
  if (exponent >= kFirstLarge || exponent <= kLastSmall) {
    const QString point = digits.size() > 1 ? QStringLiteral(".") : QString();
    return sign + digits.left(1) + point + digits.mid(1) + u'e' +
           (exponent > 0 ? QStringLiteral("+") : QString()) + QString::number(exponent);
  }
  if (exponent < 0) {
    return sign + QStringLiteral("0.") + QString(-exponent - 1, u'0') + digits;
  }
  if (digits.size() <= exponent + 1) {
    return sign + digits.leftJustified(exponent + 1, u'0');
  }
  return sign + digits.left(exponent + 1) + u'.' + digits.mid(exponent + 1);
}

double toNumber(const Value& value, int version) {
  return std::visit(
      Visitor{[&](Undefined) { return version >= 7 ? kNan : 0.0; },
              [&](Null) { return version >= 7 ? kNan : 0.0; },
              [](bool flag) { return flag ? 1.0 : 0.0; }, [](double number) { return number; },
              [&](const QString& text) { return numberOf(text, version); },
              [](ObjectRef) { return kNan; }, [](const FunctionRef&) { return kNan; }},
      value);
}

QString toText(const Value& value, int version) {
  return std::visit(
      Visitor{[&](Undefined) { return version >= 7 ? QStringLiteral("undefined") : QString(); },
              [](Null) { return QStringLiteral("null"); },
              [](bool flag) { return flag ? QStringLiteral("true") : QStringLiteral("false"); },
              [](double number) { return numberText(number); },
              [](const QString& text) { return text; }, [](ObjectRef) { return QString(); },
              [](const FunctionRef&) { return QStringLiteral("[type Function]"); }},
      value);
}

bool toBoolean(const Value& value, int version) {
  if (const auto* text = std::get_if<QString>(&value); text != nullptr && version >= 7) {
    return !text->isEmpty();
  }
  if (std::holds_alternative<ObjectRef>(value) || std::holds_alternative<FunctionRef>(value)) {
    return true;
  }
  const double number = toNumber(value, version);
  return number != 0 && !std::isnan(number);
}

std::int32_t toInteger(const Value& value, int version) {
  const double number = toNumber(value, version);
  if (!std::isfinite(number)) {
    return 0;
  }
  constexpr double kModulus = 4294967296.0;
  double rest = std::fmod(std::trunc(number), kModulus);
  if (rest < 0) {
    rest += kModulus;
  }
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(rest));
}

bool looselyEqual(const Value& left, const Value& right, int version) {
  const auto isNothing = [](const Value& value) {
    return std::holds_alternative<Undefined>(value) || std::holds_alternative<Null>(value);
  };
  if (isNothing(left) || isNothing(right)) {
    return isNothing(left) && isNothing(right);
  }
  if (left.index() == right.index()) {
    return left == right;
  }
  return toNumber(left, version) == toNumber(right, version);
}

}  // namespace platform::flash
