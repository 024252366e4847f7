#include "tools/manuale/scene.h"

#include <QApplication>
#include <QMenu>
#include <QPainter>
#include <array>

#include "app/form_menu.h"
#include "app/shared/nomi_forme.h"
#include "exercises/abacus/forma_abaco_scansione.h"
#include "exercises/abacus/forma_abaco_tastiera.h"
#include "exercises/bars/forma_barre_pulsanti.h"
#include "exercises/bars/forma_barre_scansione.h"
#include "exercises/bars/forma_barre_tastiera.h"
#include "exercises/blocks/forma_blocchi_scansione.h"
#include "exercises/blocks/forma_blocchi_tastiera.h"
#include "exercises/numbers/forma_numeri_scansione.h"
#include "exercises/numbers/forma_numeri_tastiera.h"
#include "exercises/table/form_tabella.h"
#include "platform/forms/menu_bar.h"
#include "support/scansione_di_prova.h"
#include "tools/manuale/scene_tocco.h"

namespace manuale {

namespace {

using namespace somme;
using prova::Banco;

// The beginning of the record's heading, as the family menus write it.
QString Titolo(Banco& banco, const char* inizio, const char* gruppo, const QString& livello) {
  return TestoLingua(*banco.ambiente, QLatin1String(inizio)) +
         TestoLingua(*banco.ambiente, QLatin1String(gruppo)) + livello;
}

void ApriMenu(const platform::MenuItem& titolo) {
  auto* barra = qobject_cast<QMenuBar*>(titolo.action()->parent());
  QMenu* tendina = titolo.action()->menu();
  for (QWidget* finestra : QApplication::topLevelWidgets()) {
    if (barra != nullptr) break;
    barra = finestra->findChild<QMenuBar*>();
  }
  const QRect posto = barra->actionGeometry(titolo.action());
  tendina->popup(barra->mapToGlobal(posto.bottomLeft()));
  QCoreApplication::processEvents();
}

template <class F>
F& Barre(Banco& banco, std::string_view nome, int limite, int totale, int addendo1) {
  banco.ambiente->stato.LimiteEsercizio = limite;
  banco.sorte.scrivi({{totale - 1, limite}, {addendo1, totale}});
  return banco.apri<F>(nome);
}

void Avvio(Banco& banco) {
  banco.mostra(forme::kFormAvvio);
}
void Menu(Banco& banco) {
  banco.mostra(forme::kFormMenu);
}
void MenuImpostazioni(Banco& banco) {
  auto& forma = banco.apri<FormMenu>(forme::kFormMenu);
  ApriMenu(forma.mnuImpostazioni);
  QMenu* tendina = forma.mnuImpostazioni.action()->menu();
  QMenu* modi = forma.mnuModInput.action()->menu();
  modi->popup(QPoint());
  // Where it opens on a screen that has room for it; the one without a display has not.
  modi->move(tendina->mapToGlobal(tendina->actionGeometry(forma.mnuModInput.action()).topRight()));
  QCoreApplication::processEvents();
}
void MenuLingua(Banco& banco) {
  ApriMenu(banco.apri<FormMenu>(forme::kFormMenu).mnuLanguages);
}
void TempoScansione(Banco& banco) {
  banco.apri<FormMenu>(forme::kFormMenu).mnuTempoScansione.click();
}

void Barre10(Banco& banco) {
  Barre<FormaBarrePulsanti>(banco, forme::kFormBarre10, 10, 7, 3);
}
void Barre10Aiuto(Banco& banco) {
  auto& forma = Barre<FormaBarrePulsanti>(banco, forme::kFormBarre10, 10, 7, 3);
  banco.clicca(forma.PulsanteNumero[6]);
  banco.clicca(forma.PulsanteAiuto);
}
void Barre10Giusto(Banco& banco) {
  auto& forma = Barre<FormaBarrePulsanti>(banco, forme::kFormBarre10, 10, 7, 3);
  banco.clicca(forma.PulsanteNumero[7]);
}
void Barre20(Banco& banco) {
  Barre<FormaBarreTastiera>(banco, forme::kFormBarre20, 20, 15, 8);
}
void BarreScansione(Banco& banco) {
  banco.ambiente->stato.ModalitaInput = kScansioneAutomatica;
  Barre<FormaBarreScansione>(banco, forme::kFormBarre10Scansione, 10, 7, 3);
  banco.tempo.advance(3.2);
}

void Costruisci(Banco& banco, const platform::Button& pulsante, int quanti) {
  for (int i = 0; i < quanti; ++i) banco.clicca(pulsante);
}
FormaBlocchiTastiera& LU(Banco& banco, int totale, int addendo1) {
  banco.ambiente->stato.TipoEsercizio = 3;
  banco.sorte.scrivi({{totale - 1, 99}, {addendo1, totale}});
  return banco.apri<FormaBlocchiTastiera>(forme::kFormLU);
}
void Blocchi99(Banco& banco) {
  auto& forma = LU(banco, 52, 27);
  Costruisci(banco, forma.pulsanti.PulsanteDa, 2);
  Costruisci(banco, forma.pulsanti.PulsanteU, 7);
  banco.clicca(forma.pulsanti.PulsanteConferma);
  Costruisci(banco, forma.pulsanti.PulsanteDa, 1);
}
FormaBlocchiTastiera& LUUnite(Banco& banco) {
  auto& forma = LU(banco, 52, 27);
  Costruisci(banco, forma.pulsanti.PulsanteDa, 2);
  Costruisci(banco, forma.pulsanti.PulsanteU, 7);
  banco.clicca(forma.pulsanti.PulsanteConferma);
  Costruisci(banco, forma.pulsanti.PulsanteDa, 2);
  Costruisci(banco, forma.pulsanti.PulsanteU, 5);
  banco.clicca(forma.pulsanti.PulsanteConferma);
  banco.tempo.advance(3);
  return forma;
}
void BlocchiCambio(Banco& banco) {
  LUUnite(banco);
}
void Blocchi999(Banco& banco) {
  banco.ambiente->stato.TipoEsercizio = 6;
  banco.sorte.scrivi({{365 - 1, 988}, {142, 365}});
  auto& forma = banco.apri<FormaBlocchiTastiera>(forme::kFormHLU);
  Costruisci(banco, *forma.pulsanti.PulsanteH, 1);
  Costruisci(banco, forma.pulsanti.PulsanteDa, 4);
  Costruisci(banco, forma.pulsanti.PulsanteU, 2);
  banco.clicca(forma.pulsanti.PulsanteConferma);
  Costruisci(banco, *forma.pulsanti.PulsanteH, 2);
}

FormaAbacoTastiera& Abaco(Banco& banco, qint16 tipo, int limite, int totale, int addendo1) {
  banco.ambiente->stato.TipoEsercizio = tipo;
  banco.sorte.scrivi({{totale - 1, limite}, {addendo1, totale}});
  return banco.apri<FormaAbacoTastiera>(forme::kFormAbaco);
}
// Puts so many of the waiting beads of a kind onto their spike.
void Infila(Banco& banco, FormaAbacoTastiera& forma, const char* palline, int da, int quante) {
  for (int i = da; i < da + quante; ++i) {
    banco.cliccaClip(forma.ShockwaveFlash1, QLatin1String(palline) + QString::number(i));
  }
}
void AbacoDieciUnita(Banco& banco) {
  auto& forma = Abaco(banco, 3, 99, 43, 28);
  Infila(banco, forma, "daa", 0, 2);
  Infila(banco, forma, "ua", 0, 10);
}
void AbacoMigliaia(Banco& banco) {
  auto& forma = Abaco(banco, 19, 9888, 3456, 1234);
  Infila(banco, forma, "ka", 1, 1);
  Infila(banco, forma, "ha", 0, 2);
  Infila(banco, forma, "daa", 0, 3);
  Infila(banco, forma, "ua", 0, 4);
}

void Tabella(Banco& banco) {
  banco.ambiente->stato.TipoEsercizio = 10;
  banco.sorte.scrivi({{46, 99}, {12, 99}});
  banco.mostra(forme::kFormTabella);
}

// Chooses a key of a scanning keyboard so many times, as a pupil with two switches does.
void Scegli(Banco& banco, const TastieraScansione& tastiera, int tasto, int volte = 1) {
  for (int i = 0; i < volte; ++i) {
    if (!prova::scegliAMano(banco, tastiera, tasto)) throw std::logic_error("the key is not lit");
  }
}
FormaBlocchiScansione& LUScansione(Banco& banco) {
  banco.ambiente->stato.ModalitaInput = kScansioneManuale;
  banco.ambiente->stato.TipoEsercizio = 3;
  banco.sorte.scrivi({{37 - 1, 99}, {23, 37}});
  return banco.apri<FormaBlocchiScansione>(forme::kFormLUScansione);
}

FormaNumeriTastiera& Numeri(Banco& banco) {
  banco.ambiente->stato.TipoEsercizio = 7;
  banco.ambiente->stato.TitoloEsercizio =
      Titolo(banco, "0031", "0026", TestoLingua(*banco.ambiente, QStringLiteral("0012")));
  banco.sorte.scrivi({{74, 99}, {47, 75}, {38, 99}, {21, 39}});
  return banco.apri<FormaNumeriTastiera>(forme::kFormNumeriTotale);
}
void NumeriTotale(Banco& banco) {
  Numeri(banco);
  banco.scrivi(QStringLiteral("75"));
}
void NumeriElenco(Banco& banco) {
  auto& forma = Numeri(banco);
  banco.scrivi(QStringLiteral("75"));
  banco.batti(Qt::Key_Return);
  banco.clicca(forma.PulsanteAvanti);
  banco.scrivi(QStringLiteral("39"));
  banco.batti(Qt::Key_Return);
  forma.mnuStampa.click();
}
void NumeriAddendo(Banco& banco) {
  banco.ambiente->stato.TipoEsercizio = 1;
  banco.mostra(forme::kFormNumeriAddendo);
}
void BlocchiScansione(Banco& banco) {
  auto& forma = LUScansione(banco);
  Scegli(banco, forma.TastieraHDUScansione1, TastieraHDUScansione::kDecine, 2);
  Scegli(banco, forma.TastieraHDUScansione1, TastieraHDUScansione::kUnita, 3);
}
void BlocchiScansioneCifre(Banco& banco) {
  auto& forma = LUScansione(banco);
  for (const int addendo : {23, 14}) {
    Scegli(banco, forma.TastieraHDUScansione1, TastieraHDUScansione::kDecine, addendo / 10);
    Scegli(banco, forma.TastieraHDUScansione1, TastieraHDUScansione::kUnita, addendo % 10);
    Scegli(banco, forma.TastieraHDUScansione1, TastieraHDUScansione::kConferma);
  }
  banco.tempo.advance(3);
  Scegli(banco, forma.TastieraNumericaScansione1, 3);
}
void AbacoScansione(Banco& banco) {
  banco.ambiente->stato.ModalitaInput = kScansioneManuale;
  banco.ambiente->stato.TipoEsercizio = 3;
  banco.sorte.scrivi({{43 - 1, 99}, {28, 43}});
  auto& forma = banco.apri<FormaAbacoScansione>(forme::kFormAbacoScansione);
  Scegli(banco, forma.TastieraHDUScansione1, TastieraHDUScansione::kDecine, 2);
  Scegli(banco, forma.TastieraHDUScansione1, TastieraHDUScansione::kUnita, 6);
}
void NumeriScansione(Banco& banco) {
  banco.ambiente->stato.ModalitaInput = kScansioneAutomatica;
  banco.ambiente->stato.TipoEsercizio = 7;
  banco.sorte.scrivi({{74, 99}, {47, 75}});
  banco.mostra(forme::kFormNumeriTotaleScansione);
  banco.tempo.advance(4.2);
}

// The whole window, once the program has been brought to the moment.
template <auto prepara>
QImage Ritrai(Banco& banco) {
  prepara(banco);
  return Ritratto(banco);
}

constexpr auto kScene = std::to_array<Scena>({
    {"avvio", Ritrai<Avvio>},
    {"menu", Ritrai<Menu>},
    {"menu_impostazioni", Ritrai<MenuImpostazioni>},
    {"menu_lingua", Ritrai<MenuLingua>},
    {"tempo_scansione", Ritrai<TempoScansione>},
    {"barre10", Ritrai<Barre10>},
    {"barre10_aiuto", Ritrai<Barre10Aiuto>},
    {"barre10_giusto", Ritrai<Barre10Giusto>},
    {"barre20", Ritrai<Barre20>},
    {"barre_scansione", Ritrai<BarreScansione>},
    {"blocchi99", Ritrai<Blocchi99>},
    {"blocchi_cambio", Ritrai<BlocchiCambio>},
    {"blocchi999", Ritrai<Blocchi999>},
    {"abaco_dieci", Ritrai<AbacoDieciUnita>},
    {"abaco_migliaia", Ritrai<AbacoMigliaia>},
    {"tabella", Ritrai<Tabella>},
    {"numeri", Ritrai<NumeriTotale>},
    {"numeri_elenco", Ritrai<NumeriElenco>},
    {"numeri_addendo", Ritrai<NumeriAddendo>},
    {"numeri_scansione", Ritrai<NumeriScansione>},
    {"blocchi_scansione", Ritrai<BlocchiScansione>},
    {"blocchi_scansione_cifre", Ritrai<BlocchiScansioneCifre>},
    {"abaco_scansione", Ritrai<AbacoScansione>},
    {"barre_tocco", Ritrai<BarreTocco>},
    {"numeri_tocco", Ritrai<NumeriTocco>},
    {"blocchi_tocco", Ritrai<BlocchiTocco>},
    {"abaco_tocco", Ritrai<AbacoTocco>},
    {"foglio_barre", FoglioBarre},
    {"foglio_numeri", FoglioNumeri},
    {"foglio_blocchi99", FoglioBlocchi99},
    {"foglio_blocchi999", FoglioBlocchi999},
    {"foglio_abaco", FoglioAbaco},
    {"stampa_foglio", StampaFoglio},
    {"stampa_avanzate", StampaAvanzate},
    {"tavoletta", Tavoletta},
});

}  // namespace

std::span<const Scena> Scene() {
  return kScene;
}

QImage Ritratto(Banco& banco) {
  QWidget& finestra = banco.ambiente->fondo.window();
  QPixmap insieme = finestra.grab();
  QPainter pennello(&insieme);
  for (QWidget* sopra : QApplication::topLevelWidgets()) {
    if (sopra == &finestra || !sopra->isVisible()) continue;
    pennello.drawPixmap(finestra.mapFromGlobal(sopra->mapToGlobal(QPoint())), sopra->grab());
  }
  pennello.end();
  return insieme.toImage();
}

}  // namespace manuale
