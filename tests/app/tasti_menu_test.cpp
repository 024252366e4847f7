#include <QAccessible>
#include <QAccessibleValueInterface>
#include <QApplication>
#include <set>

#include "app/form_menu.h"
#include "app/form_menu_abaco.h"
#include "app/form_menu_numeri.h"
#include "app/form_menu_plu.h"
#include "app/form_menu_scelte.h"
#include "app/shared/nomi_forme.h"
#include "support/banco.h"
#include "support/iscrizione.h"
#include "support/pulsante.h"

namespace tasti_menu_test {

using prova::Banco;

namespace {

QString detto(const platform::Control& controllo) {
  return QAccessible::queryAccessibleInterface(controllo.widget())->text(QAccessible::Name);
}

QString fuoco() {
  return QApplication::focusWidget() == nullptr ? QString()
                                                : QApplication::focusWidget()->objectName();
}

}  // namespace

// The menus under keys alone, and as they are heard.
class TastiMenuTest : public QObject {
  Q_OBJECT

  // Where each of the keys leads, from where the last has led.
  static QStringList cammino(Banco& banco, std::initializer_list<Qt::Key> tasti) {
    QStringList visitati;
    for (const Qt::Key tasto : tasti) {
      banco.batti(tasto);
      visitati.append(fuoco());
    }
    return visitati;
  }
  // No two buttons of the menu are spoken by one name.
  static void provaNomi(const platform::Form& menu) {
    std::set<QString> nomi;
    for (const platform::Control* controllo : menu.controls()) {
      if (dynamic_cast<const platform::Button*>(controllo) == nullptr) continue;
      if (!controllo->isVisible()) continue;
      QVERIFY2(nomi.insert(detto(*controllo)).second, qPrintable(detto(*controllo)));
    }
  }

 private Q_SLOTS:
  void arrowKeysWalkTheLevels() {
    Banco banco;
    auto& menu = banco.apri<somme::FormMenuNumeri>(somme::forme::kFormMenuNumeri);
    menu.Command1[5].setFocus();
    QCOMPARE(cammino(banco, {Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Up, Qt::Key_Left,
                             Qt::Key_Home, Qt::Key_End}),
             (QStringList{QStringLiteral("Command1(6)"), QStringLiteral("Command1(11)"),
                          QStringLiteral("Command1(16)"), QStringLiteral("Command1(15)"),
                          QStringLiteral("Command1(10)"), QStringLiteral("Command1(1)"),
                          QStringLiteral("Command1(24)")}));
  }

  void homeAndEndGoToTheEndsOfAMenuInOneColumn() {
    Banco banco;
    auto& menu = banco.apri<somme::FormMenuScelte>(somme::forme::kFormMenuBarre);
    prova::pulsante(menu, "Command2").setFocus();
    QCOMPARE(cammino(banco, {Qt::Key_End, Qt::Key_Down, Qt::Key_Home}),
             (QStringList{QStringLiteral("Command4"), QStringLiteral("Command4"),
                          QStringLiteral("Command2")}));
  }

  void arrowKeysWalkTheMainMenu() {
    Banco banco;
    auto& menu = banco.apri<somme::FormMenu>(somme::forme::kFormMenu);
    prova::pulsante(menu, "Command2").setFocus();
    QCOMPARE(cammino(banco, {Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Down, Qt::Key_Up}),
             (QStringList{QStringLiteral("Command6"), QStringLiteral("Command3"),
                          QStringLiteral("Command4"), QStringLiteral("Command5"),
                          QStringLiteral("Command4")}));
  }

  void aLevelSaysItsGroup() {
    Banco banco;
    auto& blocchi = banco.apri<somme::FormMenuPLU>(somme::forme::kFormMenuPLU);
    QCOMPARE(detto(prova::pulsante(blocchi, "Command2")), QStringLiteral("Entro 99, senza cambio"));
    QCOMPARE(detto(prova::pulsante(blocchi, "Command13")),
             QStringLiteral("Entro 999, aggiungi solo centinaia"));
    QCOMPARE(detto(blocchi.Command1), QStringLiteral("Torna al menù principale"));
    auto& barre = banco.apri<somme::FormMenuScelte>(somme::forme::kFormMenuBarre);
    QCOMPARE(detto(prova::pulsante(barre, "Command2")), QStringLiteral("Fino al 10"));
  }

  void noTwoLevelsOfAMenuSayTheSame() {
    Banco banco;
    provaNomi(banco.apri<somme::FormMenuNumeri>(somme::forme::kFormMenuNumeri));
    provaNomi(banco.apri<somme::FormMenuPLU>(somme::forme::kFormMenuPLU));
    provaNomi(banco.apri<somme::FormMenuAbaco>(somme::forme::kFormMenuAbaco));
  }

  void theGroupIsSaidInTheLanguageOfTheMoment() {
    Banco banco;
    auto& menu = banco.apri<somme::FormMenuPLU>(somme::forme::kFormMenuPLU);
    menu.Label2.setCaption(QStringLiteral("Up to 99"));
    QCOMPARE(detto(prova::pulsante(menu, "Command2")), QStringLiteral("Up to 99, senza cambio"));
  }

  void theIntervalBarSpeaksSecondsAndTakesThem() {
    Banco banco;
    banco.ambiente->stato.TempoScansione = 5;
    auto& menu = banco.apri<somme::FormMenu>(somme::forme::kFormMenu);
    banco.batti(Qt::Key_T, Qt::ControlModifier);
    QVERIFY(menu.PictureTempoScansione.isVisible());
    QAccessibleValueInterface* valore =
        QAccessible::queryAccessibleInterface(menu.HScrollScansione.widget())->valueInterface();
    QCOMPARE(valore->currentValue().toDouble(), 1.25);
    QCOMPARE(valore->minimumValue().toDouble(), 1.0);
    QCOMPARE(valore->maximumValue().toDouble(), 15.0);
    QCOMPARE(valore->minimumStepSize().toDouble(), 0.25);
    valore->setCurrentValue(2.5);
    QCOMPARE(banco.ambiente->stato.TempoScansione, qint16(10));
    menu.HScrollScansione.setFocus();
    banco.batti(Qt::Key_PageDown);
    QCOMPARE(banco.ambiente->stato.TempoScansione, qint16(14));
    banco.batti(Qt::Key_PageUp);
    QCOMPARE(banco.ambiente->stato.TempoScansione, qint16(10));
  }
};

const prova::Iscrizione<TastiMenuTest, QApplication> kIscritta;

}  // namespace tasti_menu_test

#include "tasti_menu_test.moc"
