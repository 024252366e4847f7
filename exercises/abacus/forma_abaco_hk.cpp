#include "exercises/abacus/forma_abaco_hk.h"

#include "app/shared/modulo_colori_suoni.h"
#include "exercises/abacus/disegno_abaco.h"
#include "exercises/core/testo_cifre.h"
#include "platform/base/numbers.h"
#include "platform/forms/accessible.h"

namespace somme::inline abaco {

using namespace disegno;

namespace {

constexpr Row Cifra(int indice, double sinistra) {
  return row<&FormaAbacoHK::Label2>(
      indice, {sinistra, 120, 480, 735},
      {.font = {Face::Tahoma, 24}, .back = kWhite, .align = Align::Centre, .hidden = true});
}
constexpr Row ConFigura(Row riga, std::string_view dice, std::string_view disegno) {
  riga.look = {.toolTip = dice, .picture = disegno, .in = nameOf<&FormaAbacoHK::Picture1>};
  return riga;
}

constexpr auto kControlli = std::to_array<Row>({
    Connessione<FormaAbacoHK>(),
    Ancora({120, 1080, 7935, 6255}),
    Abaco({120, 1080, 7935, 6255}),
    Operazione({120, 120, 4815, 735}),
    Cifra(0, 5280),
    Cifra(1, 6000),
    Cifra(2, 6480),
    Cifra(3, 6960),
    row<&FormaAbacoHK::Picture1>({8400, 2520, 1935, 3480},
                                 {.toolTip = "Comandi dell'abaco", .border = true}),
    ConFigura(row<&FormaAbacoHK::PulsanteCestino>({240, 240, 1455, 1380}), "Svuota l'abaco",
              "cestino"),
    ConFigura(row<&FormaAbacoHK::PulsanteConferma>({240, 1860, 1455, 1380}), "Conferma",
              "conferma"),
    Avanti<FormaAbacoHK>({8400, 6360, 1935, 975}),
    Si({8940, 240, 855, 855}),
    No({8940, 240, 855, 855}),
    Esatti({8160, 1320, 2415, 375}),
    Errati({8160, 1695, 2415, 375}),
});

constexpr auto kFoglio = std::to_array<Row>({
    VoceFoglio<&FormaAbacoHK::mnuStampaHP>(),
});

constexpr std::array<std::span<const Row>, 4> kTavole{kControlli, kPannelloAbaco, kFoglio,
                                                      kMenuEsercizio};

}  // namespace

FormaAbacoHK::FormaAbacoHK(Ambiente& ambiente, std::string_view nome)
    : FormaAbaco(ambiente, DisegnoAbaco(nome, kTavole), PartitaAbaco::Cambi::Tasti),
      tocco_(*this, ControlloConnessione, mnuStampaHP, [this](Tasto tasto) { Agisci(tasto); }) {
  Usa(tocco_);
  PulsanteCestino.onClick([this] { Svuota(); });
  PulsanteConferma.onClick([this] { Conferma(); });
  PulsanteAvanti.onClick([this] { NuovoCaso(); });
}

void FormaAbacoHK::onLoad() {
  FormaAbaco::onLoad();
  ShockwaveFlash1.ignoreMouse();
  PulsanteAvanti.setVisible(true);
}

void FormaAbacoHK::NuovoCaso() {
  newCase();
  Label2.forEach([](platform::Label& cifra) { cifra.setVisible(false); });
  PulsanteAvanti.setEnabled(false);
  PulsanteConferma.setEnabled(true);
  EliminaNumeroSW1();
  GeneraCaso();
  ScriviCifre();
  ScriviDomanda();
}

void FormaAbacoHK::ScriviCifre() {
  const QString cifre = platform::formatPicture(stato().Totale, u"0000");
  for (int i = 0; i < Label2.count(); ++i) Label2[i].setCaption(cifre.mid(i, 1));
  LeggiInsieme(Label2, stato().Totale);
}

void FormaAbacoHK::MostraCifre() {
  const Cifre cifre = gioco().CifreDelTotale();
  for (std::size_t i = 0; i < kFerri.size(); ++i) {
    if (cifre[static_cast<std::size_t>(kFerri[i])]) Label2[static_cast<int>(i)].setVisible(true);
  }
}

void FormaAbacoHK::Agisci(Tasto tasto) {
  if (gioco().CambioInCorso()) return;
  switch (tasto) {
    case Tasto::Migliaia:
      InserisciMigliaio();
      break;
    case Tasto::Centinaia:
      InserisciCentinaio();
      break;
    case Tasto::Decine:
      InserisciDecina();
      break;
    case Tasto::Unita:
      InserisciUnita();
      break;
    case Tasto::CambioHK:
      CambioHK();
      break;
    case Tasto::CambioDaH:
      CambioDaH();
      break;
    case Tasto::CambioUDa:
      CambioUDa();
      break;
    case Tasto::Cestino:
      Svuota();
      break;
    case Tasto::Conferma:
      Conferma();
      break;
    case Tasto::Avanti:
      if (gioco().SiVaAvanti()) NuovoCaso();
      break;
    default:
      break;
  }
}

void FormaAbacoHK::Inserisci(Posto posto) {
  if (gioco().HaUso(posto)) {
    InserisciDaTasto(posto);
  } else {
    RiproduciSuono(ambiente(), QStringLiteral("no"));
  }
}

void FormaAbacoHK::Cambio(Posto da) {
  if (gioco().IniziaCambio(da)) Cambia(da);
}

void FormaAbacoHK::Conferma() {
  Giudica(gioco().Conferma());
}

void FormaAbacoHK::RispostaGiusta() {
  SegnaGiusto();
  PulsanteAvanti.setEnabled(true);
  MostraCifre();
  AggiungiSomma(platform::formatPicture(stato().Totale, u"###.###"));
  {
    // It is told when the focus comes there: now the verdict is to be heard.
    const platform::StatesToldLater poi;
    PulsanteConferma.setEnabled(false);
  }
  PulsanteAvanti.setFocus();
}

}  // namespace somme::inline abaco
