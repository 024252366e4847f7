#include <QApplication>
#include <QStyleFactory>

#include "app/modulo1.h"
#include "app/shared/ambiente.h"
#include "app/shared/mod_language_support.h"
#include "app/tabella_forme.h"
#include "immagini/immagini.h"
#include "platform/base/chance.h"
#include "platform/devices/qt_time_source.h"
#include "platform/forms/accessible.h"
#include "platform/forms/appearance.h"
#include "platform/forms/qt_message_boxes.h"

// Only wiring: the real services, the ground, the entry routine.

namespace {
struct NoSound : platform::Sound {
  void play(const QString&) override {}
};
struct NoDocs : platform::Documents {
  void open(const QString&) override {}
};
struct End : platform::ProcessEnd {
  void end(int s) override { _exit(s); }
};
struct Lock : platform::InstanceLock {
  bool take() override { return true; }
};
}  // namespace

int main(int argc, char* argv[]) {
  QApplication programma(argc, argv);
  platform::applyAppearance();
  somme::PreparaImmagini();

  platform::QtTimeSource tempo;
  platform::SeededChance sorte(0);
  NoSound suono;
  NoDocs documenti;
  End fine;
  Lock istanza;
  somme::Ambiente* ambiente = nullptr;
  platform::QtMessageBoxes messaggi([&ambiente] { return somme::ParoleMessaggi(*ambiente); },
                                    [&ambiente] { return &ambiente->fondo.window(); });
  somme::Ambiente tutto(
      {tempo, sorte, suono, messaggi, documenti, fine, istanza,
       QCoreApplication::applicationDirPath()},
      [&ambiente](std::string_view nome) { return somme::CreaForma(*ambiente, nome); });
  ambiente = &tutto;
  somme::Avvia(tutto);
  return QApplication::exec();
}
