#include "exercises/bars/forma_barre_pulsanti.h"

#include "app/shared/nomi_forme.h"
#include "exercises/bars/disegno_barre.h"

namespace somme::inline barre {

using namespace disegno;

namespace {

constexpr Row Numero(int i, double sinistra, std::string_view testo) {
  return row<&FormaBarrePulsanti::PulsanteNumero>(
      i, {sinistra, 4920, 800, 645},
      {.caption = testo, .font = {Face::Arial, 20.25, true}, .back = kRosso});
}

constexpr auto kSomma = SommaScritta(2880, 120);
constexpr auto kBarre = Barre(360, 1080, 0, 705);
constexpr auto kControlli = std::to_array<Row>({
    Numero(0, 360, "0"),
    Numero(1, 1335, "1"),
    Numero(2, 2295, "2"),
    Numero(3, 3255, "3"),
    Numero(4, 4215, "4"),
    Numero(5, 5175, "5"),
    Numero(6, 6135, "6"),
    Numero(7, 7080, "7"),
    Numero(8, 8040, "8"),
    Numero(9, 9000, "9"),
    Numero(10, 9960, "10"),
    Consegna(5760, "--"),
    Aiuto<FormaBarrePulsanti>({6840, 6360, 1935, 975}),
    Avanti<FormaBarrePulsanti>({8880, 6360, 1935, 975}),
    Si({360, 6360, 855, 855}),
    No({360, 6360, 855, 855}),
    Esatti({1560, 6480, 2415, 360}),
    Errati({1560, 6840, 2415, 360}),
    Pannello({0, 0, 11175, 7695}),
    Elenco({360, 240, 5775, 6975}),
    Stampa({7440, 4680, 2580, 1155}),
    Chiudi({7440, 6240, 2580, 1155}),
});

constexpr auto kMenuProprio = std::to_array<Row>({
    item<&FormaBarrePulsanti::mnuTastiera>({.caption = "&Utilizza la tastiera"}),
    item<&FormaBarrePulsanti::mnuEsci>({.caption = "&Esci"}),
});

constexpr std::array<std::span<const Row>, 5> kTavole{kSomma, kBarre, kControlli, kMenuBarre,
                                                      kMenuProprio};

}  // namespace

constexpr VarianteBarre kBarrePulsanti10{.titolo = &StringheCondivise::TitoloFinoAl10,
                                         .larghezza = 11145,
                                         .altezza = 7650,
                                         .tavole = kTavole};

FormaBarrePulsanti::FormaBarrePulsanti(Ambiente& ambiente, std::string_view nome,
                                       const VarianteBarre& variante)
    : FormaBarre(ambiente, nome, variante) {
  mnuTastiera.onClick([this] { VaiA(forme::kFormBarre10Tastiera); });
}

void FormaBarrePulsanti::onLoad() {
  FormaBarre::onLoad();
  comandi_.AlCaricamento();
  PulsanteNumero.forEach([this](platform::Button& pulsante) {
    numeri_.add(pulsante);
    pulsante.onClick([this, numero = pulsante.index()] { Rispondi(numero); });
  });
}

void FormaBarrePulsanti::NuovoCaso() {
  newCase();
  numeri_.setEnabled(stato().LimiteEsercizio + 1, true);
  if (PulsanteAvanti.hasFocus()) numeri_.focusAgain();
  PulsanteAvanti.setEnabled(false);
  NascondiAiuti();
  GeneraPerTipo();
}

void FormaBarrePulsanti::Chiedi(const DomandaBarre& domanda) {
  for (int i = 0; i <= stato().LimiteEsercizio; ++i) {
    PulsanteNumero[i].setBackColor(domanda.colore);
  }
}

void FormaBarrePulsanti::Rispondi(int numero) {
  switch (partita().Scegli(numero)) {
    case Esito::Sbagliato:
      SegnaSbagliato([this, numero] {
        PulsanteNumero[numero].setEnabled(false);
        PulsanteNumero[numero].markAnswer(platform::AnswerMark::Wrong);
      });
      break;
    case Esito::Risolto:
      RispostaGiusta(numero);
      break;
    default:
      break;
  }
}

void FormaBarrePulsanti::RispostaGiusta(int numero) {
  comandi_.SegnaRisolto();
  for (int i = 0; i <= stato().LimiteEsercizio; ++i) {
    if (i != numero) PulsanteNumero[i].setBackColor(kGrigio);
  }
  PulsanteNumero[numero].markAnswer(platform::AnswerMark::Right);
  numeri_.setEnabled(stato().LimiteEsercizio + 1, false);
  PulsanteAvanti.setFocus();
}

}  // namespace somme::inline barre
