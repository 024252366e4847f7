#pragma once

#include <QString>
#include <functional>

namespace platform::inline forms {
class TextBox;
}

namespace somme::inline ingresso {
class TestoInputNumerico;
}

namespace somme::inline nucleo {

class FormaEsercizio;

// What the keys of a keyboard of digits lead to on a form, be it scanned or touched.
struct AzioniCifre {
  std::function<void(int cifra)> cifra;  // 0 to 9
  std::function<void()> cestino;
  std::function<QString()> scritto;  // what the digits have written so far
  std::function<void()> conferma;
  std::function<void()> avanti;
  std::function<void()> aiuto = [] {};  // nothing on forms without help
};

// Digits behind what stands in a text box, whose limit is not asked: what the program sets may pass
// it. The rest of the actions is the form's.
[[nodiscard]] AzioniCifre CifreIn(platform::TextBox& casella, AzioniCifre resto);

// The same by scanning: a full box takes no further digit.
[[nodiscard]] AzioniCifre CifreScanditeIn(platform::TextBox& casella, AzioniCifre resto);
// After a wrong answer the digits go into the hidden box, until the bin brings it back; what
// confirms is the box's own, too.
[[nodiscard]] AzioniCifre CifreScanditeIn(TestoInputNumerico& casella, AzioniCifre resto);

// The keys of a keyboard of digits. What a digit or the bin has written is told, since nobody typed
// it.
class TastiCifre {
 public:
  TastiCifre(FormaEsercizio& forma, AzioniCifre azioni);

  void Cifra(int cifra) const;
  void Cestino() const;
  void Conferma() const { azioni_.conferma(); }
  void Avanti() const { azioni_.avanti(); }
  void Aiuto() const { azioni_.aiuto(); }

 private:
  void Scrivi(const std::function<void()>& azione) const;

  FormaEsercizio& forma_;
  AzioniCifre azioni_;
};

}  // namespace somme::inline nucleo
