#pragma once

#include <QMenuBar>

namespace platform::inline forms {

// A menu bar inside the page, on every desktop. Its access keys are worked by the form, since the
// toolkit's own fire again and again while a key is held.
class MenuBar final : public QMenuBar {
  Q_OBJECT

 public:
  explicit MenuBar(QWidget* parent);

  // Acts as Alt with the key does: opens the menu, or triggers the item that has none.
  bool accessKey(QChar key);
  // Gives the bar and its menus the size of writing that belongs to a page of that height, in
  // pixels.
  void scaleTo(int pageHeight);
};

}  // namespace platform::inline forms
