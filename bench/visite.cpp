#include <malloc.h>

#include <QApplication>
#include <cstdio>
#include <stdexcept>
#include <string>

#include "app/shared/nomi_forme.h"
#include "app/tabella_forme.h"
#include "figura.h"
#include "printing/frm_avvia_stampa.h"
#include "support/banco.h"
#include "support/come_dal_menu.h"
#include "support/richiesta_del_foglio.h"

// Whether the program gives back what it takes: the live heap after a thousand visits to each form
// against that after ten, of two hundred to the sheets and the print dialog, and after a thousand
// activations of each board; of fewer in the short form.
//
//   visite [FORM]   one form alone, by its name
namespace {

using platform::Form;
using platform::Forms;

constexpr int kCaldo = 10;
constexpr bench::Limite kAmmesso = bench::alPiu(1.05);

const int kMolte = bench::quanti(1000, 13);
const int kMolteAlDialogo = bench::quanti(200, 13);  // each captures and scales the whole form

double kilobyte() {
  const struct mallinfo2 uso = mallinfo2();
  return static_cast<double>(uso.uordblks + uso.hblkhd) / 1024;
}

// Over which form a sheet is measured: the first that offers it; those for setting the keyboard,
// which no menu offers, over any of them.
std::string_view sottoIlFoglio(std::string_view foglio) {
  for (const somme::SchedaForma& scheda : somme::LeForme()) {
    if (scheda.foglio == foglio) return scheda.nome;
  }
  return somme::forme::kFormBarre10HK;
}

struct Sbagliata : std::runtime_error {
  using std::runtime_error::runtime_error;
};

class Visite {
 public:
  Visite() { banco_.mostra(somme::forme::kFormMenu); }

  // To the form and back, as its users go.
  void visita(const somme::SchedaForma& scheda) {
    using namespace somme::forme;
    const std::string_view nome = scheda.nome;
    if (EFoglio(scheda)) {
      conSotto(sottoIlFoglio(nome), nome, kMolteAlDialogo, [&] { foglio(nome); });
    } else if (nome == kFrmAvviaStampa) {
      conSotto(kFormBarre10, nome, kMolteAlDialogo, [&] { dialogo(); });
    } else {
      const std::string_view daCui = nome == kFormMenu ? kFormMenuBarre : kFormMenu;
      conSotto(daCui, nome, kMolte, [&] {
        vai(nome);
        vai(daCui);
      });
    }
  }

  // The form stays, and is activated again, as when the print dialog over it has gone.
  void attivazioni(std::string_view nome) {
    prova::ComeDalMenu(*banco_.ambiente, nome);
    vai(nome);
    misura("heap after activations", nome, kMolte, [&] {
      forme().activateAgain();
      QCoreApplication::processEvents();
    });
    vai(somme::forme::kFormMenu);
  }

 private:
  [[nodiscard]] Forms& forme() const { return banco_.ambiente->fondo.forms(); }

  // Visits to a form from another one, which is on the screen between them.
  void conSotto(std::string_view sotto, std::string_view nome, int volte,
                const std::function<void()>& volta) {
    const somme::SchedaForma scheda = somme::SchedaDi(somme::LeForme(), sotto);
    const bool menu = scheda.genere != somme::Genere::Esercizio;
    prova::ComeDalMenu(*banco_.ambiente, menu ? nome : sotto);
    vai(sotto);
    misura("heap after visits", nome, volte, volta);
    vai(somme::forme::kFormMenu);
  }

  void vai(std::string_view nome) {
    try {
      if (forme().current()->name() != testo(nome)) forme().pass(*forme().current(), nome);
    } catch (const platform::Unwind&) {
      throw Sbagliata("the program ended");
    }
    QCoreApplication::processEvents();
    controlla(nome);
  }

  // From a handler of the form on the screen; the sheet opens the dialog, and goes with it.
  void foglio(std::string_view nome) {
    conIlDialogo(nome, [&] { forme().show(nome); });
  }

  void dialogo() {
    Form* sotto = forme().current();
    conIlDialogo(sotto->name().toStdString(), [&] {
      auto& dialogo =
          static_cast<somme::frmAvviaStampa&>(forme().loaded(somme::forme::kFrmAvviaStampa));
      const auto viva = dialogo.shared_from_this();
      (void)dialogo.StampaFCPB(prova::richiestaDelFoglio(*sotto));
    });
  }

  // Has a handler of the form on the screen open the dialog, sees `sopra` under it, and closes it.
  void conIlDialogo(std::string_view sopra, const std::function<void()>& apri) {
    Form& sotto = *forme().current();
    const std::string prima = sotto.name().toStdString();
    bool visto = false;
    banco_.tempo.after(0.1, [&] {
      QWidget* finestra = QApplication::activeModalWidget();
      if (finestra == nullptr) return;
      controlla(sopra);
      visto = true;
      finestra->close();
    });
    sotto.run(apri);
    QCoreApplication::processEvents();
    if (!visto) throw Sbagliata("the print dialog did not open");
    controlla(prima);
  }

  void controlla(std::string_view nome) const {
    const Form* forma = forme().current();
    if (forma == nullptr || forma->name() != testo(nome)) {
      throw Sbagliata("not on the screen: " + std::string(nome));
    }
  }

  static QString testo(std::string_view nome) {
    return QString::fromUtf8(nome.data(), qsizetype(nome.size()));
  }

  void misura(std::string_view cosa, std::string_view nome, int volte,
              const std::function<void()>& volta) {
    double caldo = 0;
    for (int i = 1; i <= volte; ++i) {
      volta();
      dimentica();
      if (i == kCaldo) caldo = kilobyte();
    }
    const double freddo = kilobyte();
    std::printf("%.*s: after %d %.0f KB, after %d %.0f KB\n", int(nome.size()), nome.data(), kCaldo,
                caldo, volte, freddo);
    bench::stampa({cosa, nome, freddo / caldo, "times that after ten", kAmmesso});
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

}  // namespace

int main(int argc, char* argv[]) {
  QApplication programma(argc, argv);
  Visite visite;
  int misurate = 0;
  for (const somme::SchedaForma& scheda : somme::LeForme()) {
    const std::string_view nome = scheda.nome;
    if (argc > 1 && nome != argv[1]) continue;
    ++misurate;
    try {
      visite.visita(scheda);
      if (HaTavole(scheda)) visite.attivazioni(nome);
    } catch (const Sbagliata& perche) {
      std::fprintf(stderr, "visite: %.*s: %s\n", int(nome.size()), nome.data(), perche.what());
      return 2;
    }
  }
  std::printf("%d forms visited\n", misurate);
  return misurate > 0 ? 0 : 1;
}
