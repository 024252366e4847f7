#include "support/risposta_giusta.h"

#include <QRegularExpression>

#include "input/tastiera_hdu_scansione.h"
#include "input/tastiera_numerica_scansione.h"
#include "support/come_dal_menu.h"
#include "support/scansione_di_prova.h"
#include "support/tocchi.h"

namespace prova {

namespace {

using somme::Famiglia;
using somme::Modo;
using somme::SchedaForma;
using somme::TastieraHDUScansione;
using somme::TastieraNumericaScansione;
using somme::Tasto;

// A case of the boards without a carry: its level, the bound of the level's draw, and the addends.
struct CasoDelleTavole {
  Famiglia famiglia;
  qint16 tipo;
  int limite;
  int addendo1;
  int addendo2;
};
constexpr auto kCasi = std::to_array<CasoDelleTavole>({
    {Famiglia::BlocchiDecine, 3, 99, 12, 23},
    {Famiglia::BlocchiCentinaia, 6, 988, 112, 223},
    {Famiglia::Abaco, 19, 9888, 1112, 2223},
});

// How a kind of block or bead is put by each way of input, and what it is worth.
struct Genere {
  int vale;
  const char* pulsante;
  qint16 tasto;
  Tasto sulFoglio;
};
constexpr auto kGeneri = std::to_array<Genere>({
    {1000, nullptr, TastieraHDUScansione::kMigliaia, Tasto::Migliaia},
    {100, "PulsanteH", TastieraHDUScansione::kCentinaia, Tasto::Centinaia},
    {10, "PulsanteDa", TastieraHDUScansione::kDecine, Tasto::Decine},
    {1, "PulsanteU", TastieraHDUScansione::kUnita, Tasto::Unita},
});

class Mano {
 public:
  Mano(Banco& banco, std::string_view nome)
      : banco_(banco), scheda_(SchedaDi(banco.ambiente->forme, nome)) {
    apri();
  }

  std::function<void()> risponde(Risposta quale) {
    giusta_ = quale == Risposta::Giusta;
    const int vera = risposta();
    const QString numero = QString::number(giusta_ ? vera : vera > 0 ? vera - 1 : vera + 1);
    switch (scheda_.modo) {
      case Modo::Scansione:
        return scandendo(numero);
      case Modo::Tocco:
        return toccando(numero);
      default:
        return aMano(numero);
    }
  }

 private:
  void apri() {
    somme::StatoCondiviso& stato = banco_.ambiente->stato;
    ComeDalMenu(*banco_.ambiente, scheda_.nome);
    if (scheda_.modo == Modo::Scansione) stato.ModalitaInput = somme::kScansioneManuale;
    for (const CasoDelleTavole& caso : kCasi) {
      if (caso.famiglia != scheda_.famiglia) continue;
      stato.TipoEsercizio = caso.tipo;
      const int somma = caso.addendo1 + caso.addendo2;
      banco_.sorte.scrivi({{somma - 1, caso.limite}, {caso.addendo1, somma}});
    }
    banco_.mostra(scheda_.nome);
    if (scheda_.modo != Modo::Tocco) return;
    banco_.rete.manda("OK");
    banco_.messaggi.mostrati.clear();
  }

  // What is asked for, out of the question as it has been told.
  [[nodiscard]] int risposta() const {
    if (HaTavole(scheda_)) return banco_.ambiente->stato.Totale;
    static const QRegularExpression domanda(
        QStringLiteral("(\\d+|[_?]+) \\+ (\\d+|[_?]+) =(?: (\\d+|[_?]+))?"));
    const auto trovata = domanda.match(banco_.annunci.detti.join(u'\n'));
    if (!trovata.hasMatch()) throw std::logic_error("no question has been told");
    const int a = trovata.captured(1).toInt();
    const int b = trovata.captured(2).toInt();
    const int somma = trovata.captured(3).toInt();
    return somma == 0 ? a + b : somma - a - b;
  }

