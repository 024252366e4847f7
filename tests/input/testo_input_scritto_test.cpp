#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>

#include "ospite_testo.h"
#include "support/iscrizione.h"

namespace testo_input_scritto_test {

using platform::RunTimeError;
using Fondo = prova::FondoTesto;

// What is typed into the control for numbers, and what becomes of it.
class TestoInputScrittoTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void onlyDigitsAreTaken() {
    Fondo fondo;
    fondo.scrivi(QStringLiteral("1a-2. ,e3+"));
    QCOMPARE(fondo.controllo.Text.get(), QStringLiteral("123"));
    fondo.batti(Qt::Key_Backspace);
    QCOMPARE(fondo.controllo.Text.get(), QStringLiteral("12"));
  }

  void assistiveTechnologyConfirmsAndOpensTheBoxAgain() {
    Fondo fondo;
    const auto premi = [](const platform::TextBox& casella) {
      auto* azioni = QAccessible::queryAccessibleInterface(casella.widget())->actionInterface();
      const bool offerto =
          azioni->actionNames().contains(QAccessibleActionInterface::pressAction());
      azioni->doAction(QAccessibleActionInterface::pressAction());
      QCoreApplication::processEvents();
      return offerto;
    };
    fondo.scrivi(QStringLiteral("12"));
    QVERIFY(premi(fondo.controllo.TestoInput));
    QVERIFY(fondo.controllo.TestoOutput.isVisible());
    QVERIFY(premi(fondo.controllo.TestoOutput));
    QVERIFY(fondo.controllo.TestoInput.isVisible());
    QVERIFY(fondo.controllo.TestoInput.hasFocus());
    QVERIFY(!fondo.controllo.TestoOutput.isVisible());
    QVERIFY(!fondo.forma().eventi.isEmpty());
  }

  // A pupil who types on into a closed box must see why nothing comes.
  void aConfirmedBoxLooksClosedUntilItIsOpenedAndOneThatStaysClosedOffersNothing() {
    Fondo fondo;
    const auto ritratto = [&fondo] {
      fondo.forma().Altro.setFocus();
      QCoreApplication::processEvents();
      return fondo.controllo.widget()->grab().toImage();
    };
    fondo.scrivi(QStringLiteral("12"));
    const QImage scritto = ritratto();
    fondo.controllo.TestoInput.setFocus();
    fondo.batti(Qt::Key_Return);
    QVERIFY(fondo.confermato());
    const QImage chiuso = ritratto();
    // What tells it apart lies at the edge and at the right end; the number is where it was.
    const QRect numero = chiuso.rect().adjusted(chiuso.width() / 3, 8, -chiuso.width() / 3, -8);
    const QRect fine(chiuso.width() * 3 / 4, 8, chiuso.width() / 4 - 8, chiuso.height() - 16);
    QCOMPARE(chiuso.copy(numero), scritto.copy(numero));
    QVERIFY(chiuso.copy(fine) != scritto.copy(fine));
    fondo.clicca(fondo.controllo.TestoOutput);
    QVERIFY(fondo.inserisce());
    QCOMPARE(ritratto(), scritto);
    fondo.controllo.TestoInput.setFocus();
    fondo.batti(Qt::Key_Return);
    fondo.controllo.Enabled.set(false);
    QCOMPARE(ritratto().copy(fine), scritto.copy(fine));
  }

  void separatorsAreTakenWhereTheyAreAccepted() {
    Fondo fondo;
    fondo.controllo.AccettaSeparatori.set(true);
    fondo.scrivi(QStringLiteral("1 a2.-3,x4"));
    QCOMPARE(fondo.controllo.Text.get(), QStringLiteral("1 2.3,4"));
  }

  void keyPressComesAfterTheFilterWithADroppedKeyAsNought() {
    Fondo fondo;
    fondo.scrivi(QStringLiteral("1a"));
    fondo.batti(Qt::Key_Backspace);
    fondo.batti(Qt::Key_Return);
    QCOMPARE(fondo.forma().eventi,
             (QStringList{QStringLiteral("KeyPress 49"), QStringLiteral("Change '1'"),
                          QStringLiteral("KeyPress 0"), QStringLiteral("KeyPress 8"),
                          QStringLiteral("Change ''"), QStringLiteral("KeyPress 0")}));
  }

