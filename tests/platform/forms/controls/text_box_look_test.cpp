#include <QAbstractEventDispatcher>
#include <QAccessible>
#include <QApplication>

#include "support/iscrizione.h"
#include "text_box_di_prova.h"

using casella::Fondo;
using casella::Prova;
using casella::rigaDi;
using platform::TextBox;

namespace {

// The timers by which the box's cursor blinks.
qsizetype battiti(TextBox& casella) {
  qsizetype quanti = 0;
  for (QObject* parte : rigaDi(casella).findChildren<QObject*>()) {
    quanti += QAbstractEventDispatcher::instance()->registeredTimers(parte).size();
  }
  return quanti;
}

}  // namespace

// What is seen and spoken of a text box: letters, cursor, ring, name.
class TextBoxLookTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aNumberThatDoesNotFitTakesASmallerFont() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.Casella.setText(QStringLiteral("1"));
    const int larga = rigaDi(forma.Casella).font().pixelSize();
    QCOMPARE(larga, qRound(24.0 * 20 / 15));
    forma.Casella.setText(QStringLiteral("123 456 789 012"));
    const QLineEdit& riga = rigaDi(forma.Casella);
    QVERIFY(riga.font().pixelSize() < larga);
    QVERIFY(riga.fontMetrics().horizontalAdvance(riga.text()) < riga.width());
    forma.Casella.setText(QStringLiteral("1"));
    QCOMPARE(rigaDi(forma.Casella).font().pixelSize(), larga);
  }

  void theFontGrowsWithTheForm() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    fondo.ridimensiona({2000, 1400});
    QCOMPARE(rigaDi(forma.Casella).font().pixelSize(), qRound(24.0 * 20 / 15 * 2));
    QCOMPARE(forma.Casella.fontSize(), 48.0);
  }

  void noCursorBlinksWhileAnotherControlHasTheFocus() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.Casella.setFocus();
    forma.Bottone.setFocus();
    QCOMPARE(battiti(forma.Casella), 0);
    forma.Casella.setFocus();
    QCOMPARE(battiti(forma.Casella), 1);
    // Nothing can be written there, so that nothing blinks.
    forma.Casella.setLocked(true);
    QCOMPARE(battiti(forma.Casella), 0);
  }

  void theCursorStandsStillOnceNobodyTypesAndBlinksAgainWithTheNextKey() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.Casella.setFocus();
    QCOMPARE(battiti(forma.Casella), 1);
    QTest::qWait(2000);
    fondo.scrivi(QStringLiteral("1"));
    QTest::qWait(2000);
    QCOMPARE(battiti(forma.Casella), 1);
    QTRY_COMPARE_WITH_TIMEOUT(battiti(forma.Casella), 0, 5000);
    fondo.scrivi(QStringLiteral("2"));
    QCOMPARE(battiti(forma.Casella), 1);
    QTRY_COMPARE_WITH_TIMEOUT(battiti(forma.Casella), 0, 5000);
    forma.Bottone.setFocus();
    forma.Casella.setFocus();
    QCOMPARE(battiti(forma.Casella), 1);
  }

  void theFocusShowsAsARingOfTwoPixelsAtLeast() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.Bottone.setFocus();
    const QImage senza = forma.Casella.widget()->grab().toImage();
    forma.Casella.setFocus();
    const QImage con = forma.Casella.widget()->grab().toImage();
    for (int i = 0; i < 2; ++i) {
      for (int x = i; x < con.width() - i; ++x)
        QVERIFY(con.pixel(x, i) != senza.pixel(x, i) || i > 0);
      QCOMPARE(con.pixelColor(con.width() / 2, i), con.pixelColor(i, con.height() / 2));
      QVERIFY(con.pixelColor(con.width() / 2, i).lightness() < 80);
    }
  }

  void faintInkIsOutlined() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.Bottone.setFocus();
    forma.Casella.setForeColor({0, 255, 255});
    forma.Casella.setText(QStringLiteral("8"));
    const QImage immagine = forma.Casella.widget()->grab().toImage();
    int scuri = 0;
    int ciano = 0;
    for (int y = 6; y < immagine.height() - 6; ++y) {
      for (int x = 6; x < immagine.width() - 6; ++x) {
        const QColor punto = immagine.pixelColor(x, y);
        scuri += punto.lightness() < 60 ? 1 : 0;
        ciano += punto == QColor(0, 255, 255) ? 1 : 0;
      }
    }
    QVERIFY(scuri > 10);
    QVERIFY(ciano > 10);
  }

  void theToolTipIsTheSpokenNameAndThereIsNoContextMenu() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    QAccessibleInterface* accesso = QAccessible::queryAccessibleInterface(forma.Casella.widget());
    QCOMPARE(accesso->text(QAccessible::Name), QStringLiteral("Il numero"));
    QCOMPARE(accesso->role(), QAccessible::EditableText);
    QCOMPARE(forma.Casella.widget()->objectName(), QStringLiteral("Casella"));
    fondo.clicca(forma.Casella, Qt::RightButton);
    QVERIFY(QApplication::activePopupWidget() == nullptr);
  }
};

const prova::Iscrizione<TextBoxLookTest, QApplication> kIscritta;
#include "text_box_look_test.moc"
