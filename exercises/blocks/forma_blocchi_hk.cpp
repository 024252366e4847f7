#include "exercises/blocks/forma_blocchi_hk.h"

#include "exercises/blocks/disegno_pulsanti.h"
#include "exercises/core/testo_cifre.h"
#include "platform/base/numbers.h"

namespace somme::inline blocchi {

using namespace disegno;

namespace {

constexpr auto kPresa = std::to_array<Row>({Connessione<FormaBlocchiHK>()});

constexpr Row CifraRisultato(int indice, double sinistra) {
  return row<&FormaBlocchiHK::Label4>(
      indice, {sinistra, 5520, 975, 855},
      {.font = {Face::Tahoma, 36, true}, .align = Align::Centre, .hidden = true});
}
constexpr auto kRisultato = std::to_array<Row>({
    CifraRisultato(0, 4080),
    CifraRisultato(1, 5040),
    CifraRisultato(2, 6000),
    Avanti<FormaBlocchiHK>(kPostoAvantiBlocchi),
});

constexpr auto kFoglio = std::to_array<Row>({
    VoceFoglio<&FormaBlocchiHK::mnuStampaHK>(),
});

constexpr std::array<std::span<const Row>, 9> kTavole99{
    kPresa,         kTavoleBlocchi, kComandiEntro99<FormaBlocchiHK>,
    kCambioEntro99, kRisultato,     kContiBlocchi,
    kSottoBlocchi,  kFoglio,        kMenuEsercizio};
constexpr std::array<std::span<const Row>, 9> kTavole999{
    kPresa,         kTavoleBlocchi, kComandiEntro999<FormaBlocchiHK>,
    kCambiEntro999, kRisultato,     kContiBlocchi,
    kSottoBlocchi,  kFoglio,        kMenuEsercizio};

}  // namespace

constinit const VarianteBlocchi kBlocchiHK99{.esercizio = kBlocchiEntro99, .tavole = kTavole99};
constinit const VarianteBlocchi kBlocchiHK999{.esercizio = kBlocchiEntro999, .tavole = kTavole999};

FormaBlocchiHK::FormaBlocchiHK(Ambiente& ambiente, std::string_view nome,
                               const VarianteBlocchi& variante)
    : FormaBlocchi(ambiente, nome, variante),
      tocco_(*this, ControlloConnessione, mnuStampaHK, [this](Tasto tasto) { Agisci(tasto); }) {
  Usa(tocco_);
  PulsanteAvanti.onClick([this] { NuovoCaso(); });
}

void FormaBlocchiHK::onLoad() {
  FormaBlocchi::onLoad();
  PulsanteAvanti.setVisible(true);
  pulsanti.AlCaricamento();
}

void FormaBlocchiHK::Agisci(Tasto tasto) {
  switch (tasto) {
    case Tasto::Centinaia:
      pulsanti.ClicBlocco(Posto::Centinaia);
      break;
    case Tasto::Decine:
      pulsanti.ClicBlocco(Posto::Decine);
      break;
    case Tasto::Unita:
      pulsanti.ClicBlocco(Posto::Unita);
      break;
    case Tasto::CambioDaH:
      Cambia(Posto::Decine);
      break;
    case Tasto::CambioUDa:
      Cambia(Posto::Unita);
      break;
    case Tasto::Cestino:
      pulsanti.ClicCestino();
      break;
    case Tasto::Conferma:
      pulsanti.ClicConferma();
      break;
    case Tasto::Avanti:
      if (PulsanteAvanti.isVisible()) NuovoCaso();
      break;
    default:
      break;
  }
}

void FormaBlocchiHK::MettiComandi() {
  FormaBlocchi::MettiComandi();
  pulsanti.PrendiIlFuoco();
}

platform::Label& FormaBlocchiHK::EtichettaDi(Posto cifra) {
  return Label4[Label4.count() - 1 - static_cast<int>(cifra)];
}

void FormaBlocchiHK::NascondiRisultato() {
  Label4.forEach([](platform::Label& cifra) { cifra.setVisible(false); });
}

void FormaBlocchiHK::CasoFatto() {
  const Cifre cifre = partita().CifreDelRisultato();
  for (const Posto posto : esercizio().regole.specie) {
    const std::optional<int> cifra = cifre[static_cast<std::size_t>(posto)];
    EtichettaDi(posto).setCaption(cifra ? platform::plain(*cifra) : QString());
  }
  LeggiInsieme(Label4, stato().Totale);
}

void FormaBlocchiHK::ChiediRisultato() {
  for (const Posto posto : esercizio().regole.specie) EtichettaDi(posto).setVisible(true);
  Risolvi();
}

}  // namespace somme::inline blocchi
