#include "exercises/abacus/form_abaco.h"

#include <algorithm>

#include "app/shared/mod_language_support.h"
#include "app/shared/nomi_forme.h"
#include "exercises/abacus/disegno_abaco.h"
#include "exercises/core/quantita.h"
#include "platform/base/numbers.h"

namespace somme {

using namespace disegno;

namespace {

constexpr Row Freccia(Row riga, std::string_view scritta, std::string_view dice) {
  riga.look = {.caption = scritta,
               .toolTip = dice,
               .font = {Face::Tahoma, 9},
               .hidden = true,
               .disabled = true,
               .picture = "freccia_cambio"};
  return riga;
}

constexpr auto kControlli = std::to_array<Row>({
    Ancora({120, 120, 7815, 5415}),
    Abaco({120, 120, 7815, 5415}),
    Operazione({120, 6720, 4815, 735}),
    Freccia(row<&FormAbaco::PulsanteCambioHK>({960, 5760, 1815, 735}), "10 h = 1 k",
            "Cambia 10 centinaia con 1 migliaio"),
    Freccia(row<&FormAbaco::PulsanteCambioDaH>({3240, 5760, 1815, 735}), "10 da = 1 h",
            "Cambia 10 decine con 1 centinaio"),
    Freccia(row<&FormAbaco::PulsanteCambioUDa>({5520, 5760, 1815, 735}), "10 u = 1 da",
            "Cambia 10 unità con 1 decina"),
    // Behind the arrows: a carry disables its arrow and leaves the focus to the box.
    row<&FormAbaco::TestoInput>({4915, 6720, 2407, 735},
                                {.toolTip = "Scrivi il numero e premi Invio"}),
    row<&FormAbaco::PulsanteCestino>({8640, 3000, 1455, 1095},
                                     {.toolTip = "Svuota l'abaco", .picture = "cestino"}),
    Avanti<FormAbaco>({8400, 6480, 1935, 975}),
    Si({8940, 240, 855, 855}),
    No({8940, 240, 855, 855}),
    Esatti({8160, 1320, 2415, 375}),
    Errati({8160, 1695, 2415, 375}),
});

constexpr std::array<std::span<const Row>, 3> kTavole{kControlli, kPannelloAbaco, kMenuAbaco};

constexpr FormDesign kDisegno = DisegnoAbaco(forme::kFormAbaco, kTavole);

// The levels, from and to, and the arrows that they show. An arrow that is hidden forbids its
// carry: ten beads stay on the spike.
struct FrecceDelLivello {
  int da, a;
  bool UDa, DaH, HK;
};
constexpr auto kFrecce = std::to_array<FrecceDelLivello>({
    {1, 1, false, false, false},
    {2, 5, true, false, false},
    {6, 6, false, false, false},
    {7, 7, true, false, false},
    {8, 8, false, true, false},
    {9, 14, true, true, false},
    {15, 15, false, false, false},
    {16, 23, true, true, true},
});

// The words of the movie and what they ask for; any other is ignored.
struct Parola {
  QLatin1String parola;
  void (*esegui)(FormAbaco& forma, const QString& clip);
};
constexpr auto kParole = std::to_array<Parola>({
    {QLatin1String("migliaioinattesa"),
     [](FormAbaco& f, const QString& clip) { f.InserisciMigliaio(clip); }},
    {QLatin1String("centinaioinattesa"),
     [](FormAbaco& f, const QString& clip) { f.InserisciCentinaio(clip); }},
    {QLatin1String("decinainattesa"),
     [](FormAbaco& f, const QString& clip) { f.InserisciDecina(clip); }},
    {QLatin1String("unitainattesa"),
     [](FormAbaco& f, const QString& clip) { f.InserisciUnita(clip); }},
    {QLatin1String("migliaioinserito"), [](FormAbaco& f, const QString&) { f.RimuoviMigliaio(); }},
    {QLatin1String("centinaioinserito"),
     [](FormAbaco& f, const QString&) { f.RimuoviCentinaio(); }},
    {QLatin1String("decinainserita"), [](FormAbaco& f, const QString&) { f.RimuoviDecina(); }},
    {QLatin1String("unitainserita"), [](FormAbaco& f, const QString&) { f.RimuoviUnita(); }},
});

// One bead of each kind, by its column.
constexpr std::array<Quantita, 4> kUnaPallina{
    {{.migliaia = 1}, {.centinaia = 1}, {.decine = 1}, {.unita = 1}}};

}  // namespace

FormAbaco::FormAbaco(Ambiente& ambiente) : ConAvanti(ambiente, kDisegno) {
  ShockwaveFlash1.onFsCommand(
      [this](const QString& command, const QString& args) { Ascolta(command, args); });
  PulsanteCambioUDa.onClick([this] { PremiFreccia(kPallineUnita); });
  PulsanteCambioDaH.onClick([this] { PremiFreccia(kPallineDecine); });
  PulsanteCambioHK.onClick([this] { PremiFreccia(kPallineCentinaia); });
  PulsanteCestino.onClick([this] { Svuota(); });
}

void FormAbaco::onLoad() {
  ConAvanti::onLoad();
  PulsanteAvanti.setVisible(true);
  OffriPalline();
}

// Each is called by what its press does: "1 decina da mettere".
void FormAbaco::OffriPalline() {
  const auto parola = [this](const char* chiave, const QString& italiana) {
    return ParolaLingua(ambiente(), QStringLiteral("Palline"), chiave, italiana);
  };
  const QString daMettere = parola("DaMettere", QStringLiteral("da mettere"));
  const QString daTogliere = parola("DaTogliere", QStringLiteral("da togliere"));
  std::vector<platform::Board::Offered> palline;
  for (const GenerePalline* genere : kGeneriPalline) {
    const QString una = InParole(ambiente(), kUnaPallina[genere->colonna]) + kSpazio;
    for (int i = 0; i < kPalline; ++i) {
      palline.push_back({NomeClip(genere->inAttesa, i), una + daMettere});
    }
    for (int i = 0; i < kPalline; ++i) {
      palline.push_back({NomeClip(genere->sulFerro, i), una + daTogliere});
    }
  }
  ShockwaveFlash1.offerClips(palline);
}

void FormAbaco::onActivate() {
  ApriAbaco();
  PosaTestoInput();
  TestoInput.setVisible(true);
  NuovoCaso();
}

void FormAbaco::NuovoCaso() {
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

void FormAbaco::ImpostaFrecce() {
  for (const FrecceDelLivello& frecce : kFrecce) {
    if (stato().TipoEsercizio < frecce.da || stato().TipoEsercizio > frecce.a) continue;
    PulsanteCambioUDa.setVisible(frecce.UDa);
    PulsanteCambioDaH.setVisible(frecce.DaH);
    PulsanteCambioHK.setVisible(frecce.HK);
  }
}

void FormAbaco::Ascolta(const QString& clip, const QString& parola) {
  const auto uguale = [&parola](const Parola& p) { return parola == p.parola; };
  const auto parole = std::find_if(kParole.begin(), kParole.end(), uguale);
  if (parole != kParole.end()) parole->esegui(*this, clip);
}

void FormAbaco::InserisciMigliaio(const QString& clip) {
  Inserisci(kPallineMigliaia, clip);
}

void FormAbaco::InserisciCentinaio(const QString& clip) {
  Inserisci(kPallineCentinaia, clip);
}

void FormAbaco::InserisciDecina(const QString& clip) {
  Inserisci(kPallineDecine, clip);
}

void FormAbaco::InserisciUnita(const QString& clip) {
  Inserisci(kPallineUnita, clip);
}

void FormAbaco::RimuoviMigliaio() {
  Rimuovi(kPallineMigliaia);
}

void FormAbaco::RimuoviCentinaio() {
  Rimuovi(kPallineCentinaia);
}

void FormAbaco::RimuoviDecina() {
  Rimuovi(kPallineDecine);
}

void FormAbaco::RimuoviUnita() {
  Rimuovi(kPallineUnita);
}

void FormAbaco::Inserisci(const GenerePalline& genere, const QString& clip) {
  qint16& inserite = this->*genere.inserite;
  // No bead waits any more, whatever the movie says: one more than ten comes by a carry alone.
  if (inserite > kPalline) return;
  const int nuova = inserite;
  inserite = platform::toInt16(inserite + 1);
  Mostra(genere.sulFerro, nuova, true);
  Sfuma(genere.sulFerro, nuova, kOpaca);
  if (!clip.isEmpty()) Mostra(clip, false);  // the empty name is that of the whole board
  const auto numero = static_cast<std::size_t>(platform::leadingNumber(clip.right(1)));
  PallineInAttesa[numero][genere.colonna] = false;
  if (platform::Button* freccia = Freccia(genere); freccia != nullptr && inserite == kPalline) {
    freccia->setEnabled(true);
  }
  Racconta();
}

void FormAbaco::Rimuovi(const GenerePalline& genere) {
  qint16& inserite = this->*genere.inserite;
  if (inserite == 0) return;
  int libera = 0;  // the first place beside the spike that has no bead
  while (libera < kPalline && PallineInAttesa[static_cast<std::size_t>(libera)][genere.colonna]) {
    ++libera;
  }
  if (libera < kPalline) PallineInAttesa[static_cast<std::size_t>(libera)][genere.colonna] = true;
  inserite = platform::toInt16(inserite - 1);
  // A tenth thousand comes by a carry alone and goes where nobody sees it.
  Mostra(genere.inAttesa, libera, &genere != &kPallineMigliaia || libera != 0);
  Sfuma(genere.inAttesa, libera, kOpaca);
  Mostra(genere.sulFerro, inserite, false);
  if (platform::Button* freccia = Freccia(genere); freccia != nullptr && inserite < kPalline) {
    freccia->setEnabled(false);
  }
  Racconta();
}

platform::Button* FormAbaco::Freccia(const GenerePalline& genere) {
  const std::array<platform::Button*, 4> frecce{nullptr, &PulsanteCambioHK, &PulsanteCambioDaH,
                                                &PulsanteCambioUDa};
  return frecce[genere.colonna];
}

void FormAbaco::PremiFreccia(const GenerePalline& da) {
  const GenerePalline& a = Superiore(da);
  if (this->*da.inserite < kPalline || this->*a.inserite == kPalline) return;
  Freccia(da)->setEnabled(false);
  Cambia(da, a);
  if (platform::Button* prossima = Freccia(a);
      prossima != nullptr && this->*a.inserite == kPalline) {
    prossima->setEnabled(true);
  }
}

}  // namespace somme
