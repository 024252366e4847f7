#pragma once

#include <QAccessible>
#include <QPointer>

#include "platform/flash/movie_view.h"

namespace platform::flash {

// A clip that a view offers, by its number among these, as assistive technology sees it.
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

}  // namespace platform::flash
