#include "platform/forms/controls/text_box.h"

#include <QAbstractEventDispatcher>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>

#include "platform/forms/controls/button.h"
#include "platform/forms/proportional_layout.h"
#include "support/fondo_di_prova.h"
#include "support/iscrizione.h"

using platform::Form;
using platform::Row;
using platform::row;
using platform::Runtime;
using platform::TextBox;

namespace {

class Prova;
extern const platform::FormDesign kDisegno;

class Prova : public Form {
 public:
  explicit Prova(Runtime& runtime) : Form(runtime, kDisegno) {
    Casella.onKeyPress([this](int& tasto) {
      if (filtro) filtro(tasto);
    });
    Casella.onKeyUp([this](int tasto) { rilasciati.append(tasto); });
    Casella.onChange([this] { cambiamenti.append(Casella.text()); });
  }

  TextBox Casella{*this};
  TextBox Bloccata{*this};
  platform::Button Bottone{*this};

  std::function<void(int&)> filtro;
  QList<int> rilasciati;
  QStringList cambiamenti;

 protected:
  void onLoad() override { layout_.start(); }
  void onResize() override { layout_.resize(); }

 private:
  platform::ProportionalLayout layout_{*this};
};

constexpr auto kRighe = std::to_array<Row>({
    row<&Prova::Casella>(
        {1000, 1000, 3000, 900},
        {.toolTip = "Il numero", .font = {platform::Face::Tahoma, 24}, .maxLength = 4}),
    row<&Prova::Bloccata>({1000, 3000, 3000, 900}, {.caption = "fermo", .locked = true}),
    row<&Prova::Bottone>({1000, 5000, 3000, 900}, {.caption = "vai"}),
});
constexpr std::array<std::span<const Row>, 1> kTavole{kRighe};
const platform::FormDesign kDisegno{
    .name = "Prova", .caption = "Prova", .width = 15000, .height = 10500, .tables = kTavole};

using Fondo = prova::FondoDiProva<Prova>;

void soloCifre(int& tasto) {
  if (tasto != 8 && (tasto < '0' || tasto > '9')) tasto = 0;
}

QLineEdit& rigaDi(TextBox& casella) {
  return *qobject_cast<QLineEdit*>(casella.widget());
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

// The timers by which the box's cursor blinks.
qsizetype battiti(TextBox& casella) {
  qsizetype quanti = 0;
  for (QObject* parte : rigaDi(casella).findChildren<QObject*>()) {
    quanti += QAbstractEventDispatcher::instance()->registeredTimers(parte).size();
  }
  return quanti;
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
#include "text_box_test.moc"
