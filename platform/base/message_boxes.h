#pragma once

#include <QString>

namespace platform::inline base {

enum class BoxIcon { None, Information, Critical };
enum class BoxButtons { Ok, YesNo };
enum class BoxAnswer { Ok, Yes, No };

struct MessageBox {
  QString text;
  QString title;  // the program's where it is empty
  BoxIcon icon = BoxIcon::None;
  BoxButtons buttons = BoxButtons::Ok;
};

// Message boxes stop the handler that shows them until the user has answered; timers and sockets go
// on meanwhile.
class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  virtual BoxAnswer show(const MessageBox& box) = 0;
};

}  // namespace platform::inline base
