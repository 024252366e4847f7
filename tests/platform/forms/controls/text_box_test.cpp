#include "platform/forms/controls/text_box.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>

#include "support/iscrizione.h"
#include "text_box_di_prova.h"

namespace text_box_test {

using casella::Fondo;
using casella::Prova;
using casella::rigaDi;
using platform::TextBox;

namespace {

void soloCifre(int& tasto) {
  if (tasto != 8 && (tasto < '0' || tasto > '9')) tasto = 0;
}

void componi(TextBox& casella, const QString& testo) {
  QInputMethodEvent evento;
  evento.setCommitString(testo);
  QCoreApplication::sendEvent(casella.widget(), &evento);
}

void lascia(TextBox& casella, const QString& testo) {
  QMimeData dati;
  dati.setText(testo);
  QDragEnterEvent entra(QPoint(5, 5), Qt::CopyAction, &dati, Qt::LeftButton, {});
  QCoreApplication::sendEvent(casella.widget(), &entra);
  QDropEvent evento(QPointF(5, 5), Qt::CopyAction, &dati, Qt::LeftButton, {});
  QCoreApplication::sendEvent(casella.widget(), &evento);
}

void metti(const QString& testo) {
  QApplication::clipboard()->setText(testo);
}

}  // namespace

class TextBoxTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void typingStopsAtTheLimit() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.Casella.setFocus();
    fondo.scrivi(QStringLiteral("12345"));
    QCOMPARE(forma.Casella.text(), QStringLiteral("1234"));
    fondo.batti(Qt::Key_Backspace);
    fondo.scrivi(QStringLiteral("99"));
    QCOMPARE(forma.Casella.text(), QStringLiteral("1239"));
  }

  void theProgramMaySetMoreThanTheLimit() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.Casella.setText(QStringLiteral("1234567"));
    QCOMPARE(forma.Casella.text(), QStringLiteral("1234567"));
    forma.Casella.setFocus();
    fondo.scrivi(QStringLiteral("8"));
    QCOMPARE(forma.Casella.text(), QStringLiteral("1234567"));
    // Setting the limit cuts nothing either.
    forma.Casella.setMaxLength(2);
    QCOMPARE(forma.Casella.text(), QStringLiteral("1234567"));
  }

  void whatIsSelectedMakesRoom() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.Casella.setFocus();
    fondo.scrivi(QStringLiteral("1234"));
    rigaDi(forma.Casella).setSelection(1, 2);
    metti(QStringLiteral("789"));
    fondo.batti(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(forma.Casella.text(), QStringLiteral("1784"));
  }

  void theFilterSeesEachKeyAndCanChangeOrDropIt() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    QList<int> visti;
    forma.filtro = [&visti](int& tasto) {
      visti.append(tasto);
      if (tasto == 'a') tasto = 'b';
      if (tasto == 'x') tasto = 0;
    };
    forma.Casella.setFocus();
    fondo.scrivi(QStringLiteral("ax1"));
    QCOMPARE(forma.Casella.text(), QStringLiteral("b1"));
    fondo.batti(Qt::Key_Backspace);
    fondo.batti(Qt::Key_Return);
    QCOMPARE(visti, (QList<int>{'a', 'x', '1', 8, 13}));
    QCOMPARE(forma.Casella.text(), QStringLiteral("b"));
  }

  void aBackspaceThatTheFilterDropsErasesNothing() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.filtro = [](int& tasto) {
      if (tasto == 8) tasto = 0;
    };
    forma.Casella.setFocus();
    fondo.scrivi(QStringLiteral("12"));
    fondo.batti(Qt::Key_Backspace);
    QCOMPARE(forma.Casella.text(), QStringLiteral("12"));
  }

  void pastedTextIsFilteredAndStopsAtTheLimit_data() {
    QTest::addColumn<int>("tasto");
    QTest::addColumn<int>("con");
    QTest::newRow("Ctrl+V") << int(Qt::Key_V) << int(Qt::ControlModifier);
    QTest::newRow("Shift+Insert") << int(Qt::Key_Insert) << int(Qt::ShiftModifier);
  }
  void pastedTextIsFilteredAndStopsAtTheLimit() {
    QFETCH(int, tasto);
    QFETCH(int, con);
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.filtro = soloCifre;
    forma.Casella.setFocus();
    metti(QStringLiteral("a1-2 3\n4x5"));
    fondo.batti(tasto, Qt::KeyboardModifiers(con));
    QCOMPARE(forma.Casella.text(), QStringLiteral("1234"));
  }

  void aDropIsFilteredAndStopsAtTheLimit() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.filtro = soloCifre;
    lascia(forma.Casella, QStringLiteral("7 ottobre 12 e 345"));
    QCOMPARE(forma.Casella.text(), QStringLiteral("7123"));
  }

  void whatAnInputMethodHandsOverIsFilteredAndStopsAtTheLimit() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.filtro = soloCifre;
    forma.Casella.setFocus();
    componi(forma.Casella, QStringLiteral("１2é34567"));
    QCOMPARE(forma.Casella.text(), QStringLiteral("2345"));
  }

  void whatIsStillComposedIsNoTextYet() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.filtro = soloCifre;
    forma.Casella.setFocus();
    QInputMethodEvent evento(QStringLiteral("abc"), {});
    QCoreApplication::sendEvent(forma.Casella.widget(), &evento);
    QCOMPARE(forma.Casella.text(), QString());
    componi(forma.Casella, QStringLiteral("4"));
    QCOMPARE(forma.Casella.text(), QStringLiteral("4"));
    QCOMPARE(rigaDi(forma.Casella).displayText(), QStringLiteral("4"));
  }

  void whatAssistiveTechnologyWritesIsFilteredToo() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.filtro = soloCifre;
    forma.Casella.setText(QStringLiteral("9"));
    QAccessibleInterface* accesso = QAccessible::queryAccessibleInterface(forma.Casella.widget());
    QVERIFY(accesso != nullptr);
    accesso->setText(QAccessible::Value, QStringLiteral("a1b2c3d4e5"));
    QCoreApplication::processEvents();
    QCOMPARE(forma.Casella.text(), QStringLiteral("1234"));
    accesso->editableTextInterface()->insertText(0, QStringLiteral("x"));
    QCoreApplication::processEvents();
    QCOMPARE(forma.Casella.text(), QStringLiteral("1234"));
  }

  void aCharacterWithAltOrTheSystemsKeyIsNoText() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.Casella.setFocus();
    fondo.batti(Qt::Key_7, Qt::AltModifier);
    fondo.batti(Qt::Key_7, Qt::MetaModifier);
    fondo.batti(Qt::Key_7, Qt::ControlModifier);
    QCOMPARE(forma.Casella.text(), QString());
    // The third level of a key, as some desktops report it.
    fondo.batti(Qt::Key_7, Qt::AltModifier | Qt::ControlModifier);
    QCOMPARE(forma.Casella.text(), QStringLiteral("7"));
  }

  void undoBringsBackOnlyWhatWasThere() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.filtro = soloCifre;
    forma.Casella.setFocus();
    fondo.scrivi(QStringLiteral("12x"));
    fondo.batti(Qt::Key_Backspace);
    fondo.batti(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(forma.Casella.text(), QStringLiteral("12"));
    forma.Casella.setText(QString());
    fondo.batti(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(forma.Casella.text(), QString());
  }

  void aCharacterOfTwoUnitsIsNeverCutInTwo() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.Casella.setFocus();
    componi(forma.Casella, QStringLiteral("123\U0001F600"));
    QCOMPARE(forma.Casella.text(), QStringLiteral("123"));
  }

  void bothEnterKeysAreThirteenAtTheirRelease() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.Casella.setFocus();
    QTest::keyPress(fondo.finestra(), Qt::Key_Return);
    QVERIFY(forma.rilasciati.isEmpty());
    QTest::keyRelease(fondo.finestra(), Qt::Key_Return);
    fondo.batti(Qt::Key_Enter, Qt::KeypadModifier);
    fondo.batti(Qt::Key_Return, Qt::ShiftModifier);
    fondo.batti(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(forma.rilasciati.count(13), 4);
    forma.rilasciati.clear();
    fondo.batti(Qt::Key_5);
    fondo.batti(Qt::Key_A);
    QCOMPARE(forma.rilasciati, (QList<int>{'5', 'A'}));
  }

  void eachChangeIsToldOnceAlsoThoseOfTheProgram() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.Casella.setFocus();
    fondo.scrivi(QStringLiteral("1"));
    forma.Casella.setText(QStringLiteral("77"));
    forma.Casella.setText(QStringLiteral("77"));
    metti(QStringLiteral("89"));
    fondo.batti(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(forma.cambiamenti,
             (QStringList{QStringLiteral("1"), QStringLiteral("77"), QStringLiteral("7789")}));
  }

  void aLockedBoxTakesTheFocusAndKeysButItsTextStays() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    QList<int> rilasciati;
    forma.Bloccata.onKeyUp([&rilasciati](int tasto) { rilasciati.append(tasto); });
    forma.Bloccata.setFocus();
    QVERIFY(forma.Bloccata.hasFocus());
    metti(QStringLiteral("altro"));
    fondo.scrivi(QStringLiteral("5"));
    fondo.batti(Qt::Key_V, Qt::ControlModifier);
    fondo.batti(Qt::Key_Backspace);
    lascia(forma.Bloccata, QStringLiteral("3"));
    componi(forma.Bloccata, QStringLiteral("4"));
    fondo.batti(Qt::Key_Return);
    QCOMPARE(forma.Bloccata.text(), QStringLiteral("fermo"));
    QVERIFY(rilasciati.endsWith(13));
    forma.Bloccata.setText(QStringLiteral("dal programma"));
    QCOMPARE(forma.Bloccata.text(), QStringLiteral("dal programma"));
  }

  void aLockedBoxIsLetGoAgain() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.Bloccata.setLocked(false);
    forma.Bloccata.setText(QString());
    forma.Bloccata.setFocus();
    fondo.scrivi(QStringLiteral("5"));
    QCOMPARE(forma.Bloccata.text(), QStringLiteral("5"));
  }

  void theTextOfTheDesignIsNoChange() {
    Fondo fondo;
    QCOMPARE(fondo.forma().Bloccata.text(), QStringLiteral("fermo"));
    QVERIFY(fondo.forma().cambiamenti.isEmpty());
  }

  void tabDoesNotSelectTheText() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.Casella.setText(QStringLiteral("12"));
    forma.Bottone.setFocus();
    fondo.batti(Qt::Key_Tab);
    QVERIFY(forma.Casella.hasFocus());
    fondo.scrivi(QStringLiteral("3"));
    QCOMPARE(forma.Casella.text(), QStringLiteral("123"));
  }
};

const prova::Iscrizione<TextBoxTest, QApplication> kIscritta;

}  // namespace text_box_test

#include "text_box_test.moc"
