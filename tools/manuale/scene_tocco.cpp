#include "tools/manuale/scene_tocco.h"

#include <QPixmap>
#include <QWidget>

#include "app/shared/nomi_forme.h"
#include "exercises/abacus/forma_abaco_hk.h"
#include "exercises/bars/forma_barre_hk.h"
#include "exercises/blocks/forma_blocchi_hk.h"
#include "exercises/numbers/forma_numeri_hk.h"
#include "support/tocchi.h"
#include "tools/tavoletta/finestra_tavoletta.h"

namespace manuale {

namespace {

using namespace somme;
using prova::Banco;

constexpr QSize kTavoletta{760, 700};
// The printer gets more pixels than a small picture can show.
constexpr int kLarghezzaFoglio = 900;

template <class F>
F& Pronta(Banco& banco, std::string_view nome, qint16 tipo,
          const std::vector<prova::SorteDiProva::Estrazione>& caso) {
  banco.ambiente->stato.ModalitaInput = kHelpiKeys;
  banco.ambiente->stato.TipoEsercizio = tipo;
  banco.sorte.scrivi(caso);
  return prova::apriPronta<F>(banco, nome);
}

void Tocca(Banco& banco, Tasto tasto, int volte = 1) {
  for (int i = 0; i < volte; ++i) prova::tocca(banco, tasto);
}

QImage Foglio(Banco& banco, std::string_view nome) {
  QImage foglio;
  ConIlFoglio(banco, nome,
              [&](const frmAvviaStampa& dialogo) { foglio = dialogo.immagine().punti(); });
  return foglio.scaledToWidth(kLarghezzaFoglio, Qt::SmoothTransformation);
}

QImage Dialogo(const frmAvviaStampa& dialogo) {
  QCoreApplication::processEvents();
  return dialogo.page()->window()->grab().toImage();
}

void Clicca(const platform::Control& controllo) {
  const QWidget* dialogo = controllo.widget()->window();
  const QPoint centro = controllo.widget()->rect().center();
  QTest::mouseClick(dialogo->windowHandle(), Qt::LeftButton, {},
                    controllo.widget()->mapTo(dialogo, centro));
  QCoreApplication::processEvents();
}

// A printer with the sheet that the keyboard wants, or with the one that most have.
void MettiStampante(Banco& banco, const platform::Paper& carta) {
  banco.stampanti.nessuna();
  banco.stampanti.metti(carta.media, prova::StampanteDiProva(carta));
  banco.stampanti.elenco.standard = carta.media;
}

QImage DialogoAperto(Banco& banco, const platform::Paper& carta) {
  MettiStampante(banco, carta);
  QImage dialogo;
  ConIlFoglio(banco, forme::kFormStampaFoglioNumeri,
              [&](const frmAvviaStampa& aperto) { dialogo = Dialogo(aperto); });
  return dialogo;
}

}  // namespace

void ConIlFoglio(Banco& banco, std::string_view nome,
                 const std::function<void(frmAvviaStampa&)>& mentre) {
  platform::Forms& finestre = banco.ambiente->fondo.forms();
  banco.mostra(forme::kFormAvvio);
  // Whoever asks for the sheet waits until the dialog has gone.
  banco.tempo.after(0.1, [&] {
    auto& dialogo = static_cast<frmAvviaStampa&>(finestre.loaded(forme::kFrmAvviaStampa));
    const auto vivo = dialogo.shared_from_this();
    QCoreApplication::processEvents();
    mentre(dialogo);
    if (!dialogo.isUnloaded()) dialogo.cmdChiudi.click();
  });
  finestre.current()->run([&] { finestre.show(nome); });
  QCoreApplication::processEvents();
}

void BarreTocco(Banco& banco) {
  banco.ambiente->stato.LimiteEsercizio = 10;
  Pronta<FormaBarreHK>(banco, forme::kFormBarre10HK, 1, {{7 - 1, 10}, {3, 7}});
  prova::toccaNumero(banco, QStringLiteral("7"));
}

void NumeriTocco(Banco& banco) {
  Pronta<FormaNumeriHK>(banco, forme::kFormNumeriTotaleHK, 7, {{74, 99}, {47, 75}});
  prova::toccaNumero(banco, QStringLiteral("75"));
}

void BlocchiTocco(Banco& banco) {
  Pronta<FormaBlocchiHK>(banco, forme::kFormLUHK, 3, {{52 - 1, 99}, {27, 52}});
  Tocca(banco, Tasto::Decine, 2);
  Tocca(banco, Tasto::Unita, 7);
  Tocca(banco, Tasto::Conferma);
  Tocca(banco, Tasto::Decine);
}

void AbacoTocco(Banco& banco) {
  Pronta<FormaAbacoHK>(banco, forme::kFormAbacoHK, 3, {{43 - 1, 99}, {28, 43}});
  Tocca(banco, Tasto::Decine, 2);
  Tocca(banco, Tasto::Unita, 8);
}

QImage FoglioBarre(Banco& banco) {
  return Foglio(banco, forme::kFormStampaFoglioNumeri);
}
QImage FoglioNumeri(Banco& banco) {
  return Foglio(banco, forme::kFormStampaFoglioNumeri2);
}
QImage FoglioBlocchi99(Banco& banco) {
  return Foglio(banco, forme::kFormStampaLU);
}
QImage FoglioBlocchi999(Banco& banco) {
  return Foglio(banco, forme::kFormStampaPLU);
}
QImage FoglioAbaco(Banco& banco) {
  return Foglio(banco, forme::kFormStampaAbaco);
}

QImage StampaConAvviso(Banco& banco) {
  return DialogoAperto(banco, prova::CartaA4());
}
QImage StampaFoglio(Banco& banco) {
  return DialogoAperto(banco, prova::CartaA3());
}

QImage StampaAvanzate(Banco& banco) {
  MettiStampante(banco, prova::CartaA4());
  QImage dialogo;
  ConIlFoglio(banco, forme::kFormStampaFoglioNumeri, [&](frmAvviaStampa& aperto) {
    Clicca(aperto.A3[1]);
    Clicca(aperto.Command1);
    dialogo = Dialogo(aperto);
  });
  return dialogo;
}

QImage Tavoletta(Banco& /*banco*/) {
  tavoletta::Tavoletta tavoletta;
  tavoletta::FinestraTavoletta finestra(tavoletta);
  finestra.Apri(0);
  finestra.resize(kTavoletta);
  finestra.show();
  QCoreApplication::processEvents();
  return finestra.grab().toImage();
}

}  // namespace manuale
