#include "exercises/bars/forma_barre_hk.h"

#include "exercises/bars/disegno_barre_scritte.h"

namespace somme::inline barre {

using namespace disegno;

namespace {

constexpr auto& kRisposta = kRispostaScritta<FormaBarreHK>;
constexpr auto kSegno = std::to_array<Row>({Segno(120, 3600)});
constexpr auto kTocco = std::to_array<Row>({
    Connessione<FormaBarreHK>(),
    VoceFoglio<&FormaBarreHK::mnuStamopaHK>(),
});

constexpr std::array<std::span<const Row>, 8> kTavole10{
    kBarreScritte10,  kSommaSotto, kConsegnaSotto, kRisposta,
    kVerdettoScritte, kTocco,      kMenuBarre,     kEsciBarre};
constexpr std::array<std::span<const Row>, 9> kTavole20{
    kBarreScritte20,  kSegno, kSommaSotto, kConsegnaSotto, kRisposta,
    kVerdettoScritte, kTocco, kMenuBarre,  kEsciBarre};

constexpr double kAltezza = 7905;

}  // namespace

constexpr VarianteBarre kBarreHK10{.titolo = &StringheCondivise::TitoloFinoAl10,
                                   .larghezza = kLarghezzaBarreScritte,
                                   .altezza = kAltezza,
                                   .tavole = kTavole10};
constexpr VarianteBarre kBarreHK20{.titolo = &StringheCondivise::TitoloFinoAl20,
                                   .larghezza = kLarghezzaBarreScritte,
                                   .altezza = kAltezza,
                                   .tavole = kTavole20};

FormaBarreHK::FormaBarreHK(Ambiente& ambiente, std::string_view nome, const VarianteBarre& variante)
    : FormaBarre(ambiente, nome, variante),
      tasti_(*this, CifreIn(TestoInput, {.conferma = [this] { risposta_.Controlla(); },
                                         .avanti = [this] { NuovoCaso(); },
                                         .aiuto = [this] { Aiuta(); }})),
      tocco_(
          *this, ControlloConnessione, mnuStamopaHK, [this](Tasto tasto) { Agisci(tasto); },
          Collega::PrimaDelResizer) {
  Usa(tocco_);
}

void FormaBarreHK::Agisci(Tasto tasto) {
  AgisciSulleCifre(tasti_, tasto, partita().SiRisponde(), partita().SiVaAvanti());
}

void FormaBarreHK::Aiuta() {
  if (PulsanteAiuto.isEnabled()) MostraAiuto();
}

void FormaBarreHK::onLoad() {
  FormaBarre::onLoad();
  risposta_.AlCaricamento();
}

void FormaBarreHK::IniziaCasi() {
  EtichettaEsatti.setFontSize(EtichettaErrati.fontSize());
  NuovoCaso();
}

// The mark goes before anything else.
void FormaBarreHK::NuovoCaso() {
  NascondiSegno();
  risposta_.NuovoCaso();
}

}  // namespace somme::inline barre
