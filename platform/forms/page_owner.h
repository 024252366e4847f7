#pragma once

#include <QColor>
#include <QWidget>
#include <optional>

namespace platform::inline forms {

struct FormDesign;

// Whose page it is: a form.
class PageOwner {
 public:
  virtual ~PageOwner() = default;
  [[nodiscard]] virtual const FormDesign& design() const = 0;
  // What the focus must stay in: the widget of a covering panel, or null.
  [[nodiscard]] virtual const QWidget* focusRoom() const = 0;
  // The colour of a covering panel, or nothing.
  [[nodiscard]] virtual std::optional<QColor> coverColor() const = 0;
  // The client area has another size.
  virtual void takeSize() = 0;
};

}  // namespace platform::inline forms
