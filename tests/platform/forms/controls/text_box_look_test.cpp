#include <QAbstractEventDispatcher>
#include <QAccessible>
#include <QApplication>

#include "platform/forms/focus_ring.h"
#include "platform/forms/text_block.h"
#include "support/iscrizione.h"
#include "text_box_di_prova.h"

namespace text_box_look_test {

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

QImage ritratto(const platform::Control& controllo) {
  return controllo.widget()->grab().toImage();
}

// The rows in which a part of a picture has something dark, from the first to the last.
QRect scuro(const QImage& immagine, const QRect& dove) {
  QRect tutto;
  for (int y = dove.top(); y <= dove.bottom(); ++y) {
    for (int x = dove.left(); x <= dove.right(); ++x) {
      if (immagine.pixelColor(x, y).lightness() < 100) tutto |= QRect(x, y, 1, 1);
    }
  }
  return tutto;
}

// The place of the text cursor in a picture of the box, by its blue.
QRect cursore(const QImage& immagine) {
  QRect tutto;
  for (int y = 0; y < immagine.height(); ++y) {
    for (int x = 0; x < immagine.width(); ++x) {
      if (immagine.pixelColor(x, y) == QColor(47, 127, 230)) tutto |= QRect(x, y, 1, 1);
    }
  }
  return tutto;
}

// How often the edge of a box changes along its upper side, from one end to the other.
int spezzature(const QImage& immagine, int riga) {
  int quante = 0;
  for (int x = 9; x < immagine.width() - 8; ++x) {
    const bool prima = immagine.pixelColor(x - 1, riga).lightness() < 160;
    quante += prima != (immagine.pixelColor(x, riga).lightness() < 160) ? 1 : 0;
  }
  return quante;
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
      for (int x = i; x < con.width() - i; ++x) {
        QVERIFY(con.pixel(x, i) != senza.pixel(x, i) || i > 0);
      }
      QCOMPARE(con.pixelColor(con.width() / 2, i), con.pixelColor(i, con.height() / 2));
      QVERIFY(con.pixelColor(con.width() / 2, i).lightness() < 80);
    }
  }

  void whatIsTypedStandsOnTheLineOfWhatIsWrittenBesideIt_data() {
    QTest::addColumn<QSize>("lato");
    for (const QSize& lato : {QSize(800, 600), QSize(1024, 768), QSize(1366, 768),
                              QSize(1920, 1080), QSize(3840, 2160)}) {
      QTest::addRow("%dx%d", lato.width(), lato.height()) << lato;
    }
  }
  void whatIsTypedStandsOnTheLineOfWhatIsWrittenBesideIt() {
    QFETCH(QSize, lato);
    Fondo fondo(lato);
    Prova& forma = fondo.forma();
    forma.Casella.setText(QStringLiteral("1082"));
    forma.Bottone.setFocus();
    const QImage casella = ritratto(forma.Casella);
    const QImage scritta = ritratto(forma.Scritta);
    QCOMPARE(casella.height(), scritta.height());
    const QRect dentro = casella.rect().adjusted(3, 3, -3, -3);
    const QRect battuto = scuro(casella, dentro);
    const QRect scritto = scuro(scritta, dentro);
    QVERIFY(battuto.height() > 10);
    QCOMPARE(battuto.top(), scritto.top());
    QCOMPARE(battuto.bottom(), scritto.bottom());
  }

  void theCursorIsAsTallAsADigitAndStandsOnItsLine() {
    for (const QSize& lato : {QSize(800, 600), QSize(1366, 768), QSize(3840, 2160)}) {
      Fondo fondo(lato);
      Prova& forma = fondo.forma();
      forma.Casella.setFocus();
      fondo.scrivi(QStringLiteral("8"));
      const QImage immagine = ritratto(forma.Casella);
      const int bordo = int(8 * platform::markScale(*forma.Casella.widget()));
      const QRect cifra = scuro(immagine, immagine.rect().adjusted(bordo, bordo, -bordo, -bordo));
      const QRect segno = cursore(immagine);
      QVERIFY(!segno.isEmpty());
      QVERIFY(std::abs(segno.top() - cifra.top()) <= 1);
      QVERIFY(std::abs(segno.bottom() - cifra.bottom()) <= 1);
      QVERIFY(segno.width() >= 3 * lato.height() / 768 - 1);
      QVERIFY(segno.left() >= cifra.right());
      QVERIFY(segno.height() < immagine.height() * 2 / 3);
    }
  }

  void theCursorIsSeenOnAGroundOfAnyColor() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.Casella.setFocus();
    for (const platform::Rgb ground : {platform::Rgb{255, 255, 255}, platform::Rgb{255, 192, 255},
                                       platform::Rgb{47, 127, 230}, platform::Rgb{0, 0, 0}}) {
      forma.Casella.setBackColor(ground);
      const QImage immagine = ritratto(forma.Casella);
      const QColor fondale = toColor(ground);
      double spicca = 1;
      for (int x = 10; x < immagine.width() - 10; ++x) {
        const QColor punto = immagine.pixelColor(x, immagine.height() / 2);
        spicca = std::max(spicca, platform::contrast(punto, fondale));
      }
      QVERIFY(spicca >= 3);
    }
  }

  // A faint digit has an outline, which is wider than the digit.
  void theCursorKeepsClearOfTheOutlineOfADigit() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.Casella.setForeColor({255, 0, 0});
    for (const char* cifra : {"1", "2", "7"}) {
      forma.Casella.setText(QLatin1String(cifra));
      forma.Casella.setFocus();
      rigaDi(forma.Casella).end(false);
      const QImage immagine = ritratto(forma.Casella);
      const QRect segno = cursore(immagine);
      QVERIFY(!segno.isEmpty());
      const QRect prima(8, 8, segno.left() - 8, immagine.height() - 16);
      const QRect inchiostro = scuro(immagine, prima);
      QVERIFY(!inchiostro.isEmpty());
      QVERIFY2(segno.left() - inchiostro.right() >= 3, cifra);
    }
  }

  void aLockedBoxHasNoCursor() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.Casella.setFocus();
    QVERIFY(!cursore(ritratto(forma.Casella)).isEmpty());
    forma.Casella.setLocked(true);
    QVERIFY(cursore(ritratto(forma.Casella)).isEmpty());
  }

  void aClosedBoxHasABrokenEdgeAndThePictureOfWhatOpensItAtTheRightEnd() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.Bottone.setFocus();
    const QImage aperta = ritratto(forma.Bloccata);
    forma.Bloccata.setOpener(QStringLiteral("matita"));
    const QImage chiusa = ritratto(forma.Bloccata);
    QVERIFY(spezzature(aperta, 0) == 0);
    QVERIFY(spezzature(chiusa, 1) > 10);
    const QRect destra(chiusa.width() * 3 / 4, 4, chiusa.width() / 4 - 4, chiusa.height() - 8);
    QVERIFY(scuro(aperta, destra).isEmpty());
    QVERIFY(scuro(chiusa, destra).height() > chiusa.height() / 3);
    forma.Bloccata.setOpener(QStringLiteral("cestino"));
    QVERIFY(ritratto(forma.Bloccata).copy(destra) != chiusa.copy(destra));
    // With the focus, too.
    forma.Bloccata.setFocus();
    const QImage colFuoco = ritratto(forma.Bloccata);
    QVERIFY(spezzature(colFuoco, 7) > 10);
    QVERIFY(!scuro(colFuoco, destra.adjusted(0, 8, -8, -8)).isEmpty());
    forma.Bottone.setFocus();
    forma.Bloccata.setOpener({});
    QCOMPARE(ritratto(forma.Bloccata), aperta);
  }

  void aLongTextKeepsClearOfThePictureOfAClosedBox() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.Bottone.setFocus();
    forma.Bloccata.setFontSize(24);
    forma.Bloccata.setText(QStringLiteral("123 456 789"));
    const int larga = rigaDi(forma.Bloccata).font().pixelSize();
    forma.Bloccata.setOpener(QStringLiteral("matita"));
    QVERIFY(rigaDi(forma.Bloccata).font().pixelSize() < larga);
    QVERIFY(rigaDi(forma.Bloccata).fontMetrics().horizontalAdvance(forma.Bloccata.text()) <
            forma.Bloccata.widget()->width() * 3 / 4);
  }

  void thePointerOverAClosedBoxIsAHand() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    const auto sopra = [&forma] {
      QEnterEvent entra(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
      QCoreApplication::sendEvent(forma.Bloccata.widget(), &entra);
      return forma.Bloccata.widget()->cursor().shape();
    };
    // The program's own pointer is a hand already.
    forma.Bloccata.setOpener(QStringLiteral("matita"));
    QCOMPARE(sopra(), Qt::BitmapCursor);
    forma.Bloccata.setMousePointer(0);
    QCOMPARE(sopra(), Qt::PointingHandCursor);
    QCOMPARE(sopra(), Qt::PointingHandCursor);
    forma.Bloccata.setOpener({});
    QCOMPARE(sopra(), Qt::ArrowCursor);
    forma.Bloccata.setOpener(QStringLiteral("matita"));
    forma.Bloccata.setMousePointer(99);
    QCOMPARE(sopra(), Qt::BitmapCursor);
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

}  // namespace text_box_look_test

#include "text_box_look_test.moc"