  void theHostChangesTheKeyByReference() {
    Fondo fondo;
    fondo.forma().cambiaTasto = [](qint16& tasto) {
      if (tasto == '5') tasto = '7';
      if (tasto == '6') tasto = 0;
    };
    fondo.scrivi(QStringLiteral("456"));
    QCOMPARE(fondo.controllo.Text.get(), QStringLiteral("47"));
  }

  void pastedAndComposedTextIsFilteredLikeTyping() {
    Fondo fondo;
    fondo.controllo.MaxLength.set(3);
    QApplication::clipboard()->setText(QStringLiteral("fa 1.234,50"));
    fondo.batti(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(fondo.controllo.Text.get(), QStringLiteral("123"));
    fondo.controllo.Reimposta();
    QInputMethodEvent evento;
    evento.setCommitString(QStringLiteral("x9²٣8"));
    QCoreApplication::sendEvent(fondo.controllo.TestoInput.widget(), &evento);
    QCOMPARE(fondo.controllo.Text.get(), QStringLiteral("98"));
  }

  void typingStopsAtMaxLengthAndTheProgramDoesNot() {
    Fondo fondo;
    fondo.controllo.MaxLength.set(2);
    fondo.scrivi(QStringLiteral("123"));
    QCOMPARE(fondo.controllo.Text.get(), QStringLiteral("12"));
    fondo.controllo.Text.set(QStringLiteral("12345"));
    QCOMPARE(fondo.controllo.Text.get(), QStringLiteral("12345"));
  }

  void enterOnAnEmptyOrBlankInputDoesNothing() {
    Fondo fondo;
    fondo.batti(Qt::Key_Return);
    fondo.controllo.Text.set(QStringLiteral("   "));
    fondo.batti(Qt::Key_Enter);
    QVERIFY(fondo.inserisce());
    QVERIFY(!fondo.forma().eventi.contains(QStringLiteral("Confermato")));
  }

  void terminaInserimentoOnAnEmptyBoxDoesNothing() {
    Fondo fondo;
    fondo.controllo.TerminaInserimento();
    QVERIFY(fondo.inserisce());
    QVERIFY(fondo.forma().eventi.isEmpty());
  }

  void enterConfirmsAtItsRelease() {
    Fondo fondo;
    fondo.scrivi(QStringLiteral("42"));
    QTest::keyPress(fondo.finestra(), Qt::Key_Return);
    QVERIFY(fondo.inserisce());
    QTest::keyRelease(fondo.finestra(), Qt::Key_Return);
    QVERIFY(fondo.confermato());
    QCOMPARE(fondo.controllo.ValoreInserito.toDouble(), 42.0);
    QCOMPARE(fondo.controllo.TestoFormattato, QStringLiteral("42"));
    QCOMPARE(fondo.forma().eventi.last(), QStringLiteral("Confermato"));
  }

  void enterConfirmsWhateverTheShiftState() {
    Fondo fondo;
    int attese = 0;
    for (const Qt::KeyboardModifier con : {Qt::ShiftModifier, Qt::ControlModifier}) {
      fondo.controllo.Reimposta();
      fondo.scrivi(QStringLiteral("8"));
      fondo.batti(Qt::Key_Return, con);
      QCOMPARE(fondo.forma().eventi.count(QStringLiteral("Confermato")), ++attese);
    }
  }

  void terminaInserimentoConfirmsLikeEnter() {
    Fondo fondo;
    fondo.controllo.Text.set(QStringLiteral("15"));
    fondo.controllo.TerminaInserimento();
    QVERIFY(fondo.confermato());
    QCOMPARE(fondo.controllo.TestoFormattato, QStringLiteral("15"));
    QCOMPARE(fondo.forma().eventi.count(QStringLiteral("Confermato")), 1);
  }

  void aHeldEnterConfirmsOnce() {
    Fondo fondo;
    fondo.scrivi(QStringLiteral("5"));
    QTest::keyPress(fondo.finestra(), Qt::Key_Return);
    for (int i = 0; i < 20; ++i) {
      QKeyEvent ancora(QEvent::KeyPress, Qt::Key_Return, {}, QStringLiteral("\r"), true);
      QCoreApplication::sendEvent(fondo.finestra(), &ancora);
    }
    QTest::keyRelease(fondo.finestra(), Qt::Key_Return);
    QCOMPARE(fondo.forma().eventi.count(QStringLiteral("Confermato")), 1);
  }

  void theValueStopsAtAComma() {
    Fondo fondo;
    fondo.controllo.AccettaSeparatori.set(true);
    fondo.conferma(QStringLiteral("12,5"));
    QCOMPARE(fondo.controllo.ValoreInserito.toDouble(), 12.0);
    QCOMPARE(fondo.controllo.TestoFormattato, QStringLiteral("12"));
  }

  void aPointGivesDecimals() {
    Fondo fondo;
    fondo.controllo.AccettaSeparatori.set(true);
    fondo.conferma(QStringLiteral("12.5"));
    QCOMPARE(fondo.controllo.ValoreInserito.toDouble(), 12.5);
    QCOMPARE(fondo.controllo.TestoFormattato, QStringLiteral("12.5"));
  }

  void blanksBetweenDigitsAreSkipped() {
    Fondo fondo;
    fondo.controllo.AccettaSeparatori.set(true);
    fondo.conferma(QStringLiteral(" 1 2 "));
    QCOMPARE(fondo.controllo.ValoreInserito.toDouble(), 12.0);
  }

  void sevenDigitsAreGroupedAndOneStandsAlone() {
    Fondo fondo;
    fondo.conferma(QStringLiteral("1234567"));
    QCOMPARE(fondo.controllo.TestoFormattato, QStringLiteral("1 234 567"));
    QCOMPARE(fondo.controllo.TestoOutput.text(), QStringLiteral("1 234 567"));
    fondo.controllo.Reimposta();
    fondo.conferma(QStringLiteral("7"));
    QCOMPARE(fondo.controllo.TestoFormattato, QStringLiteral("7"));
  }

  void leadingNoughtsFallAway() {
    Fondo fondo;
    fondo.conferma(QStringLiteral("007"));
    QCOMPARE(fondo.controllo.ValoreInserito.toDouble(), 7.0);
    QCOMPARE(fondo.controllo.TestoFormattato, QStringLiteral("7"));
    // What was typed stays in the input box until it is edited.
    QCOMPARE(fondo.controllo.Text.get(), QStringLiteral("007"));
  }

  void theFormatsAreThoseThatAreSet() {
    Fondo fondo;
    fondo.controllo.FormatoNumericoIntero.set(QStringLiteral("# ##0"));
    fondo.controllo.FormatoNumericoDecimale.set(QStringLiteral("##0.00"));
    fondo.controllo.AccettaSeparatori.set(true);
    fondo.conferma(QStringLiteral("1234"));
    QCOMPARE(fondo.controllo.TestoFormattato, QStringLiteral("1 234"));
    fondo.controllo.Reimposta();
    fondo.conferma(QStringLiteral("1.5"));
    QCOMPARE(fondo.controllo.TestoFormattato, QStringLiteral("1.50"));
  }

  void aNumberThatACurrencyCannotHoldIsAnOverflow() {
    Fondo fondo;
    fondo.conferma(QString(16, u'9'));
    QCOMPARE(fondo.fine.stato.value_or(0), 1);
    QCOMPARE(fondo.messaggi.mostrati.size(), std::size_t(1));
    QVERIFY(fondo.messaggi.mostrati[0].text.contains(QStringLiteral("'6'")));
    QVERIFY(!fondo.forma().eventi.contains(QStringLiteral("Confermato")));
  }

  void soIsARowOfDigitsThatNoFloatCanHold() {
    Fondo fondo;
    fondo.controllo.Text.set(QString(400, u'9'));
    int numero = 0;
    try {
      fondo.controllo.TerminaInserimento();
    } catch (const RunTimeError& errore) {
      numero = errore.number();
    }
    QCOMPARE(numero, 6);
    QVERIFY(fondo.inserisce());
  }

  void aLongNumberIsKeptToTheLastDigit() {
    Fondo fondo;
    fondo.conferma(QStringLiteral("900719925473"));
    QCOMPARE(fondo.controllo.ValoreInserito.wholePart(), qint64(900719925473));
    QVERIFY(fondo.confermato());
    QCOMPARE(fondo.controllo.TestoFormattato, QStringLiteral("900719 925 473"));
  }
};

const prova::Iscrizione<TestoInputScrittoTest, QApplication> kIscritta;

}  // namespace testo_input_scritto_test

#include "testo_input_scritto_test.moc"
