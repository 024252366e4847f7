#include "app/form_menu.h"

#include <QAction>
#include <QApplication>
#include <QMenu>

#include "app/form_info.h"
#include "app/shared/nomi_forme.h"
#include "menu_di_prova.h"
#include "platform/forms/page.h"
#include "support/banco.h"
#include "support/controfigura.h"
#include "support/iscrizione.h"
#include "support/pulsante.h"

namespace form_menu_test {

using prova::apriMenu;
using prova::Banco;
using prova::pulsante;
using prova::scegliVoce;
using somme::FormMenu;

namespace {

constexpr QSize kFinestra{1024, 768};

// The words of the sounds told apart, which in a real file may be the same twice.
constexpr char kParoleSuoni[] =
    "[Strings]\n0032=\"caricato acceso\"\n0033=\"caricato spento\"\n"
    "0034=\"cliccato acceso\"\n0035=\"cliccato spento\"\n"
    "[FormMenu]\nFormMenu.Caption=\"Somme\"\nMnuSuoni.Caption=\"Suoni\"\n";

}  // namespace

// The main menu: its ways, its settings, the panel of the scanning interval.
class FormMenuTest : public QObject {
  Q_OBJECT

  // The height of the words of a family, which stand to the right of its picture.
  static int altezza(const platform::Button& famiglia) {
    const QImage tutto = famiglia.widget()->grab().toImage();
    const QRect parole(tutto.width() / 2, 8, tutto.width() / 2 - 8, tutto.height() - 16);
    int prima = parole.bottom();
    int ultima = parole.top();
    for (int y = parole.top(); y <= parole.bottom(); ++y) {
      for (int x = parole.left(); x <= parole.right(); ++x) {
        if (tutto.pixelColor(x, y).lightness() >= 100) continue;
        prima = std::min(prima, y);
        ultima = std::max(ultima, y);
      }
    }
    return ultima - prima + 1;
  }

 private Q_SLOTS:
  void theFamiliesAreWrittenInLettersOfOneSizeHoweverLongTheirNames() {
    Banco banco({800, 600}, prova::SenzaEsercizi);
    FormMenu& menu = apriMenu(banco);
    const auto famiglie = std::to_array<platform::Button*>(
        {&pulsante(menu, "Command2"), &pulsante(menu, "Command3"), &pulsante(menu, "Command4"),
         &pulsante(menu, "Command5"), &pulsante(menu, "Command6")});
    for (platform::Button* una : famiglie) una->setCaption(QStringLiteral("HH"));
    const int prima = altezza(pulsante(menu, "Command2"));
    pulsante(menu, "Command2").setCaption(QStringLiteral("HHHHHHHH"));
    QVERIFY(altezza(pulsante(menu, "Command2")) * 10 < prima * 8);
    for (const platform::Button* una : famiglie) {
      QVERIFY(std::abs(altezza(*una) - altezza(pulsante(menu, "Command2"))) <= 1);
    }
  }

  void everyButtonLeadsToItsMenuAndUnloadsThisForm_data() {
    QTest::addColumn<int>("bottone");
    QTest::addColumn<QString>("forma");
    QTest::newRow("barre") << 2 << QStringLiteral("FormMenuBarre");
    QTest::newRow("numeri") << 3 << QStringLiteral("FormMenuNumeri");
    QTest::newRow("blocchi") << 4 << QStringLiteral("FormMenuPLU");
    QTest::newRow("abaco") << 5 << QStringLiteral("FormMenuAbaco");
    QTest::newRow("tabella") << 6 << QStringLiteral("FormMenuTabella");
  }
  void everyButtonLeadsToItsMenuAndUnloadsThisForm() {
    QFETCH(int, bottone);
    QFETCH(QString, forma);
    Banco banco(kFinestra, prova::SenzaEsercizi);
    FormMenu& menu = apriMenu(banco);
    const platform::Button* bottoni[] = {&menu.Command1,
                                         &pulsante(menu, "Command2"),
                                         &pulsante(menu, "Command3"),
                                         &pulsante(menu, "Command4"),
                                         &pulsante(menu, "Command5"),
                                         &pulsante(menu, "Command6")};
    banco.clicca(*bottoni[bottone - 1]);
    QCOMPARE(banco.nomeForma(), forma);
    for (const auto& caricata : banco.ambiente->fondo.forms().all()) {
      QVERIFY(caricata->name() != QStringLiteral("FormMenu"));
    }
  }

