#include "platform/flash/accessible_movie.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>
#include <algorithm>
#include <vector>

#include "platform/flash/movie_view.h"

namespace platform::flash {

namespace {

// A clip that a view offers, by its number among these.
class AccessibleClip final : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  AccessibleClip(MovieView& view, int number) : view_(&view), number_(std::size_t(number)) {}

  [[nodiscard]] bool isValid() const override { return offered() != nullptr; }
  [[nodiscard]] QObject* object() const override { return nullptr; }
  [[nodiscard]] QWindow* window() const override { return parent()->window(); }
  [[nodiscard]] QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(view_);
  }
  [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override {
    return nullptr;
  }
  [[nodiscard]] int childCount() const override { return 0; }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const override {
    return -1;
  }
  [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Button; }
  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name && isValid() ? offered()->name : QString();
  }
  [[nodiscard]] QRect rect() const override {
    if (!isValid()) return {};
    const QRect inView = view_->clipPlace(offered()->clip).toAlignedRect();
    return {view_->mapToGlobal(inView.topLeft()), inView.size()};
  }
  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state;
    state.invisible = !isThere();
    state.disabled = !view_ || !view_->isEnabled();
    return state;
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type != QAccessible::ActionInterface) return nullptr;
    return static_cast<QAccessibleActionInterface*>(this);
  }
  [[nodiscard]] QStringList actionNames() const override {
    return isThere() ? QStringList{pressAction()} : QStringList();
  }
  void doAction(const QString& action) override {
    if (action == pressAction() && isThere()) Q_EMIT view_->clipPressed(offered()->clip);
  }
  [[nodiscard]] QStringList keyBindingsForAction(const QString& /*action*/) const override {
    return {};
  }

  [[nodiscard]] bool isClickable() const {
    return isValid() && view_->isClickable(offered()->clip);
  }

 private:
  [[nodiscard]] const MovieView::OfferedClip* offered() const {
    return view_ && number_ < view_->offeredClips().size() ? &view_->offeredClips()[number_]
                                                           : nullptr;
  }
  [[nodiscard]] bool isThere() const { return isClickable() && view_->isVisible(); }

  QPointer<MovieView> view_;
  std::size_t number_;
};

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
