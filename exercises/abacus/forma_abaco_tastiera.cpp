#include "exercises/abacus/forma_abaco_tastiera.h"

#include <algorithm>

#include "app/shared/mod_language_support.h"
#include "exercises/abacus/casella_dietro.h"
#include "exercises/abacus/clip_abaco.h"
#include "exercises/abacus/disegno_abaco.h"
#include "exercises/core/in_parole.h"
#include "platform/base/numbers.h"

namespace somme::inline abaco {

using namespace disegno;

namespace {

// Without words of its own: its picture takes all of it.
constexpr Row Freccia(Row riga, std::string_view disegno, std::string_view dice) {
  riga.look = {.toolTip = dice,
               .font = {Face::Tahoma, 9},
               .hidden = true,
               .disabled = true,
               .picture = disegno};
  return riga;
}

constexpr auto kControlli = std::to_array<Row>({
    Ancora({120, 120, 7815, 5415}),
    Abaco({120, 120, 7815, 5415}),
    Operazione({120, 6720, 4815, 735}),
    Freccia(row<&FormaAbacoTastiera::PulsanteCambioHK>({960, 5760, 1815, 735}), "palline_h_k",
            "Cambia 10 centinaia con 1 migliaio"),
    Freccia(row<&FormaAbacoTastiera::PulsanteCambioDaH>({3240, 5760, 1815, 735}), "palline_da_h",
            "Cambia 10 decine con 1 centinaio"),
    Freccia(row<&FormaAbacoTastiera::PulsanteCambioUDa>({5520, 5760, 1815, 735}), "palline_u_da",
            "Cambia 10 unità con 1 decina"),
    // Behind the arrows: a carry disables its arrow and leaves the focus to the box.
    row<&FormaAbacoTastiera::TestoInput>(
        {4915, 6720, 2407, 735},
        {.toolTip = "Scrivi il numero e premi Invio", .label = nameOf<&FormaAbaco::EtOperazione>}),
    row<&FormaAbacoTastiera::PulsanteCestino>({8640, 3000, 1455, 1095},
                                              {.toolTip = "Svuota l'abaco", .picture = "cestino"}),
    Avanti<FormaAbacoTastiera>({8400, 6480, 1935, 975}),
    Si({8940, 240, 855, 855}),
    No({8940, 240, 855, 855}),
    Esatti({8160, 1320, 2415, 375}),
    Errati({8160, 1695, 2415, 375}),
});

constexpr std::array<std::span<const Row>, 3> kTavole{kControlli, kPannelloAbaco, kMenuEsercizio};

// The words of the movie and what they ask for; any other is ignored.
struct Parola {
  QLatin1String parola;
  void (FormaAbacoTastiera::*mossa)(const QString& clip);
};
constexpr auto kParole = std::to_array<Parola>({
    {QLatin1String("migliaioinattesa"), &FormaAbacoTastiera::InserisciMigliaio},
    {QLatin1String("centinaioinattesa"), &FormaAbacoTastiera::InserisciCentinaio},
    {QLatin1String("decinainattesa"), &FormaAbacoTastiera::InserisciDecina},
    {QLatin1String("unitainattesa"), &FormaAbacoTastiera::InserisciUnita},
    {QLatin1String("migliaioinserito"), &FormaAbacoTastiera::RimuoviMigliaio},
    {QLatin1String("centinaioinserito"), &FormaAbacoTastiera::RimuoviCentinaio},
    {QLatin1String("decinainserita"), &FormaAbacoTastiera::RimuoviDecina},
    {QLatin1String("unitainserita"), &FormaAbacoTastiera::RimuoviUnita},
});

}  // namespace

FormaAbacoTastiera::FormaAbacoTastiera(Ambiente& ambiente, std::string_view nome)
    : FormaAbaco(ambiente, DisegnoAbaco(nome, kTavole), PartitaAbaco::Cambi::Frecce) {
  ShockwaveFlash1.onFsCommand(
      [this](const QString& command, const QString& args) { Ascolta(command, args); });
  PulsanteCambioUDa.onClick([this] { PremiFreccia(Posto::Unita); });
  PulsanteCambioDaH.onClick([this] { PremiFreccia(Posto::Decine); });
  PulsanteCambioHK.onClick([this] { PremiFreccia(Posto::Centinaia); });
  PulsanteCestino.onClick([this] { Svuota(); });
  TestoInput.onConfermato(
      [this] { Giudica(gioco().Rispondi(TestoInput.ValoreInserito.toDouble())); });
  PulsanteAvanti.onClick([this] { NuovoCaso(); });
}

void FormaAbacoTastiera::onLoad() {
  FormaAbaco::onLoad();
  TestoInput.setVisible(false);
  PulsanteAvanti.setVisible(true);
  OffriPalline();
}

// Each is called by what its press does: "1 decina da mettere".
void FormaAbacoTastiera::OffriPalline() {
  const auto parola = [this](const char* chiave, const QString& italiana) {
    return ParolaLingua(ambiente(), QStringLiteral("Palline"), chiave, italiana);
  };
  const QString daMettere = parola("DaMettere", QStringLiteral("da mettere"));
  const QString daTogliere = parola("DaTogliere", QStringLiteral("da togliere"));
  std::vector<platform::Board::Offered> palline;
  for (const Posto posto : kFerri) {
    Quantita una;
    una[posto] = 1;
    const QString nome = InParole(ambiente(), una) + kSpazio;
    for (int i = 0; i < PartitaAbaco::kPalline; ++i) {
      palline.push_back({ClipInAttesa(posto, i), nome + daMettere});
    }
    for (int i = 0; i < PartitaAbaco::kPalline; ++i) {
      palline.push_back({ClipSulFerro(posto, i), nome + daTogliere});
    }
  }
  ShockwaveFlash1.offerClips(palline);
}

void FormaAbacoTastiera::MostraRisposta() {
  PosaDietro(TestoInput, EtOperazione);
  TestoInput.setVisible(true);
}

void FormaAbacoTastiera::NuovoCaso() {
  newCase();
  PulsanteAvanti.setEnabled(false);
  EliminaNumeroSW1();
  TestoInput.Enabled.set(true);
  letEventsRun();
  TestoInput.Reimposta();
  GeneraCaso();
  ScriviDomanda();
  TestoInput.setFocus();
}

void FormaAbacoTastiera::RispostaGiusta() {
  SegnaGiusto();
  PulsanteAvanti.setEnabled(true);
  TestoInput.Enabled.set(false);
  AggiungiSomma(TestoInput.TestoFormattato);
  PulsanteAvanti.setFocus();
}

void FormaAbacoTastiera::RispostaSbagliata() {
  SegnaSbagliato();
  TestoInput.TestoPerInput();
}

std::array<platform::Button*, 3> FormaAbacoTastiera::Frecce() {
  return {&PulsanteCambioUDa, &PulsanteCambioDaH, &PulsanteCambioHK};
}

void FormaAbacoTastiera::ImpostaFrecce() {
  const auto frecce = FrecceDelLivello(stato().TipoEsercizio);
  if (!frecce) return;
  for (std::size_t i = 0; i < frecce->size(); ++i) Frecce()[i]->setVisible((*frecce)[i]);
}

void FormaAbacoTastiera::AbilitaFrecce() {
  for (const Posto da : {Posto::Unita, Posto::Decine, Posto::Centinaia}) {
    Frecce()[static_cast<std::size_t>(da)]->setEnabled(gioco().FrecciaAttiva(da));
  }
}

void FormaAbacoTastiera::Ascolta(const QString& clip, const QString& parola) {
  const auto* parole = std::ranges::find(kParole, parola, &Parola::parola);
  if (parole != kParole.end()) (this->*parole->mossa)(clip);
}

void FormaAbacoTastiera::Inserisci(Posto posto, const QString& clip) {
  const auto numero = static_cast<int>(platform::leadingNumber(clip.right(1)));
  const std::optional<int> nuova = gioco().Inserisci(posto, numero);
  // No bead waits any more, whatever the movie says.
  if (!nuova) return;
  Mostra(ClipSulFerro(posto, *nuova), true);
  Sfuma(ClipSulFerro(posto, *nuova), kOpaca);
  if (!clip.isEmpty()) Mostra(clip, false);  // the empty name is that of the whole board
  AbilitaFrecce();
  Racconta();
}

void FormaAbacoTastiera::Rimuovi(Posto posto) {
  const auto tolta = gioco().Rimuovi(posto);
  if (!tolta) return;
  if (const std::optional<int> libera = tolta->inAttesa) {
    Mostra(ClipInAttesa(posto, *libera), PartitaAbaco::SiVedeInAttesa(posto, *libera));
    Sfuma(ClipInAttesa(posto, *libera), kOpaca);
  }
  Mostra(ClipSulFerro(posto, tolta->dalFerro), false);
  AbilitaFrecce();
  Racconta();
}

void FormaAbacoTastiera::PremiFreccia(Posto da) {
  if (!gioco().IniziaCambio(da)) return;
  AbilitaFrecce();
  Cambia(da);
  AbilitaFrecce();
}

}  // namespace somme::inline abaco
