#include "scimmia/scimmia.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QThread>
#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "app/shared/nomi_forme.h"
#include "app/tabella_forme.h"
#include "cases/livelli.h"
#include "printing/frm_avvia_stampa.h"
#include "support/come_dal_menu.h"

namespace prova {

using platform::Form;

namespace {

// From here on an event only ends what is open.
constexpr int kTroppoProfondo = 5;
// Events that the monkey may play on forms that are not its own before it goes back.
constexpr int kFuoriAlPiu = 25;
// No case that exists needs as many draws.
constexpr int kTiriAlPiu = 20000;
// After as many events something has been told to whoever listens.
constexpr int kQualcosaSuccede = 50;

std::string_view vista(const QByteArray& nome) {
  return {nome.constData(), static_cast<std::size_t>(nome.size())};
}

// The numbers of a family's levels. What has no levels of its own takes those of the abacus, the
// most that there are below the sums.
std::vector<qint16> tipi(somme::Famiglia famiglia) {
  if (somme::Massimo(famiglia) == 0) famiglia = somme::Famiglia::Abaco;
  std::vector<qint16> numeri;
  for (const somme::Livello& livello : somme::kLivelli) {
    if (const qint16 tipo = TipoIn(livello, famiglia); tipo != 0) numeri.push_back(tipo);
  }
  std::ranges::sort(numeri);
  return numeri;
}

}  // namespace

Scimmia::Scimmia(const QByteArray& forma, std::uint64_t seme, bool racconta)
    : nome_(forma),
      scheda_(somme::SchedaDi(somme::LeForme(), vista(nome_))),
      dadi_(seme),
      racconto_(racconta),
      banco_({1024, 768},
             [this](somme::Ambiente& ambiente, std::string_view nome) {
               std::shared_ptr<Form> nata = somme::CreaForma(ambiente, nome);
               if (nata && verifiche_) verifiche_->nata(nata);
               return nata;
             }),
      gesti_(banco_, dadi_, racconto_, disturbi_) {
  verifiche_ = std::make_unique<Verifiche>(banco_);
  constexpr int kMolti = 1 << 30;
  banco_.sorte.alTiro = [this] { giraLaSorte(); };
  banco_.sorte.riparti(static_cast<std::uint64_t>(dadi_.fino(kMolti)));
  banco_.messaggi.mentreAperto = [this] { nelRiquadro(); };
  banco_.stampanti.mentreRisponde = [this] { mentreLaStampanteRisponde(); };
  banco_.pagina.risposta = [this](platform::PrinterSettings& scelte) {
    scelte.orientation =
        dadi_.unoSu(2) ? platform::Orientation::Portrait : platform::Orientation::Landscape;
    return dadi_.unoSu(2);
  };
  ronzaNeiCicli();
  ronza();
}

Scimmia::~Scimmia() = default;

bool Scimmia::finita() const {
  return gira_ || guasto_ || banco_.ambiente->fondo.gate().isClosed() ||
         banco_.ambiente->fondo.forms().current() == nullptr;
}

// The state as the menus leave it for the form.
void Scimmia::prepara() {
  somme::StatoCondiviso& stato = banco_.ambiente->stato;
  const std::vector<qint16> numeri = tipi(scheda_.famiglia);
  stato.TipoEsercizio = numeri[std::size_t(dadi_.tra(1, int(numeri.size()))) - 1];
  stato.LimiteEsercizio = scheda_.famiglia == somme::Famiglia::Barre20 ? scheda_.portata : 10;
  stato.TempoScansione = qint16(dadi_.unoSu(3) ? dadi_.tra(4, 60) : 4);
  if (scheda_.modo == somme::Modo::Tocco) {
    stato.ModalitaInput = somme::kHelpiKeys;
  } else if (scheda_.modo == somme::Modo::Scansione) {
    stato.ModalitaInput = dadi_.unoSu(2) ? somme::kScansioneManuale : somme::kScansioneAutomatica;
  } else if (scheda_.genere == somme::Genere::Menu || scheda_.nome == somme::forme::kFormMenu) {
    stato.ModalitaInput = qint16(dadi_.fino(4));
  } else {
    stato.ModalitaInput = somme::kMouseTastiera;
  }
}

void Scimmia::apri() {
  prepara();
  somme::StatoCondiviso& stato = banco_.ambiente->stato;
  stato.SuoniAttivi = !dadi_.unoSu(8);
  stato.CursoreDiSistema = dadi_.unoSu(2);
  if (dadi_.unoSu(3)) banco_.rete.aOgniRichiesta = "OK";
  if (dadi_.unoSu(2)) stato.LinguaCorrente = QStringLiteral("English");
  if (dadi_.unoSu(3)) lettore_.accendi();
  static constexpr auto kSotto = std::to_array<std::string_view>(
      {somme::forme::kFormBarre10HK, somme::forme::kFormNumeriTotaleHK, somme::forme::kFormMenu});
  const std::string_view prima = prova::VuoleRisposta(scheda_) ? dadi_.uno(kSotto) : vista(nome_);
  try {
    banco_.mostra(prima);
  } catch (const platform::Unwind&) {
    // The program ended, or drew for ever, before the form was there.
  }
}

void Scimmia::vivi(int eventi, const std::function<bool()>& basta) {
  restano_ = eventi;
  apri();
  gesti_.lasciaTutto();
  while (restano_ > 0 && !finita() && !basta()) evento();
  restano_ = 0;
  if (guasto_) throw Guasto(*guasto_);
  if (eventi_ > kQualcosaSuccede && lettore_.sordo()) {
    throw Guasto(QStringLiteral("a screen reader has heard nothing"));
  }
}

// Calls itself wherever the clock moves.
void Scimmia::ronza() {
  constexpr auto kAttese = std::to_array<double>({0.01, 0.05, 0.2, 0.5, 0.5, 1, 2});
  banco_.tempo.after(dadi_.uno(kAttese), [this] {
    ronza();
    if (profondita_ > 0) evento();
  });
}

// The same in an event loop that Qt runs by itself, where the scripted clock stands still: a menu
// that waits for its item, a text that is being dragged. Whenever such a loop has nothing left to
// do, and by no timer, so that the same seed plays the same.
void Scimmia::ronzaNeiCicli() {
  const QAbstractEventDispatcher* dispensa = QAbstractEventDispatcher::instance();
  QObject::connect(dispensa, &QAbstractEventDispatcher::aboutToBlock, &finoAllaFine_, [this] {
    if (QThread::currentThread()->loopLevel() == 0 || std::exchange(chiamata_, true)) return;
    QMetaObject::invokeMethod(
        &finoAllaFine_,
        [this] {
          chiamata_ = false;
          if (QThread::currentThread()->loopLevel() > 0) evento();
        },
        Qt::QueuedConnection);
  });
}

void Scimmia::evento() {
  ++profondita_;
  const auto su = qScopeGuard([this] { --profondita_; });
  profonda_ = std::max(profonda_, profondita_);
  const bool stanca = restano_ <= 0 || finita();
  if (stanca || profondita_ > kTroppoProfondo) {
    gesti_.chiudiQuelloSopra();
    return;
  }
  --restano_;
  ++eventi_;
  tiri_ = 0;
  if (profondita_ > 1) ++dentro_;
  if (!riquadri_.isEmpty()) {
    gesti_.daFuori(profondita_);
  } else {
    if (profondita_ == 1) torna();
    gesti_.uno(profondita_);
  }
  verifica();
}

// An exception of the monkey's own must not pass through the program.
void Scimmia::verifica() {
  if (guasto_ || gira_) return;
  constexpr int kOgniTanto = 40;
  try {
    if (const auto preso = lettore_.preso()) throw Guasto(*preso);
    if (banco_.ambiente->fondo.gate().isClosed()) return;
    verifiche_->sempre();
    if (profondita_ > 1) return;
    QCoreApplication::processEvents();
    if (finita()) return;
    verifiche_->aRiposo();
    if (eventi_ % kOgniTanto == 0) verifiche_->aFondo();
  } catch (const Guasto& guasto) {
    guasto_ = guasto;
  }
}

// Back to the form that the monkey keeps to, from wherever it has strayed.
void Scimmia::torna() {
  platform::Forms& forme = banco_.ambiente->fondo.forms();
  Form& inUso = *forme.current();
  if (prova::VuoleRisposta(scheda_)) {
    constexpr int kOgniTanto = 4;
    if (dadi_.unoSu(kOgniTanto)) scegli();
    return;
  }
  if (inUso.name().toUtf8() == nome_) {
    fuori_ = 0;
    return;
  }
  if (++fuori_ < kFuoriAlPiu) return;
  fuori_ = 0;
  prepara();
  racconto_.annota(profondita_, QStringLiteral("back to ") + QString::fromUtf8(nome_));
  try {
    forme.pass(inUso, vista(nome_));
  } catch (const platform::Unwind&) {
    // As in `apri`.
  }
}

// Asks for the sheet or the print dialog, as a form that has one does.
void Scimmia::scegli() {
  platform::Forms& forme = banco_.ambiente->fondo.forms();
  Form& sotto = *forme.current();
  racconto_.annota(profondita_, QStringLiteral("asks for ") + QString::fromUtf8(nome_));
  if (nome_ != QByteArray("frmAvviaStampa")) {
    sotto.run([&] { forme.show(vista(nome_)); });
    return;
  }
  sotto.run([&] {
    auto& dialogo = static_cast<somme::frmAvviaStampa&>(forme.loaded(vista(nome_)));
    const auto viva = dialogo.shared_from_this();
    const int verso = dadi_.tra(1, 2);
    (void)dialogo.FoglioStampa(verso);
    somme::frmAvviaStampa::Richiesta richiesta;
    richiesta.oggetto = &sotto;
    richiesta.sinistra = dadi_.tra(-20, 300);
    richiesta.alto = dadi_.tra(-20, 300);
    richiesta.larghezza = dadi_.tra(1, 420);
    richiesta.altezza = dadi_.tra(1, 297);
    richiesta.orientamento = verso;
    (void)dialogo.StampaFCPB(richiesta);
  });
}

// What happens while a message box stands open, and how it is answered.
void Scimmia::nelRiquadro() {
  const platform::MessageBox riquadro = banco_.messaggi.mostrati.back();
  banco_.messaggi.mostrati.clear();
  racconto_.annota(profondita_, QStringLiteral("box: ") + riquadro.text.simplified());
  if (riquadro.text.startsWith(QStringLiteral("Errore di run-time")) &&
      !disturbi_.spiega(riquadro.text)) {
    guasto_ =
        Guasto(QStringLiteral("run-time's box without a cause: ") + riquadro.text.simplified());
  }
  // Of what comes from outside only one box stands at a time, however often it comes.
  if (riquadri_.contains(riquadro.text)) {
    guasto_ = Guasto(QStringLiteral("the same box twice: ") + riquadro.text.simplified());
  }
  riquadri_.append(riquadro.text);
  const auto giu = qScopeGuard([this] { riquadri_.removeLast(); });
  for (int volte = dadi_.fino(3); volte > 0; --volte) evento();
  if (riquadro.buttons == platform::BoxButtons::Ok) return;
  banco_.messaggi.rispondi(dadi_.unoSu(2) ? platform::BoxAnswer::Yes : platform::BoxAnswer::No);
}

// While a printer is waited for, the program takes no order to ask one again.
void Scimmia::mentreLaStampanteRisponde() {
  if (chiede_) {
    guasto_ = Guasto(QStringLiteral("a printer is asked while one is waited for"));
    return;
  }
  const QScopedValueRollback chiede(chiede_, true);
  if (disturbi_.lentezza > 0) {
    racconto_.annota(profondita_, QStringLiteral("the printer thinks"));
    banco_.tempo.advance(disturbi_.lentezza);
  }
  if (dadi_.unoSu(2)) evento();
}

// A level may draw for ever for a sum that it can never split; then this life is over.
void Scimmia::giraLaSorte() {
  if (++tiri_ <= kTiriAlPiu) return;
  racconto_.annota(profondita_, QStringLiteral("draws for ever"));
  gira_ = true;
  tiri_ = 0;
  throw platform::Unwind{};
}

}  // namespace prova
