#include "platform/flash/accessible_movie.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <algorithm>
#include <vector>

#include "platform/flash/accessible_clip.h"
#include "platform/flash/movie_view.h"

namespace platform::flash {

namespace {

class AccessibleMovie final : public QAccessibleWidget {
 public:
  explicit AccessibleMovie(MovieView& view) : QAccessibleWidget(&view, QAccessible::Graphic) {}
  ~AccessibleMovie() override {
    for (const Child& child : children_) QAccessible::deleteAccessibleInterface(child.id);
  }
  AccessibleMovie(const AccessibleMovie&) = delete;
  AccessibleMovie& operator=(const AccessibleMovie&) = delete;

  [[nodiscard]] int childCount() const override { return int(view().offeredClips().size()); }
  [[nodiscard]] QAccessibleInterface* child(int index) const override {
    return index < 0 || index >= childCount() ? nullptr : &clip(std::size_t(index));
  }
  [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
    for (int i = 0; i < childCount(); ++i) {
      AccessibleClip& found = clip(std::size_t(i));
      if (!found.state().invisible && found.rect().contains(x, y)) return &found;
    }
    return nullptr;
  }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
    const auto same = [child](const Child& known) { return known.clip == child; };
    const auto found = std::find_if(children_.begin(), children_.end(), same);
    return found == children_.end() ? -1 : int(found - children_.begin());
  }

  void tellOffered() {
    for (Child& known : children_) {
      const bool clickable = known.clip->isClickable();
      if (known.clickable == clickable) continue;
      known.clickable = clickable;
      QAccessibleEvent event(known.clip,
                             clickable ? QAccessible::ObjectShow : QAccessible::ObjectHide);
      QAccessible::updateAccessibility(&event);
    }
  }

 private:
  struct Child {
    AccessibleClip* clip;  // the toolkit's own, by its number
    QAccessible::Id id;
    bool clickable;  // as it was told last
  };

  [[nodiscard]] MovieView& view() const { return *static_cast<MovieView*>(widget()); }
  AccessibleClip& clip(std::size_t number) const {
    while (children_.size() <= number) {
      auto* made = new AccessibleClip(view(), int(children_.size()));
      const QAccessible::Id id = QAccessible::registerAccessibleInterface(made);
      children_.push_back({made, id, made->isClickable()});
    }
    return *children_[number].clip;
  }

  mutable std::vector<Child> children_;  // those that somebody has asked for
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
  auto* view = qobject_cast<MovieView*>(object);
  return view == nullptr ? nullptr : new AccessibleMovie(*view);
}

}  // namespace

void installMovieAccessibility() {
  // Qt itself sees to it that a factory is in its list but once.
  QAccessible::installFactory(makeInterface);
}

void tellOfferedClips(MovieView& view) {
  if (view.offeredClips().empty()) return;
  static_cast<AccessibleMovie*>(QAccessible::queryAccessibleInterface(&view))->tellOffered();
}

}  // namespace platform::flash
