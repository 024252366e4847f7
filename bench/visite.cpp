#include <malloc.h>

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "app/shared/nomi_forme.h"
#include "app/tabella_forme.h"
#include "printing/frm_avvia_stampa.h"
#include "support/banco.h"
#include "support/come_dal_menu.h"

// Whether the program gives back what it takes: the live heap after a thousand visits to each form
// against that after ten, and after a thousand activations of each board.
//
//   visite [FORM]   one form alone, by its name
namespace {

using platform::Form;
using platform::Forms;

constexpr int kCaldo = 10;
constexpr int kMolte = 1000;
constexpr double kAmmesso = 1.05;

double kilobyte() {
  const struct mallinfo2 uso = mallinfo2();
  return static_cast<double>(uso.uordblks + uso.hblkhd) / 1024;
}

class Visite {
 public:
  Visite() { banco_.mostra(somme::forme::kFormMenu); }

  // From the main menu to the form and back.
  bool visita(std::string_view nome) {
    prova::ComeDalMenu(banco_.ambiente->stato, nome);
    return misura("visits to", nome, [&] { unaVolta(nome); });
  }

  // The form stays, and is activated again, as when the print dialog over it has gone.
  bool attivazioni(std::string_view nome) {
    prova::ComeDalMenu(banco_.ambiente->stato, nome);
    vai(nome);
    Forms& forme = banco_.ambiente->fondo.forms();
    const bool bene = misura("activations of", nome, [&] {
      forme.activateAgain();
      QCoreApplication::processEvents();
    });
    vai(somme::forme::kFormMenu);
    return bene;
  }

 private:
  void vai(std::string_view nome) {
    Forms& forme = banco_.ambiente->fondo.forms();
    try {
      forme.pass(*forme.current(), nome);
    } catch (const platform::Unwind&) {
      std::fprintf(stderr, "the program ended\n");
      std::exit(2);
    }
    QCoreApplication::processEvents();
  }

  void unaVolta(std::string_view nome) {
    if (nome == somme::forme::kFormMenu) {
      vai(somme::forme::kFormMenuBarre);
    } else if (nome == somme::forme::kFrmAvviaStampa) {
      stampa();
      return;
    } else {
      vai(nome);
    }
    // A sheet prints itself: whoever uses it closes the dialog.
    vai(somme::forme::kFormMenu);
  }

  void stampa() {
    Forms& forme = banco_.ambiente->fondo.forms();
    Form& sotto = *forme.current();
    sotto.run([&] {
      auto& dialogo =
          static_cast<somme::frmAvviaStampa&>(forme.loaded(somme::forme::kFrmAvviaStampa));
      const auto viva = dialogo.shared_from_this();
      somme::frmAvviaStampa::Richiesta richiesta;
      richiesta.oggetto = &sotto;
      richiesta.larghezza = 420;
      richiesta.altezza = 297;
      richiesta.orientamento = 2;
      chiudiIlDialogo();
      (void)dialogo.StampaFCPB(richiesta);
    });
    QCoreApplication::processEvents();
  }

  void chiudiIlDialogo() {
    banco_.tempo.after(0.1, [] {
      if (QWidget* dialogo = QApplication::activeModalWidget()) dialogo->close();
    });
  }

  bool misura(const char* cosa, std::string_view nome, const std::function<void()>& volta) {
    double caldo = 0;
    for (int i = 1; i <= kMolte; ++i) {
      if (nome.starts_with("FormStampa")) chiudiIlDialogo();
      volta();
      dimentica();
      if (i == kCaldo) caldo = kilobyte();
    }
    const double freddo = kilobyte();
    std::printf("heap after %d %s %.*s: %.0f KB, after %d: %.0f KB: %.3f times (at most %.2f)\n",
                kCaldo, cosa, static_cast<int>(nome.size()), nome.data(), caldo, kMolte, freddo,
                freddo / caldo, kAmmesso);
    std::fflush(stdout);
    return freddo <= caldo * kAmmesso;
  }

  // What the services of the tests write down is no part of the program.
  void dimentica() {
    banco_.suono.suonati = {};
    banco_.messaggi.mostrati = {};
    banco_.rete.ricevuti = {};
    banco_.rete.porte = {};
    banco_.stampanti.aperte = {};
    banco_.stampanti.lavori = {};
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }

  prova::Banco banco_;
};

bool haTavole(std::string_view nome) {
  return nome.find("LU") != std::string_view::npos || nome.starts_with("FormAbaco");
}

}  // namespace

int main(int argc, char* argv[]) {
  QApplication programma(argc, argv);
  Visite visite;
  bool bene = true;
  for (const std::string_view nome : somme::NomiDelleForme()) {
    if (argc > 1 && nome != argv[1]) continue;
    bene = visite.visita(nome) && bene;
    if (haTavole(nome) && nome.starts_with("Form") && !nome.starts_with("FormStampa") &&
        !nome.starts_with("FormMenu")) {
      bene = visite.attivazioni(nome) && bene;
    }
  }
  return bene ? 0 : 1;
}
