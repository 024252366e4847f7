#include "tools/manuale/scene.h"

#include <QApplication>
#include <QMenu>
#include <QPainter>
#include <array>

#include "app/form_menu.h"
#include "app/shared/nomi_forme.h"
#include "platform/forms/menu_bar.h"
#include "tools/manuale/scene_esercizi.h"
#include "tools/manuale/scene_scansione.h"
#include "tools/manuale/scene_tocco.h"

namespace manuale {

namespace {

using namespace somme;
using prova::Banco;

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
void MenuBlocchi(Banco& banco) {
  banco.mostra(forme::kFormMenuPLU);
}
void MenuNumeri(Banco& banco) {
  banco.mostra(forme::kFormMenuNumeri);
}
// The panel covers the window; what stands on it is a band in the middle.
QImage TempoScansione(Banco& banco) {
  banco.apri<FormMenu>(forme::kFormMenu).mnuTempoScansione.click();
  const QImage intero = Ritratto(banco);
  const int altezza = intero.height();
  return intero.copy(0, altezza / 4, intero.width(), altezza / 2);
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
    {"menu_blocchi", Ritrai<MenuBlocchi>},
    {"menu_numeri", Ritrai<MenuNumeri>},
    {"tempo_scansione", TempoScansione},
    {"barre10", Ritrai<Barre10>},
    {"barre10_aiuto", Ritrai<Barre10Aiuto>},
    {"barre10_giusto", Ritrai<Barre10Giusto>},
    {"barre10_sbagliato", Ritrai<Barre10Sbagliato>},
    {"barre20_aiuto", Ritrai<Barre20Aiuto>},
    {"barre_scansione", Ritrai<BarreScansione>},
    {"blocchi99", Ritrai<Blocchi99>},
    {"blocchi_cambio", Ritrai<BlocchiCambio>},
    {"blocchi_cambiato", Ritrai<BlocchiCambiato>},
    {"blocchi999", Ritrai<Blocchi999>},
    {"abaco_dieci", Ritrai<AbacoDieciUnita>},
    {"abaco_cambiato", Ritrai<AbacoCambiato>},
    {"tabella_percorso", Tabella},
    {"numeri", Ritrai<NumeriTotale>},
    {"numeri_sbagliato", Ritrai<NumeriSbagliato>},
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

// The mouse lies aside: nothing is lit that a reader would take for chosen. Over an open menu it
// stays, which would follow it.
QImage Ritratto(Banco& banco) {
  QWidget& finestra = banco.ambiente->fondo.window();
  if (QApplication::activePopupWidget() == nullptr) {
    QTest::mouseMove(banco.finestra(), QPoint(0, finestra.height() - 1));
    QCoreApplication::processEvents();
  }
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