  [[nodiscard]] platform::Control* controllo(const QString& nome) const {
    for (platform::Control* uno : banco_.ambiente->fondo.forms().current()->controls()) {
      if (uno->name() == nome) return uno;
    }
    return nullptr;
  }
  void clicca(const char* nome) { banco_.clicca(*controllo(QLatin1String(nome))); }

  [[nodiscard]] std::array<int, 2> addendi() const {
    return {banco_.ambiente->stato.Addendo1, banco_.ambiente->stato.Addendo2};
  }
  // Puts a number, block by block or bead by bead.
  static void metti(int numero, const std::function<void(const Genere&)>& uno) {
    for (const Genere& genere : kGeneri) {
      for (int i = 0; i < numero / genere.vale % 10; ++i) uno(genere);
    }
  }

  [[nodiscard]] bool suiBlocchi() const {
    return scheda_.famiglia == Famiglia::BlocchiDecine ||
           scheda_.famiglia == Famiglia::BlocchiCentinaia;
  }

  std::function<void()> aMano(const QString& numero) {
    for (const char* array : {"PulsanteNumero", "Numero"}) {
      platform::Control* cella =
          controllo(QStringLiteral("%1(%2)").arg(QLatin1String(array), numero));
      if (cella != nullptr) return [this, cella] { banco_.clicca(*cella); };
    }
    if (suiBlocchi()) {
      for (const int addendo : addendi()) {
        metti(addendo, [this](const Genere& genere) { clicca(genere.pulsante); });
        clicca("PulsanteConferma");
      }
    }
    banco_.scrivi(numero);
    return [this] { banco_.batti(Qt::Key_Return); };
  }

  // Brings the light of the keyboard on the screen to a key.
  void illumina(int tasto) {
    for (platform::Control* uno : banco_.ambiente->fondo.forms().current()->controls()) {
      auto* tastiera = dynamic_cast<somme::TastieraScansione*>(uno);
      if (tastiera == nullptr || !tastiera->isVisible()) continue;
      for (int i = 0; i <= tastiera->numeroPulsanti(); ++i) {
        if (tastiera->pulsanteAcceso() == tasto) return;
        banco_.batti(Qt::Key_Space);
      }
    }
    throw std::logic_error("no key of that kind is lit");
  }
  void scegli(int tasto) {
    illumina(tasto);
    banco_.batti(Qt::Key_Return);
  }
  std::function<void()> scandendo(const QString& numero) {
    if (suiBlocchi()) {
      for (const int addendo : addendi()) {
        metti(addendo, [this](const Genere& genere) { scegli(genere.tasto); });
        scegli(TastieraHDUScansione::kConferma);
      }
    } else if (HaTavole(scheda_)) {
      scegli(TastieraHDUScansione::kConferma);
    }
    for (const QChar cifra : numero) scegli(cifra.digitValue());
    illumina(TastieraNumericaScansione::kConferma);
    return [this] { banco_.batti(Qt::Key_Return); };
  }

  std::function<void()> toccando(const QString& numero) {
    const auto tocca = [this](const Genere& genere) { prova::tocca(banco_, genere.sulFoglio); };
    const int errore = giusta_ ? 0 : 1;
    if (suiBlocchi()) {
      metti(addendi()[0] - errore, tocca);
      if (giusta_) {
        prova::tocca(banco_, Tasto::Conferma);
        metti(addendi()[1], tocca);
      }
    } else if (HaTavole(scheda_)) {
      metti(addendi()[0] + addendi()[1] - errore, tocca);
    } else {
      toccaNumero(banco_, numero);
    }
    return [this] { prova::tocca(banco_, Tasto::Conferma); };
  }

  Banco& banco_;
  SchedaForma scheda_;
  bool giusta_ = true;
};

}  // namespace

std::function<void()> FinoAllUltimoGesto(Banco& banco, std::string_view nome, Risposta quale) {
  const auto mano = std::make_shared<Mano>(banco, nome);
  const std::function<void()> ultimo = mano->risponde(quale);
  return [mano, ultimo] { ultimo(); };
}

}  // namespace prova
