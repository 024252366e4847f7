#pragma once

#include <QString>
#include <string_view>

#include "app/shared/scheda_forma.h"
#include "app/shared/stato_condiviso.h"
#include "app/shared/stringhe_condivise.h"
#include "platform/base/chance.h"
#include "platform/base/network.h"
#include "platform/base/printers.h"
#include "platform/base/profile_reader.h"
#include "platform/base/services.h"
#include "platform/forms/runtime.h"

namespace somme::inline condiviso {

// What the program needs from the world; a test hands in its own.
struct Servizi {
  platform::TimeSource& tempo;
  platform::Chance& sorte;
  platform::Sound& suono;
  platform::MessageBoxes& messaggi;
  platform::Announcer& annunci;
  platform::Pictures& immagini;
  platform::Documents& documenti;
  platform::ProcessEnd& fine;
  platform::InstanceLock& istanza;
  platform::Printers& stampanti;
  platform::PageSetup& pagina;  // how a printer prints, chosen by the user
  platform::Network& rete;
  QString cartella;  // the program's path: the executable's folder, links resolved
  // Where this user's settings go when that folder cannot be written; it need not exist.
  QString cartellaUtente;
  platform::Motion* moto = nullptr;  // none: nothing moves for show
  quint16 porta = 1050;              // where HelpiKeys listens
};

// Everything that a form reaches besides its own controls: the services, the shared state, the
// shared strings, the language files, what the forms are, and the ground that it stands on.
class Ambiente {
 public:
  // forme: every form of the program; the rows must outlive the whole.
  Ambiente(const Servizi& servizi, TabellaForme forme);
  // crea: makes the forms from their names in the place of the rows.
  Ambiente(const Servizi& servizi, TabellaForme forme, platform::Forms::Factory crea);

  Servizi servizi;
  TabellaForme forme;
  StatoCondiviso stato;
  StringheCondivise stringhe;
  platform::ProfileReader profili;
  platform::Runtime fondo;
};

// Makes a form of the program from its name, by its row; null for a name that the table does not
// have.
[[nodiscard]] std::shared_ptr<platform::Form> CreaForma(Ambiente& ambiente, std::string_view nome);

// The window's title, and that of message boxes without one of their own.
inline constexpr std::string_view kTitoloProgramma = "Esercitazioni sulle somme";
[[nodiscard]] QString TitoloProgramma();

}  // namespace somme::inline condiviso
