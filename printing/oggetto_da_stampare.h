#pragma once

#include <QString>
#include <variant>

class QObject;
class QWidget;

namespace platform::inline forms {
class Control;
class Form;
}

namespace somme::inline stampa {

// What is handed over for printing: a form, a control, or nothing at all; an object of any other
// kind is refused.
using OggettoDaStampare =
    std::variant<std::monostate, platform::Form*, platform::Control*, QObject*>;

// What such an object is called, and its window; none where it has not got one.
struct FinestraDaStampare {
  QString nome;
  QWidget* widget = nullptr;
};

// Throws ErroreDiStampa for an object of the wrong kind.
[[nodiscard]] FinestraDaStampare FinestraDi(const OggettoDaStampare& oggetto);

}  // namespace somme::inline stampa
