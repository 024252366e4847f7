#include <algorithm>
#include <utility>

#include "platform/flash/interpreter.h"
#include "platform/flash/limits.h"
#include "platform/flash/properties.h"
#include "platform/flash/targets.h"

namespace platform::flash {

namespace {

// Nanoseconds to look up a name.
constexpr std::int64_t kNameWork = 100;
constexpr std::int64_t kNameCharacterWork = 5;

// What a text takes, in bytes.
std::size_t memoryOf(const QString& text) {
  constexpr std::size_t kOverhead = 80;
  return kOverhead + 2 * static_cast<std::size_t>(text.size());
}

}  // namespace

Container* ScriptRun::find(std::uint32_t id) {
  return machine_.find(id);
}

Stage& ScriptRun::stage() {
  return machine_.stage();
}

int ScriptRun::version() {
  return stage().movie().version;
}

Value ScriptRun::pop() {
  if (stack_.empty()) {
    return {};
  }
  Value value = std::move(stack_.back());
  stack_.pop_back();
  return value;
}

void ScriptRun::push(Value value) {
  constexpr std::int64_t kValueWork = 20;
  constexpr std::int64_t kCharacterWork = 30;  // it may be read as a number
  const auto* text = std::get_if<QString>(&value);
  stage().budget().spend(kValueWork + (text == nullptr ? 0 : kCharacterWork * text->size()));
  if (stack_.size() >= std::size_t(limits::kStackDepth)) {
    end();
    return;
  }
  stack_.push_back(std::move(value));
}

void ScriptRun::pushLogical(bool truth) {
  if (version() >= 5) {
    push(truth);
  } else {
    push(truth ? 1.0 : 0.0);
  }
}

void ScriptRun::pushText(QString text) {
  text.truncate(limits::kStringLength);
  stage().budget().hold(memoryOf(text));
  push(std::move(text));
}

QString ScriptRun::decoded(ByteReader& operand) {
  constexpr std::int64_t kTextWork = 60;
  constexpr std::int64_t kByteWork = 3;
  const QByteArrayView bytes = operand.string();
  if (!stage().budget().spend(kTextWork + kByteWork * bytes.size())) {
    return {};
  }
  QString text = stage().movie().decoded(bytes);
  stage().budget().hold(memoryOf(text));
  return text;
}

QString ScriptRun::text(const Value& value) {
  constexpr std::int64_t kNumberWork = 300;
  if (std::holds_alternative<double>(value)) {
    stage().budget().spend(kNumberWork);
  }
  if (std::holds_alternative<ObjectRef>(value)) {
    const Container* object = container(value);
    return object == nullptr ? QString() : dotPath(stage(), *object);
  }
  return toText(value, version());
}

Clip* ScriptRun::target() {
  return asClip(find(target_));
}

Container* ScriptRun::container(const Value& value) {
  const auto* object = std::get_if<ObjectRef>(&value);
  return object == nullptr ? nullptr : find(object->id);
}

Container* ScriptRun::resolve(QStringView path) {
  return resolveTarget(stage(), find(target_), path);
}

void ScriptRun::setTarget(const QString& path) {
  target_ = self_;
  if (!path.isEmpty()) {
    const Container* found = resolve(path);
    target_ = found == nullptr ? 0 : found->id;
  }
}

// Splits "a/b:name" and "a.b.name" into the owner and the name; null where the path leads nowhere.
Container* ScriptRun::ownerOf(const QString& path, QString& name) {
  const qsizetype colon = path.lastIndexOf(u':');
  const qsizetype split = colon >= 0 ? colon : path.lastIndexOf(u'.');
  name = path.mid(split + 1);
  const QStringView front = QStringView(path).first(std::max<qsizetype>(split, 0));
  if (front.isEmpty()) {
    return split == 0 ? find(stage().root().id) : find(target_);
  }
  if (front.startsWith(u"this") && inFunction_ &&
      (front.size() == 4 || front[4] == u'.' || front[4] == u'/')) {
    return resolveTarget(stage(), container(thisValue_),
                         front.sliced(std::min<qsizetype>(5, front.size())));
  }
  return resolve(front);
}

Value ScriptRun::ownMember(Container& owner, const QString& name) {
  stage().budget().spend(kNameWork + kNameCharacterWork * name.size());
  const auto stored = owner.variables.constFind(stage().movie().folded(name));
  if (stored != owner.variables.constEnd()) {
    return stored.value();
  }
  if (const Container* child = childNamed(stage(), owner, name)) {
    return ObjectRef{child->id};
  }
  const auto is = [&](QStringView word) { return name.compare(word, Qt::CaseInsensitive) == 0; };
  if (is(u"_root") || is(u"_level0")) {
    return ObjectRef{stage().root().id};
  }
  if (is(u"_parent")) {
    return owner.parent == nullptr ? Value() : Value(ObjectRef{owner.parent->id});
  }
  if (const auto property = propertyOfName(name)) {
    return propertyOf(stage(), owner, *property);
  }
  return {};
}

void ScriptRun::setOwnMember(Container& owner, const QString& name, const Value& value) {
  stage().budget().spend(kNameWork + kNameCharacterWork * name.size());
  if (const auto property = propertyOfName(name)) {
    setPropertyOf(stage(), owner, *property, value);
  } else {
    stage().store(owner, name, value);
  }
}

Value ScriptRun::variable(const QString& name) {
  stage().budget().spend(kNameWork + kNameCharacterWork * name.size());
  if (name.compare(u"this", Qt::CaseInsensitive) == 0) {
    return thisValue_;
  }
  if (inFunction_) {
    const auto local = locals_.constFind(stage().movie().folded(name));
    if (local != locals_.constEnd()) {
      return local.value();
    }
  }
  if (name.contains(u'/') && !name.contains(u':')) {
    const Container* found = resolve(name);
    return found == nullptr ? Value() : Value(ObjectRef{found->id});
  }
  QString last;
  Container* owner = ownerOf(name, last);
  return owner == nullptr ? Value() : ownMember(*owner, last);
}

void ScriptRun::setVariable(const QString& name, const Value& value) {
  stage().budget().spend(kNameWork + kNameCharacterWork * name.size());
  const QString key = stage().movie().folded(name);
  if (const auto local = locals_.find(key); local != locals_.end()) {
    local.value() = value;
    return;
  }
  QString last;
  if (Container* owner = ownerOf(name, last)) {
    setOwnMember(*owner, last, value);
  }
}

void ScriptRun::setLocal(const QString& name, const Value& value) {
  constexpr std::size_t kLocalMemory = 150;
  if (inFunction_) {
    stage().budget().spend(kNameWork + kNameCharacterWork * name.size());
    stage().budget().hold(kLocalMemory + memoryOf(name));
    locals_.insert(stage().movie().folded(name), value);
  } else {
    setVariable(name, value);
  }
}

Value ScriptRun::member(const Value& object, const QString& name) {
  if (Container* owner = container(object)) {
    return ownMember(*owner, name);
  }
  if (const auto* text = std::get_if<QString>(&object);
      text != nullptr && name == QStringLiteral("length")) {
    return double(text->size());
  }
  return {};
}

void ScriptRun::setMember(const Value& object, const QString& name, const Value& value) {
  if (Container* owner = container(object)) {
    setOwnMember(*owner, name, value);
  }
}

Value& ScriptRun::reg(int number) {
  const std::span<Value> all =
      registers_.empty() ? machine_.sharedRegisters() : std::span<Value>(registers_);
  if (number < 0 || std::size_t(number) >= all.size()) {
    throw MovieError("a script names a register that it does not have", code_.position());
  }
  return all[std::size_t(number)];
}

void ScriptRun::jump(int offset) {
  code_.seek(static_cast<std::size_t>(static_cast<std::int64_t>(code_.position()) + offset));
}

}  // namespace platform::flash
