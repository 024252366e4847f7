#pragma once

#include <QString>
#include <map>

#include "platform/base/printers.h"

namespace somme::inline condiviso {
class Ambiente;
}

namespace somme::inline stampa {

// A sheet in whole millimetres, as it is held; all three are -1 where no printer is open.
struct MisuraDelFoglio {
  qint32 larghezza = -1;
  qint32 altezza = -1;
  qint32 orientamento = -1;  // 1 upright, 2 across
};

// The printer that the print dialog works with: its name, what it can do, and its settings.
// Settings that were written are kept for each printer as long as this object lives.
class StampanteInUso {
 public:
  explicit StampanteInUso(Ambiente& ambiente) : ambiente_(ambiente) {}

  // Every printer of the system, and the one in use whether the system told it this time or not.
  [[nodiscard]] QStringList Elenco();
  // The name of the default printer; empty where there is none.
  [[nodiscard]] QString StampantePredefinita();
  // Opens the printer of the present name, or the default one, and reads its settings. False when
  // it cannot be opened, which it tells in a message box; throws ErroreDiStampa where there is no
  // printer to open.
  [[nodiscard]] bool ApriStampante();
  [[nodiscard]] MisuraDelFoglio MisuraFoglio() const;

  [[nodiscard]] const QString& nome() const { return nome_; }
  void ScegliNome(const QString& nome) { nome_ = nome; }
  // Whether an opening was tried at all.
  [[nodiscard]] bool cercata() const { return cercata_; }
  [[nodiscard]] bool aperta() const { return aperta_; }
  // Of an open printer only.
  [[nodiscard]] const platform::PrinterTraits& caratteristiche() const { return caratteristiche_; }
  [[nodiscard]] const platform::PrinterSettings& impostazioni() const { return impostazioni_; }
  // Takes the settings and hands them to the printer, for this dialog.
  void ScriviImpostazioni(const platform::PrinterSettings& impostazioni);
  void ScriviOrientamento(int orientamento);

 private:
  [[nodiscard]] platform::Printers::List Chiedi();
  void Messaggio(const QString& testo, const QString& titolo);

  Ambiente& ambiente_;
  QString nome_;
  bool cercata_ = false;
  bool aperta_ = false;
  platform::PrinterTraits caratteristiche_;
  platform::PrinterSettings impostazioni_;
  std::map<QString, platform::PrinterSettings> scritte_;
};

}  // namespace somme::inline stampa
