#include "platform/flash/accessible_movie.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "platform/flash/movie_view.h"

namespace platform::flash {

namespace {

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
  auto* view = qobject_cast<MovieView*>(object);
  return view == nullptr ? nullptr : new QAccessibleWidget(view, QAccessible::Graphic);
}

}  // namespace

void installMovieAccessibility() {
  // Qt itself sees to it that a factory is in its list but once.
  QAccessible::installFactory(makeInterface);
}

}  // namespace platform::flash
