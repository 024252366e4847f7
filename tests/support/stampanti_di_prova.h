#pragma once

#include <deque>
#include <functional>
#include <map>

#include "platform/base/printers.h"

namespace prova {

// Upright sheets of a printer without unreachable margins.
[[nodiscard]] platform::Paper CartaA4();
[[nodiscard]] platform::Paper CartaA3();
// A colour printer that takes A4 and A3.
[[nodiscard]] platform::PrinterTraits StampanteDiProva(const platform::Paper& carta = CartaA4());

// Printers as a test writes them down; what is sent to them is kept. At the start there is one,
// "Prova", and it is the default.
class StampantiDiProva final : public platform::Printers {
 public:
  StampantiDiProva();

  [[nodiscard]] List list() override;
  [[nodiscard]] Opened open(const QString& name) override;
  [[nodiscard]] platform::PrintResult print(const platform::PrintJob& job) override;

  // No printer at all.
  void nessuna();
  void metti(const QString& nome, const platform::PrinterTraits& caratteristiche);

  List elenco;
  std::map<QString, Opened> stampanti;
  std::vector<platform::PrintJob> lavori;
  QStringList aperte;
  platform::PrintResult esito{17, true};
  platform::Printers* vere = nullptr;    // where a test asks real printers, these are asked
  std::function<void()> mentreRisponde;  // what happens while a printer lets the program wait
};

// The page set-up as a test answers it.
class PaginaDiProva final : public platform::PageSetup {
 public:
  [[nodiscard]] bool choose(const QString& printer, const platform::PrinterTraits& traits,
                            platform::PrinterSettings& settings) override;
  std::function<bool(platform::PrinterSettings&)> risposta;  // without one the user gives up
  QStringList chieste;
};

}  // namespace prova