  void theExitEndsTheProcessAtOnceAndClosesNothingFirst() {
    Banco banco;
    FormMenu& menu = apriMenu(banco);
    banco.clicca(menu.Command1);
    QCOMPARE(banco.fine.stato, std::optional<int>(0));
    QVERIFY(!menu.isUnloaded());
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenu"));
  }

  void closingTheWindowEndsTheProgramAlthoughTheSplashFormIsLoadedForItsIcon() {
    Banco banco;
    apriMenu(banco);
    const auto caricate = banco.ambiente->fondo.forms().all();
    QVERIFY(std::any_of(caricate.begin(), caricate.end(), [](const auto& forma) {
      return forma->name() == QStringLiteral("FormAvvio");
    }));
    banco.ambiente->fondo.window().close();
    QCOMPARE(banco.fine.stato, std::optional<int>(0));
  }

  void theGradientStandsBehindTheButtons() {
    Banco banco;
    QVERIFY(apriMenu(banco).page()->canvas()->hasGradient());
  }

  void loadingClearsBothCounters() {
    Banco banco;
    banco.ambiente->stato.ContaEsatti = 3;
    banco.ambiente->stato.ContaErrati = 2;
    apriMenu(banco);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
  }

  void theWordsOfTheSoundsAfterAClickAreNotThoseOfTheNextLoad() {
    Banco banco(kFinestra, prova::SenzaEsercizi);
    banco.metti(QStringLiteral("Italiano.lng"), kParoleSuoni);
    {
      FormMenu& menu = apriMenu(banco);
      QCOMPARE(menu.MnuSuoni.caption(), QStringLiteral("caricato acceso"));
      banco.batti(Qt::Key_S, Qt::ControlModifier);
      QVERIFY(!banco.ambiente->stato.SuoniAttivi);
      QCOMPARE(menu.MnuSuoni.caption(), QStringLiteral("cliccato spento"));
      banco.batti(Qt::Key_S, Qt::ControlModifier);
      QCOMPARE(menu.MnuSuoni.caption(), QStringLiteral("cliccato acceso"));
      banco.batti(Qt::Key_S, Qt::ControlModifier);
      scegliVoce(menu.mnuAbout);
    }
    banco.clicca(banco.forma<somme::FormInfo>().Command1);
    QCOMPARE(banco.forma<FormMenu>().MnuSuoni.caption(), QStringLiteral("caricato spento"));
  }

  void aHeldShortcutActsOnce() {
    Banco banco;
    apriMenu(banco);
    banco.premi(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!banco.ambiente->stato.SuoniAttivi);
    banco.ripeti(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!banco.ambiente->stato.SuoniAttivi);
    banco.ripeti(Qt::Key_S, Qt::ControlModifier);
    banco.lascia(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!banco.ambiente->stato.SuoniAttivi);
  }

  void thePointerChangesHereAtOnceAndElsewhereAtTheNextLoad() {
    Banco banco;
    FormMenu& menu = apriMenu(banco);
    QCOMPARE(pulsante(menu, "Command2").mousePointer(), 99);
    QVERIFY(!menu.mnuUsaCursoreDiSistema.isChecked());
    banco.batti(Qt::Key_K, Qt::ControlModifier);
    QVERIFY(banco.ambiente->stato.CursoreDiSistema);
    QVERIFY(menu.mnuUsaCursoreDiSistema.isChecked());
    QCOMPARE(pulsante(menu, "Command2").mousePointer(), 0);
    QCOMPARE(pulsante(menu, "Command2").widget()->cursor().shape(), Qt::ArrowCursor);
    banco.clicca(pulsante(menu, "Command2"));
    for (const platform::Control* controllo : banco.ambiente->fondo.forms().current()->controls()) {
      QCOMPARE(controllo->mousePointer(), 0);
    }
  }

