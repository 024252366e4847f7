#include "exercises/numbers/forma_numeri_hk.h"

#include "exercises/numbers/disegno_numeri.h"
#include "platform/base/numbers.h"

namespace somme::inline numeri {

using namespace disegno;

namespace {

constexpr auto kCasella = std::to_array<Row>({
    row<&FormaNumeriHK::TestoInput>({3240, 3600, 3015, 1095},
                                    {.toolTip = "Il numero che hai toccato",
                                     .font = {Face::Tahoma, 36},
                                     .align = Align::Centre,
                                     .border = true,
                                     .locked = true,
                                     .label = nameOf<&FormaNumeri::EtOperazione>}),
    Avanti<FormaNumeriHK>(kPostoAvantiNumeri),
    Connessione<FormaNumeriHK>(),
});

constexpr auto kFoglio = std::to_array<Row>({
    VoceFoglio<&FormaNumeriHK::mnuStampaHK>(),
});

constexpr std::array<std::span<const Row>, 5> kTavole{kDomandaNumeri, kCasella, kVerdettoNumeri,
                                                      kFoglio, kMenuEsercizio};

}  // namespace

FormaNumeriHK::FormaNumeriHK(Ambiente& ambiente, std::string_view nome,
                             const EsercizioNumeri& esercizio)
    : FormaNumeri(ambiente, nome, esercizio, kTavole, PartitaNumeri::Zero::NonSiGiudica),
      tasti_(*this, CifreIn(TestoInput, {.conferma = [this] { Giudica(Scritto()); },
                                         .avanti = [this] { NuovoCaso(); }})),
      tocco_(*this, ControlloConnessione, mnuStampaHK, [this](Tasto tasto) { Agisci(tasto); }) {
  Usa(tocco_);
  PulsanteAvanti.onClick([this] { NuovoCaso(); });
}

void FormaNumeriHK::Agisci(Tasto tasto) {
  AgisciSulleCifre(tasti_, tasto, partita().SiRisponde(), partita().SiVaAvanti());
}

void FormaNumeriHK::onLoad() {
  FormaNumeri::onLoad();
  PulsanteAvanti.setVisible(true);
}

void FormaNumeriHK::NuovoCaso() {
  newCase();
  if (esercizio().inizioHK == EsercizioNumeri::InizioHK::AbilitaCasella) {
    TestoInput.setEnabled(true);
    letEventsRun();
  }
  PulsanteAvanti.setEnabled(false);
  TestoInput.setText({});
  if (const auto cifre = GeneraCaso()) TestoInput.setMaxLength(*cifre);
  ScriviDomanda();
}

double FormaNumeriHK::Scritto() const {
  return platform::leadingNumber(TestoInput.text());
}

void FormaNumeriHK::RispostaGiusta() {
  TestoInput.setText(platform::formatPicture(Scritto(), u"### ###"));
  SegnaGiusto();
  PulsanteAvanti.setEnabled(true);
  ScriviRisolta(SommaFatta());
  PulsanteAvanti.setFocus();
}

}  // namespace somme::inline numeri
