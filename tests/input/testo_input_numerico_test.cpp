#include "input/testo_input_numerico.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QFontInfo>
#include <QInputMethodEvent>

#include "platform/forms/controls/button.h"
#include "platform/forms/proportional_layout.h"
#include "support/fondo_di_prova.h"

using platform::PropertyBag;
using platform::PropertyValue;
using platform::Row;
using platform::row;
using platform::RunTimeError;
using somme::TestoInputNumerico;

namespace {

extern const platform::FormDesign kDisegno;

// A form with the control and a button after it; it writes down what the control tells.
class Ospite : public platform::Form {
 public:
  explicit Ospite(platform::Runtime& runtime) : Form(runtime, kDisegno) {
    TestoInput.onKeyDown([this] { eventi.append(QStringLiteral("KeyDown")); });
    TestoInput.onKeyPress([this](qint16& tasto) {
      eventi.append(QStringLiteral("KeyPress %1").arg(tasto));
      if (cambiaTasto) cambiaTasto(tasto);
    });
    TestoInput.onConfermato([this] { eventi.append(QStringLiteral("Confermato")); });
    TestoInput.onResize([this] { ++disposizioni; });
    TestoInput.onChange(
        [this] { eventi.append(QStringLiteral("Change '%1'").arg(TestoInput.Text.get())); });
  }

  TestoInputNumerico TestoInput{*this};
  platform::Button Altro{*this};

  QStringList eventi;
  int disposizioni = 0;
  std::function<void(qint16&)> cambiaTasto;

 protected:
  void onLoad() override { layout_.start(); }
  void onResize() override { layout_.resize(); }

 private:
  platform::ProportionalLayout layout_{*this};
};

constexpr auto kRighe = std::to_array<Row>({
    row<&Ospite::TestoInput>({1500, 1500, 4500, 1200}, {.toolTip = "Scrivi qui"}),
    row<&Ospite::Altro>({1500, 4500, 3000, 900}, {.caption = "altro"}),
});
constexpr std::array<std::span<const Row>, 1> kTavole{kRighe};
const platform::FormDesign kDisegno{
    .name = "Prova", .caption = "Prova", .width = 15000, .height = 10500, .tables = kTavole};

// The ground with the control ready for typing.
class Fondo : public prova::FondoDiProva<Ospite> {
 public:
  Fondo() : controllo(forma().TestoInput) {
    controllo.Reimposta();
    forma().eventi.clear();
  }

  // Types the text and confirms it.
  void conferma(const QString& testo) {
    scrivi(testo);
    batti(Qt::Key_Return);
  }
  [[nodiscard]] bool inserisce() const {
    return controllo.TestoInput.isVisible() && !controllo.TestoOutput.isVisible();
  }
  [[nodiscard]] bool confermato() const {
    return !controllo.TestoInput.isVisible() && controllo.TestoOutput.isVisible();
  }

  TestoInputNumerico& controllo;
};

const QFont& fontDi(const platform::TextBox& casella) {
  return casella.widget()->font();
}

// What the property's value is in the store, and its type.
template <class T>
bool tiene(const TestoInputNumerico& controllo, const QString& nome, const T& valore) {
  const platform::PropertyBase& proprieta = controllo.property(nome);
  return proprieta.value() == PropertyValue(valore) &&
         proprieta.fallback() == PropertyValue(valore);
}

}  // namespace

class TestoInputNumericoTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void elevenPropertiesAreStoredInTheirOrderWithTheirTypesAndDefaults() {
    prova::FondoDiProva<Ospite> fondo;
    const TestoInputNumerico& controllo = fondo.forma().TestoInput;
    QStringList nomi;
    for (const platform::PropertyBase* proprieta : controllo.properties()) {
      nomi.append(proprieta->name());
    }
    QCOMPARE(nomi.join(u' '),
             QStringLiteral("ColoreSfondo ColoreTesto AccettaSeparatori MaxLength NomeFont "
                            "DimensioneTesto FormatoNumericoIntero FormatoNumericoDecimale "
                            "Allineamento Enabled Text"));
    QVERIFY(tiene(controllo, nomi[0], 16777215.0));
    QVERIFY(tiene(controllo, nomi[1], 0.0));
    QVERIFY(tiene(controllo, nomi[2], false));
    QVERIFY(tiene(controllo, nomi[3], qint16(0)));
    QVERIFY(tiene(controllo, nomi[4], QStringLiteral("Tahoma")));
    QVERIFY(tiene(controllo, nomi[5], qint16(12)));
    QVERIFY(tiene(controllo, nomi[6], QStringLiteral("### ### ##0")));
    QVERIFY(tiene(controllo, nomi[7], QStringLiteral("### ### ##0.###")));
    QVERIFY(tiene(controllo, nomi[8], qint16(2)));
    QVERIFY(tiene(controllo, nomi[9], true));
    QVERIFY(tiene(controllo, nomi[10], QStringLiteral("Text1")));
    QCOMPARE(TestoInputNumerico::kIdentificativo, std::string_view("Somme.TestoInputNumerico"));
  }

  void atItsCreationItStandsInEditingWithItsFirstText() {
    prova::FondoDiProva<Ospite> fondo;
    const TestoInputNumerico& controllo = fondo.forma().TestoInput;
    QCOMPARE(controllo.Text.get(), QStringLiteral("Text1"));
    QVERIFY(controllo.TestoInput.isVisible());
    QVERIFY(!controllo.TestoOutput.isVisible());
    QVERIFY(controllo.TestoOutput.isLocked());
    QCOMPARE(controllo.TestoOutput.text(), QString());
    QCOMPARE(controllo.ValoreInserito.toDouble(), 0.0);
    QVERIFY(fondo.forma().eventi.isEmpty());
  }

  void aStoreBringsEveryPropertyBack() {
    Fondo fondo;
    fondo.controllo.ColoreSfondo.set(255);
    fondo.controllo.MaxLength.set(4);
    fondo.controllo.Enabled.set(false);
    fondo.controllo.Text.set(QStringLiteral("12"));
    PropertyBag magazzino;
    fondo.controllo.writeProperties(magazzino);
    QStringList nomi;
    for (const PropertyBag::Entry& voce : magazzino.entries()) nomi.append(voce.name);
    QCOMPARE(nomi.join(u' '), QStringLiteral("ColoreSfondo MaxLength Enabled Text"));
    Fondo altro;
    altro.controllo.readProperties(magazzino);
    QCOMPARE(altro.controllo.ColoreSfondo.get(), 255.0);
    QCOMPARE(altro.controllo.MaxLength.get(), qint16(4));
    QCOMPARE(altro.controllo.Enabled.get(), false);
    QCOMPARE(altro.controllo.Text.get(), QStringLiteral("12"));
    QVERIFY(!altro.controllo.changedProperties().contains(QStringLiteral("MaxLength")));
  }

  void settingAnyPropertyButTextRunsTheLayoutAndMarksIt() {
    Fondo fondo;
    Ospite& forma = fondo.forma();
    for (platform::PropertyBase* proprieta : fondo.controllo.properties()) {
      const int prima = forma.disposizioni;
      proprieta->setValue(proprieta->value());
      QCOMPARE(forma.disposizioni - prima, proprieta->name() == u"Text" ? 0 : 1);
      QVERIFY(fondo.controllo.changedProperties().contains(proprieta->name()));
    }
  }

  void theLayoutPutsBothBoxesInsideAndGivesThemTheLook() {
    Fondo fondo;
    TestoInputNumerico& c = fondo.controllo;
    c.ColoreSfondo.set(0x80FFC0);
    c.ColoreTesto.set(255);
    c.Allineamento.set(1);
    c.setWidth(6000);
    for (platform::TextBox* casella : {&c.TestoInput, &c.TestoOutput}) {
      QCOMPARE(casella->left(), 10.0);
      QCOMPARE(casella->top(), 10.0);
      QCOMPARE(casella->width(), 5970.0);
      QCOMPARE(casella->height(), 1170.0);
      QVERIFY(casella->backColor() == (platform::Rgb{0xC0, 0xFF, 0x80}));
      QVERIFY(casella->foreColor() == (platform::Rgb{255, 0, 0}));
      QCOMPARE(casella->alignment(), platform::Align::Right);
      QCOMPARE(casella->fontSize(), 12.0);
    }
    c.Allineamento.set(0);
    QCOMPARE(c.TestoOutput.alignment(), platform::Align::Left);
    c.Allineamento.set(2);
    QCOMPARE(c.TestoOutput.alignment(), platform::Align::Centre);
  }

  void theTextGrowsWithThePageAfterItsSizeWasSet() {
    Fondo fondo;
    fondo.controllo.DimensioneTesto.set(20);
    fondo.ridimensiona({2000, 1400});
    QCOMPARE(fondo.controllo.DimensioneTesto.get(), qint16(20));
    QCOMPARE(fondo.controllo.TestoInput.fontSize(), 40.0);
    fondo.controllo.DimensioneTesto.set(20);
    QCOMPARE(fondo.controllo.TestoInput.fontSize(), 20.0);
    QCOMPARE(fondo.controllo.TestoOutput.fontSize(), 20.0);
  }

  void aSizeOfNoughtGivesTwelvePoints() {
    Fondo fondo;
    fondo.controllo.DimensioneTesto.set(20);
    fondo.controllo.DimensioneTesto.set(0);
    QCOMPARE(fondo.controllo.TestoInput.fontSize(), 12.0);
    fondo.controllo.DimensioneTesto.set(-5);
    QCOMPARE(fondo.controllo.TestoOutput.fontSize(), 12.0);
    QCOMPARE(fondo.controllo.DimensioneTesto.get(), qint16(-5));
  }

  void anEmptyFontNameGivesTahoma() {
    Fondo fondo;
    fondo.controllo.NomeFont.set(QStringLiteral("Arial"));
    QCOMPARE(fontDi(fondo.controllo.TestoOutput).families().front(), QStringLiteral("Arial"));
    fondo.controllo.NomeFont.set(QString());
    QCOMPARE(fontDi(fondo.controllo.TestoInput).families().front(), QStringLiteral("Tahoma"));
    QCOMPARE(fontDi(fondo.controllo.TestoOutput).families().front(), QStringLiteral("Tahoma"));
    QCOMPARE(fondo.controllo.NomeFont.get(), QString());
  }

  void onlyDigitsAreTaken() {
    Fondo fondo;
    fondo.scrivi(QStringLiteral("1a-2. ,e3+"));
    QCOMPARE(fondo.controllo.Text.get(), QStringLiteral("123"));
    fondo.batti(Qt::Key_Backspace);
    QCOMPARE(fondo.controllo.Text.get(), QStringLiteral("12"));
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

  void aClickOnTheOutputGoesBackToEditing() {
    Fondo fondo;
    fondo.conferma(QStringLiteral("12"));
    fondo.clicca(fondo.controllo.TestoOutput);
    QVERIFY(fondo.inserisce());
    QVERIFY(fondo.controllo.TestoInput.hasFocus());
    QCOMPARE(fondo.controllo.Text.get(), QStringLiteral("12"));
    QCOMPARE(fondo.controllo.TestoFormattato, QStringLiteral("12"));
  }

  void aClickOnTheOutputOfADisabledBoxDoesNothing() {
    Fondo fondo;
    fondo.conferma(QStringLiteral("12"));
    fondo.controllo.Enabled.set(false);
    fondo.clicca(fondo.controllo.TestoOutput);
    QVERIFY(fondo.confermato());
    fondo.batti(Qt::Key_Space);
    QVERIFY(fondo.confermato());
  }

  void theFocusGoesOverToTheOutputFromWhereSpaceLeadsBack() {
    Fondo fondo;
    fondo.conferma(QStringLiteral("12"));
    QVERIFY(fondo.controllo.TestoOutput.hasFocus());
    fondo.scrivi(QStringLiteral("3"));
    fondo.batti(Qt::Key_Return);
    QVERIFY(fondo.confermato());
    QCOMPARE(fondo.forma().eventi.count(QStringLiteral("Confermato")), 1);
    fondo.batti(Qt::Key_Space);
    QVERIFY(fondo.inserisce());
    QVERIFY(fondo.controllo.TestoInput.hasFocus());
  }

  void confirmingFromElsewhereLeavesTheFocusThere() {
    Fondo fondo;
    fondo.controllo.Text.set(QStringLiteral("3"));
    fondo.forma().Altro.setFocus();
    fondo.controllo.TerminaInserimento();
    QVERIFY(fondo.forma().Altro.hasFocus());
  }

  void reimpostaTellsTheChangeAndNoConfirmation() {
    Fondo fondo;
    fondo.conferma(QStringLiteral("12"));
    fondo.forma().eventi.clear();
    fondo.controllo.Reimposta();
    QCOMPARE(fondo.forma().eventi, QStringList{QStringLiteral("Change ''")});
    QVERIFY(fondo.inserisce());
    QVERIFY(fondo.controllo.TestoInput.hasFocus());
    QCOMPARE(fondo.controllo.TestoOutput.text(), QString());
    // The last confirmed value stays.
    QCOMPARE(fondo.controllo.ValoreInserito.toDouble(), 12.0);
    QCOMPARE(fondo.controllo.TestoFormattato, QStringLiteral("12"));
  }

  void testoPerInputKeepsTheText() {
    Fondo fondo;
    fondo.conferma(QStringLiteral("12"));
    fondo.forma().Altro.setFocus();
    fondo.controllo.TestoPerInput();
    QVERIFY(fondo.inserisce());
    QVERIFY(fondo.controllo.TestoInput.hasFocus());
    QCOMPARE(fondo.controllo.Text.get(), QStringLiteral("12"));
  }

  void testoPerOutputShowsTheInputAndLeavesTheFocus() {
    Fondo fondo;
    fondo.conferma(QStringLiteral("12"));
    fondo.forma().Altro.setFocus();
    fondo.controllo.TestoPerOutput();
    QVERIFY(fondo.inserisce());
    QVERIFY(fondo.forma().Altro.hasFocus());
  }

  void aDisabledBoxTakesNeitherFocusNorKeys() {
    Fondo fondo;
    fondo.controllo.setEnabled(false);
    QVERIFY(!fondo.controllo.isEnabled());
    QVERIFY(!fondo.controllo.TestoInput.isEnabled());
    QVERIFY(!fondo.controllo.hasFocus());
    fondo.scrivi(QStringLiteral("5"));
    QCOMPARE(fondo.controllo.Text.get(), QString());
    fondo.controllo.setEnabled(true);
    fondo.controllo.setFocus();
    fondo.scrivi(QStringLiteral("5"));
    QCOMPARE(fondo.controllo.Text.get(), QStringLiteral("5"));
  }

  void keyDownIsNeverTold() {
    Fondo fondo;
    fondo.conferma(QStringLiteral("12"));
    QVERIFY(!fondo.forma().eventi.contains(QStringLiteral("KeyDown")));
  }

  void bothBoxesAreSpokenByTheToolTip() {
    Fondo fondo;
    for (platform::TextBox* casella : {&fondo.controllo.TestoInput, &fondo.controllo.TestoOutput}) {
      QCOMPARE(casella->widget()->accessibleName(), QStringLiteral("Scrivi qui"));
    }
    fondo.controllo.setToolTip(QStringLiteral("Write here"));
    QCOMPARE(fondo.controllo.TestoInput.widget()->accessibleName(), QStringLiteral("Write here"));
    QCOMPARE(fondo.controllo.widget()->objectName(), QStringLiteral("TestoInput"));
    QCOMPARE(fondo.controllo.TestoOutput.widget()->objectName(), QStringLiteral("TestoOutput"));
  }

  void aColourThatNoNumberOfThirtyTwoBitsHoldsIsAnOverflow() {
    Fondo fondo;
    int numero = 0;
    try {
      fondo.controllo.ColoreSfondo.set(1e12);
    } catch (const RunTimeError& errore) {
      numero = errore.number();
    }
    QCOMPARE(numero, 6);
  }
};

QTEST_MAIN(TestoInputNumericoTest)
#include "testo_input_numerico_test.moc"