  void aModeOtherThanMouseHidesTheTableAtOnceAndStillAfterComingBack() {
    Banco banco;
    {
      FormMenu& menu = apriMenu(banco);
      QVERIFY(pulsante(menu, "Command6").isVisible());
      QVERIFY(menu.mnuInput[0].isChecked());
      banco.batti(Qt::Key_A, Qt::ControlModifier);
      QCOMPARE(banco.ambiente->stato.ModalitaInput, qint16(2));
      QVERIFY(!pulsante(menu, "Command6").isVisible());
      for (int i = 0; i < 4; ++i) QCOMPARE(menu.mnuInput[i].isChecked(), i == 2);
      scegliVoce(menu.mnuAbout);
    }
    banco.clicca(banco.forma<somme::FormInfo>().Command1);
    FormMenu& menu = banco.forma<FormMenu>();
    QVERIFY(!pulsante(menu, "Command6").isVisible());
    for (int i = 0; i < 4; ++i) QCOMPARE(menu.mnuInput[i].isChecked(), i == 2);
    banco.batti(Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(banco.ambiente->stato.ModalitaInput, qint16(0));
    QVERIFY(pulsante(menu, "Command6").isVisible());
  }

  void theModesHaveTheirShortcuts_data() {
    QTest::addColumn<int>("tasto");
    QTest::addColumn<qint16>("modalita");
    QTest::newRow("mouse") << int(Qt::Key_D) << qint16(0);
    QTest::newRow("manuale") << int(Qt::Key_M) << qint16(1);
    QTest::newRow("automatica") << int(Qt::Key_A) << qint16(2);
    QTest::newRow("HelpiKeys") << int(Qt::Key_H) << qint16(3);
  }
  void theModesHaveTheirShortcuts() {
    QFETCH(int, tasto);
    QFETCH(qint16, modalita);
    Banco banco;
    banco.ambiente->stato.ModalitaInput = modalita == 0 ? 1 : 0;
    FormMenu& menu = apriMenu(banco);
    banco.batti(tasto, Qt::ControlModifier);
    QCOMPARE(banco.ambiente->stato.ModalitaInput, modalita);
    for (int i = 0; i < 4; ++i) QCOMPARE(menu.mnuInput[i].isChecked(), i == modalita);
  }

  void theSeparatorIsAnItemOfThirtyTwoHyphens() {
    Banco banco;
    const FormMenu& menu = apriMenu(banco);
    QCOMPARE(menu.mnuLinea1.caption(), QString(32, u'-'));
    QVERIFY(!menu.mnuLinea1.action()->isSeparator());
  }

  void theIntervalPanelCoversTheFormAndTakesTheFocus() {
    Banco banco;
    FormMenu& menu = apriMenu(banco);
    QVERIFY(!menu.PictureTempoScansione.isVisible());
    banco.batti(Qt::Key_T, Qt::ControlModifier);
    QVERIFY(menu.PictureTempoScansione.isVisible());
    QCOMPARE(menu.PictureTempoScansione.left(), 0.0);
    QCOMPARE(menu.PictureTempoScansione.top(), 0.0);
    QCOMPARE(menu.PictureTempoScansione.width(), menu.width());
    QCOMPARE(menu.PictureTempoScansione.height(), menu.height());
    QVERIFY(menu.CommandConfermaTempoInput.hasFocus());
    QVERIFY(!pulsante(menu, "Command2").isLive());
    QCOMPARE(menu.HScrollScansione.value(), 4);
    QCOMPARE(menu.LabelTempoScansione.caption(),
             QStringLiteral("Velocità scansione: 1.00 secondi"));
    banco.clicca(menu.CommandConfermaTempoInput);
    QVERIFY(!menu.PictureTempoScansione.isVisible());
    QVERIFY(pulsante(menu, "Command2").isLive());
  }

  void theScaleRunsFromOneSecondToFifteen() {
    Banco banco;
    FormMenu& menu = apriMenu(banco);
    banco.batti(Qt::Key_T, Qt::ControlModifier);
    menu.HScrollScansione.setFocus();
    banco.batti(Qt::Key_End);
    QCOMPARE(banco.ambiente->stato.TempoScansione, qint16(60));
    QCOMPARE(menu.LabelTempoScansione.caption(),
             QStringLiteral("Velocità scansione: 15.00 secondi"));
    banco.batti(Qt::Key_Left);
    QCOMPARE(menu.LabelTempoScansione.caption(),
             QStringLiteral("Velocità scansione: 14.75 secondi"));
    banco.batti(Qt::Key_Home);
    QCOMPARE(banco.ambiente->stato.TempoScansione, qint16(4));
    QCOMPARE(menu.LabelTempoScansione.caption(),
             QStringLiteral("Velocità scansione: 1.00 secondi"));
  }

  void theIntervalChangesWhileTheThumbIsDragged() {
    Banco banco;
    FormMenu& menu = apriMenu(banco);
    banco.batti(Qt::Key_T, Qt::ControlModifier);
    const QWidget* barra = menu.HScrollScansione.widget();
    const QPoint centro = banco.centro(menu.HScrollScansione);
    QTest::mousePress(banco.finestra(), Qt::LeftButton, {}, centro);
    QCOMPARE(banco.ambiente->stato.TempoScansione, qint16(32));
    QTest::mouseMove(banco.finestra(), centro + QPoint(barra->width() / 4, 0));
    QCoreApplication::processEvents();
    const qint16 durante = banco.ambiente->stato.TempoScansione;
    QVERIFY2(durante > 40 && durante < 60, qPrintable(QString::number(durante)));
    QCOMPARE(menu.HScrollScansione.value(), int(durante));
    QTest::mouseRelease(banco.finestra(), Qt::LeftButton, {}, centro);
    // Confirming only closes: the interval has changed already, and the panel knows it again.
    banco.clicca(menu.CommandConfermaTempoInput);
    const qint16 scelto = banco.ambiente->stato.TempoScansione;
    banco.batti(Qt::Key_T, Qt::ControlModifier);
    QCOMPARE(menu.HScrollScansione.value(), int(scelto));
  }

  void theManualIsAskedForBesideTheProgramAndItsAbsenceSaysNothing() {
    Banco banco;
    const FormMenu& menu = apriMenu(banco);
    scegliVoce(menu.MnuDoc);
    QCOMPARE(banco.documenti.aperti, QStringList{banco.percorso(QStringLiteral("somme.pdf"))});
    QVERIFY(banco.messaggi.mostrati.empty());
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenu"));
  }

  void theCreditsComeAndGoBackToAFreshMenu() {
    Banco banco;
    const FormMenu& menu = apriMenu(banco);
    scegliVoce(menu.mnuAbout);
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormInfo"));
    banco.clicca(banco.forma<somme::FormInfo>().Command1);
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenu"));
  }

  void hidingTheTableWithTheFocusHandsTheFocusOn() {
    Banco banco;
    FormMenu& menu = apriMenu(banco);
    pulsante(menu, "Command6").setFocus();
    QVERIFY(pulsante(menu, "Command6").hasFocus());
    banco.batti(Qt::Key_M, Qt::ControlModifier);
    QVERIFY(pulsante(menu, "Command4").hasFocus());
  }
};

const prova::Iscrizione<FormMenuTest, QApplication> kIscritta;

}  // namespace form_menu_test

#include "form_menu_test.moc"
