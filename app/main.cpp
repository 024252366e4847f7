#include <QApplication>
#include <QStandardPaths>
#include <array>
#include <optional>

#include "app/modulo1.h"
#include "app/shared/ambiente.h"
#include "app/shared/mod_language_support.h"
#include "app/tabella_forme.h"
#include "immagini/immagini.h"
#include "platform/base/chance.h"
#include "platform/devices/loopback_network.h"
#include "platform/devices/qt_time_source.h"
#include "platform/devices/system_devices.h"
#include "platform/devices/system_printers.h"
#include "platform/devices/system_process_end.h"
#include "platform/forms/appearance.h"
#include "platform/forms/bridge_messages.h"
#include "platform/forms/desktop_motion.h"
#include "platform/forms/fonts.h"
#include "platform/forms/pictures.h"
#include "platform/forms/qt_announcer.h"
#include "platform/forms/qt_message_boxes.h"
#include "platform/forms/qt_page_setup.h"
#include "platform/forms/session_end.h"
#include "platform/forms/window_system.h"
#include "printing/nome_formato_carta.h"
#include "printing/parole_pagina.h"

namespace {

// What message boxes stand over.
QWidget* FinestraInUso(somme::Ambiente& ambiente) {
  QWidget* modale = QApplication::activeModalWidget();
  return modale != nullptr ? modale : &ambiente.fondo.window();
}

// Where this user's settings go when the program's folder cannot be written.
QString CartellaUtente() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
         QStringLiteral("/somme");
}

// Fonts, colours and pictures.
void PreparaAspetto() {
  // A program that is carried about brings its own fonts.
  platform::addFontsIn(QCoreApplication::applicationDirPath() + QStringLiteral("/caratteri"));
  platform::applyAppearance(
      {somme::CartellaImmagini(), QStringLiteral("informazione"), QStringLiteral("attenzione")});
  somme::PreparaImmagini();
}

}  // namespace

// Only wiring: the real services, the ground, the entry routine.
int main(int /*argc*/, char* argv[]) {
  // The program takes no arguments. The toolkit's own would change its look.
  int quanti = 1;
  std::array<char*, 2> soloIlNome{argv[0], nullptr};
  platform::silenceLostReaders();
  std::optional<QApplication> programma;
  platform::onBestWindowSystem([&] { programma.emplace(quanti, soloIlNome.data()); });
  PreparaAspetto();

  platform::QtTimeSource tempo;
  platform::SeededChance sorte(0);
  const auto suono = platform::systemSound(QApplication::beep);
  platform::QtAnnouncer annunci;
  platform::Pictures immagini(somme::CartellaImmagini());
  const auto documenti = platform::systemDocuments();
  platform::SystemProcessEnd fine;
  const auto istanza = platform::systemInstanceLock(QCoreApplication::applicationFilePath());
  platform::SystemPrinters stampanti(
      tempo, {platform::PdfFolder::usualFolders(), [] { return QDateTime::currentDateTime(); }});
  platform::LoopbackNetwork rete;
  platform::DesktopMotion moto;

  // The message boxes speak the language of the whole that they are a part of, and stand over the
  // window in use.
  somme::Ambiente* tutto = nullptr;
  const auto sopra = [&tutto] { return FinestraInUso(*tutto); };
  platform::QtMessageBoxes messaggi([&tutto] { return somme::ParoleMessaggi(*tutto); }, sopra);
  platform::QtPageSetup pagina(
      [&tutto] { return somme::ParolePagina(*tutto); },
      [](const platform::Paper& carta) { return somme::NomeDellaCarta(carta); }, sopra);
  somme::Ambiente ambiente(
      {tempo, sorte, *suono, messaggi, annunci, immagini, *documenti, fine, *istanza, stampanti,
       pagina, rete, QCoreApplication::applicationDirPath(), CartellaUtente(), &moto},
      somme::LeForme());
  tutto = &ambiente;
  const platform::SessionEnd fineSessione(ambiente.fondo);

  somme::Avvia(ambiente);
  return QApplication::exec();
}
