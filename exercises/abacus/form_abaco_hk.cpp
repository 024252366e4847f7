#include "exercises/abacus/form_abaco_hk.h"

#include "app/shared/modulo_colori_suoni.h"
#include "app/shared/nomi_forme.h"
#include "exercises/abacus/disegno_abaco.h"
#include "platform/base/numbers.h"

namespace somme {

using namespace disegno;

namespace {

constexpr Row Cifra(int indice, double sinistra) {
  return row<&FormAbacoHK::Label2>(
      indice, {sinistra, 120, 480, 735},
      {.font = {Face::Tahoma, 24}, .back = kWhite, .align = Align::Centre, .hidden = true});
}
constexpr Row ConFigura(Row riga, std::string_view dice, std::string_view disegno) {
  riga.look = {.toolTip = dice, .picture = disegno, .in = nameOf<&FormAbacoHK::Picture1>};
  return riga;
}

constexpr auto kControlli = std::to_array<Row>({
    Connessione<FormAbacoHK>(),
    Ancora({120, 1080, 7935, 6255}),
    Abaco({120, 1080, 7935, 6255}),
    Operazione({120, 120, 4815, 735}),
    Cifra(0, 5280),
    Cifra(1, 6000),
    Cifra(2, 6480),
    Cifra(3, 6960),
    row<&FormAbacoHK::Picture1>({8400, 2520, 1935, 3480},
                                {.toolTip = "Comandi dell'abaco", .border = true}),
    ConFigura(row<&FormAbacoHK::PulsanteCestino>({240, 240, 1455, 1380}), "Svuota l'abaco",
              "cestino"),
    ConFigura(row<&FormAbacoHK::PulsanteConferma>({240, 1860, 1455, 1380}), "Conferma", "conferma"),
    Avanti<FormAbacoHK>({8400, 6360, 1935, 975}),
    Si({8940, 240, 855, 855}),
    No({8940, 240, 855, 855}),
    Esatti({8160, 1320, 2415, 375}),
    Errati({8160, 1695, 2415, 375}),
});

constexpr auto kFoglio = std::to_array<Row>({
    item<&FormAbacoHK::mnuStampaHP>({.caption = "Stampa Foglio Tastiera &HelpiKeys"}),
});

constexpr std::array<std::span<const Row>, 4> kTavole{kControlli, kPannelloAbaco, kFoglio,
                                                      kMenuAbaco};

constexpr FormDesign kDisegno = DisegnoAbaco(forme::kFormAbacoHK, kTavole);

// From which sum on a digit stands; the units always do.
constexpr std::array<int, 4> kDaTotale{1000, 100, 10, 0};

}  // namespace

FormAbacoHK::FormAbacoHK(Ambiente& ambiente)
    : ConHelpiKeys(Collega::DopoIlResizer, ambiente, kDisegno) {
  OffriFoglio(mnuStampaHP);
  PulsanteCestino.onClick([this] { Svuota(); });
  PulsanteConferma.onClick([this] { Conferma(); });
}

void FormAbacoHK::onLoad() {
  ConHelpiKeys::onLoad();
  PulsanteAvanti.setVisible(true);
}

void FormAbacoHK::DopoLaRichiesta() {
  ApriAbaco();
  NuovoCaso();
}

void FormAbacoHK::NuovoCaso() {
  newCase();
  CambioInCorso = false;
  Label2.forEach([](platform::Label& cifra) { cifra.setVisible(false); });
  PulsanteAvanti.setEnabled(false);
  PulsanteConferma.setEnabled(true);
  EliminaNumeroSW1();
  GeneraCaso();
  ScriviCifre();
  ScriviDomanda();
}

void FormAbacoHK::ScriviCifre() {
  const QString cifre = platform::formatPicture(stato().Totale, u"0000");
  for (int i = 0; i < Label2.count(); ++i) Label2[i].setCaption(cifre.mid(i, 1));
}

void FormAbacoHK::MostraCifre() {
  for (int i = 0; i < Label2.count(); ++i) {
    if (stato().Totale >= kDaTotale[static_cast<std::size_t>(i)]) Label2[i].setVisible(true);
  }
}

void FormAbacoHK::Agisci(Tasto tasto) {
  if (CambioInCorso) return;
  switch (tasto) {
    case Tasto::Migliaia:
      InserisciSeServe(1000, &FormAbacoHK::InserisciMigliaio);
      break;
    case Tasto::Centinaia:
      InserisciSeServe(100, &FormAbacoHK::InserisciCentinaio);
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
      if (PulsanteCestino.isEnabled()) Svuota();
      break;
    case Tasto::Conferma:
      if (PulsanteConferma.isEnabled()) Conferma();
      break;
    case Tasto::Avanti:
      if (PulsanteAvanti.isEnabled()) NuovoCaso();
      break;
    default:
      break;
  }
}

void FormAbacoHK::InserisciSeServe(int almeno, void (ConPallineATasti::*inserisci)()) {
  if (stato().Totale >= almeno) {
    (this->*inserisci)();
  } else {
    RiproduciSuono(ambiente(), QStringLiteral("no"));
  }
}

void FormAbacoHK::Cambio(const GenerePalline& da) {
  const GenerePalline& a = Superiore(da);
  if (this->*da.inserite < kPalline) return;
  CambioInCorso = true;
  if (this->*a.inserite >= kPalline) return;
  Cambia(da, a);
  CambioInCorso = false;
}

void FormAbacoHK::Conferma() {
  const int valore =
      MigliaiaInserite * 1000 + CentinaiaInserite * 100 + DecineInserite * 10 + UnitaInserite;
  if (valore != stato().Totale) {
    SegnaSbagliato();
    return;
  }
  SegnaGiusto();
  PulsanteAvanti.setEnabled(true);
  MostraCifre();
  AggiungiRiga(EtOperazione.caption() + stringhe().Spazio +
               platform::formatPicture(stato().Totale, u"###.###"));
  PulsanteConferma.setEnabled(false);
  PulsanteAvanti.setFocus();
}

}  // namespace somme
