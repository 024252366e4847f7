#include "platform/flash/targets.h"

#include <algorithm>

#include "platform/flash/limits.h"
#include "platform/flash/stage.h"

namespace platform::flash {

namespace {

bool isSeparator(QChar c) {
  return c == u'/' || c == u'.' || c == u':';
}

// The front of the path up to a separator; takes it and the separator away.
QStringView takeStep(QStringView& path) {
  qsizetype end = 0;
  if (path.startsWith(u"..")) {
    end = 2;
  } else {
    while (end < path.size() && !isSeparator(path[end])) {
      ++end;
    }
  }
  const QStringView step = path.first(end);
  path = path.sliced(std::min(end + 1, path.size()));
  return step;
}

// Nanoseconds.
constexpr std::int64_t kCharacterWork = 3;
constexpr std::int64_t kStepWork = 60;
constexpr std::int64_t kCompareWork = 15;

QString pathFrom(const Stage& stage, const Instance& instance, QChar separator) {
  std::vector<const Instance*> steps;
  for (const Instance* at = &instance; at->parent != nullptr; at = at->parent) {
    steps.push_back(at);
  }
  QString path;
  for (auto at = steps.rbegin(); at != steps.rend() && path.size() < limits::kStringLength; ++at) {
    path.append(separator).append((*at)->name);
  }
  path.truncate(limits::kStringLength);
  stage.budget().spend(kStepWork + kCharacterWork * path.size());
  stage.budget().hold(2 * static_cast<std::size_t>(path.size()));
  return path;
}

}  // namespace

Container* childNamed(const Stage& stage, const Container& parent, QStringView name) {
  const Qt::CaseSensitivity sensitivity =
      stage.movie().version <= 6 ? Qt::CaseInsensitive : Qt::CaseSensitive;
  for (const auto& [depth, child] : parent.children) {
    const qsizetype compared = std::min(name.size(), child->name.size());
    if (!stage.budget().spend(kCompareWork + kCharacterWork * compared)) {
      break;
    }
    if (child->kind != Instance::Kind::Graphic && name.compare(child->name, sensitivity) == 0) {
      return asContainer(child.get());
    }
  }
  return nullptr;
}

Container* resolveTarget(const Stage& stage, Container* from, QStringView path) {
  Container* at = from;
  Container* root = stage.find(stage.root().id);
  if (path.startsWith(u'/')) {
    at = root;
    path = path.sliced(1);
  }
  while (at != nullptr && !path.isEmpty()) {
    const QStringView step = takeStep(path);
    if (!stage.budget().spend(kStepWork + kCharacterWork * step.size())) {
      return nullptr;
    }
    const auto is = [step](QStringView name) {
      return step.compare(name, Qt::CaseInsensitive) == 0;
    };
    if (is(u"_root") || is(u"_level0")) {
      at = root;
    } else if (is(u"..") || is(u"_parent")) {
      at = at->parent;
    } else if (!step.isEmpty() && !is(u"this")) {
      at = childNamed(stage, *at, step);
    }
  }
  return at;
}

QString slashPath(const Stage& stage, const Instance& instance) {
  return instance.parent == nullptr ? QStringLiteral("/") : pathFrom(stage, instance, u'/');
}

QString dotPath(const Stage& stage, const Instance& instance) {
  return QStringLiteral("_level0") + pathFrom(stage, instance, u'.');
}

}  // namespace platform::flash
