#include <QAccessible>
#include <QApplication>
#include <QFontInfo>

#include "ospite_testo.h"
#include "support/iscrizione.h"

namespace testo_input_numerico_test {

using platform::PropertyBag;
using platform::PropertyValue;
using platform::RunTimeError;
using somme::TestoInputNumerico;
using Ospite = prova::OspiteTesto;
using Fondo = prova::FondoTesto;

namespace {

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

// The control as a form has it: its properties, its look, its two boxes.
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

  void testoPerOutputTakesTheFocusAlongWhenTheOutputHasIt() {
    Fondo fondo;
    fondo.conferma(QStringLiteral("12"));
    QVERIFY(fondo.controllo.TestoOutput.hasFocus());
    fondo.controllo.TestoPerOutput();
    QVERIFY(fondo.controllo.TestoInput.hasFocus());
    QVERIFY(!fondo.forma().Altro.hasFocus());
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

  void aColorThatNoNumberOfThirtyTwoBitsHoldsIsAnOverflow() {
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

const prova::Iscrizione<TestoInputNumericoTest, QApplication> kIscritta;

}  // namespace testo_input_numerico_test

#include "testo_input_numerico_test.moc"
