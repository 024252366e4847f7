#include "input/tastiera_numerica_scansione.h"

#include <QApplication>

#include "fondo_tastiera.h"
#include "platform/base/run_time_error.h"
#include "support/iscrizione.h"

namespace tastiera_numerica_scansione_test {

using platform::PropertyBag;
using platform::PropertyValue;
using prova::accesi;
using prova::acceso;
using prova::kAcceso;
using prova::kSpento;
using prova::prepara;
using somme::TastieraNumericaScansione;

namespace {

using Fondo = prova::FondoTastiera<TastieraNumericaScansione>;

}  // namespace

// The scanning keyboard of digits: its properties, its layout, its light.
class TastieraNumericaScansioneTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void sixPropertiesAreStoredInTheirOrderWithTheirTypesAndDefaults() {
    Fondo fondo;
    QCOMPARE(prova::nomiDelleProprieta(fondo.tastiera),
             QStringLiteral("ColoreSfondo ColoreScansione AiutoVisibile "
                            "ScansioneAutomatica TempoScansione AvantiAttivo"));
    const std::vector<PropertyValue> attesi{qint32(14737632), qint32(255), true, false,
                                            qint16(4),        true};
    QVERIFY(prova::alPredefinito(fondo.tastiera, attesi));
    QCOMPARE(TastieraNumericaScansione::kIdentificativo,
             std::string_view("Somme.TastieraNumericaScansione"));
  }

  void aStoreKeepsWhatIsNotAtItsDefaultAndBringsItBack() {
    Fondo fondo;
    fondo.tastiera.ColoreScansione.set(65280);
    fondo.tastiera.AiutoVisibile.set(false);
    fondo.tastiera.TempoScansione.set(7);
    PropertyBag deposito;
    fondo.tastiera.writeProperties(deposito);
    QCOMPARE(deposito.entries().size(), 3U);
    QVERIFY(deposito.entries()[0].value == PropertyValue(qint32(65280)));
    Fondo altro;
    altro.tastiera.readProperties(deposito);
    QCOMPARE(altro.tastiera.ColoreScansione.get(), 65280.0);
    QVERIFY(!altro.tastiera.AiutoVisibile.get());
    QCOMPARE(altro.tastiera.TempoScansione.get(), qint16(7));
    QVERIFY(altro.tastiera.AvantiAttivo.get());
  }

  void settingAPropertyMarksItAndPutsTheLightOnTheFirstButton() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    const auto prova = [&fondo](auto& proprieta, auto valore) {
      fondo.spazio(3);
      if (fondo.tastiera.pulsanteAcceso() != 3) return false;
      proprieta.set(valore);
      return fondo.tastiera.pulsanteAcceso() == 0 && proprieta.get() == valore &&
             fondo.tastiera.changedProperties().contains(proprieta.name());
    };
    QVERIFY(prova(fondo.tastiera.TempoScansione, qint16(9)));
    QVERIFY(prova(fondo.tastiera.ColoreSfondo, 12632256.0));
    QVERIFY(prova(fondo.tastiera.ColoreScansione, 65535.0));
    QVERIFY(prova(fondo.tastiera.AiutoVisibile, false));
    QVERIFY(prova(fondo.tastiera.AvantiAttivo, false));
    QVERIFY(prova(fondo.tastiera.ScansioneAutomatica, false));
  }

  void theChildrenStandInTheirOrderWithTheirFaces() {
    Fondo fondo;
    QStringList nomi;
    for (const QObject* figlio : fondo.tastiera.PictureScansione.widget()->parent()->children()) {
      nomi.append(figlio->objectName());
    }
    QStringList attesi{QStringLiteral("PictureScansione")};
    for (int i = 0; i < 14; ++i) attesi.append(QStringLiteral("PulsanteNumero(%1)").arg(i));
    QCOMPARE(nomi, attesi);
    for (int i = 0; i < 10; ++i) {
      QCOMPARE(fondo.tastiera.PulsanteNumero[i].caption(), QString::number(i));
    }
    for (int i = 10; i < 14; ++i) {
      QVERIFY(fondo.tastiera.PulsanteNumero[i].caption().isEmpty());
      QVERIFY(!fondo.tastiera.PulsanteNumero[i].look().picture.empty());
    }
  }

  void aWidthOf14000TwipsGivesAPitchOf1000ASideOf933AndAHeightOf1000() {
    Fondo fondo;
    TastieraNumericaScansione& tastiera = fondo.tastiera;
    QCOMPARE(tastiera.width(), 14000.0);
    QCOMPARE(tastiera.height(), 1000.0);
    for (int i = 0; i < 14; ++i) {
      QCOMPARE(tastiera.PulsanteNumero[i].left(), i * 1000.0);
      QCOMPARE(tastiera.PulsanteNumero[i].top(), 0.0);
      QCOMPARE(tastiera.PulsanteNumero[i].width(), 933.0);
      QCOMPARE(tastiera.PulsanteNumero[i].height(), 933.0);
    }
    QCOMPARE(tastiera.Timer1.interval(), 10);
    QCOMPARE(tastiera.TimerScansione.interval(), 1000);
  }

  void divisionsOfTheWidthLeaveNoFractions() {
    Fondo fondo;
    fondo.tastiera.setWidth(9975);
    QCOMPARE(fondo.tastiera.height(), 712.0);
    QCOMPARE(fondo.tastiera.PulsanteNumero[1].left(), 712.0);
    QCOMPARE(fondo.tastiera.PulsanteNumero[1].width(), 665.0);
  }

  void theHeightFollowsFromTheWidthWhateverTheFormSets() {
    Fondo fondo;
    fondo.tastiera.setHeight(300);
    QCOMPARE(fondo.tastiera.height(), 1000.0);
  }

  void movingTheKeyboardIsNoResizeAndKeepsTheLight() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    fondo.spazio(5);
    fondo.tastiera.setLeft(150.3);
    fondo.tastiera.setTop(4000.7);
    QVERIFY(acceso(fondo.tastiera, 5));
    const QPoint angolo =
        fondo.tastiera.PulsanteNumero[0].widget()->mapTo(&fondo.fondo().window(), QPoint());
    QCOMPARE(angolo, QPoint(10, 267));
  }

  void resizingInTheMiddleOfAScanLeavesTheOldLightBesideTheNewUntilAttivaClearsThem() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    fondo.spazio(6);
    fondo.ridimensiona({900, 700});
    QCOMPARE(accesi(fondo.tastiera), (std::vector<int>{0, 6}));
    // The ring tells which of the two it is.
    QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(0));
    fondo.tastiera.Attiva();
    QVERIFY(acceso(fondo.tastiera, 0));
  }

  void attivaPaintsTheFirstButtonAndLeavesTheCurrentOneWhereItIs() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    fondo.spazio(4);
    fondo.tastiera.Attiva();
    QCOMPARE(accesi(fondo.tastiera), std::vector<int>{0});
    QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(4));
    QVERIFY(fondo.tastiera.Timer1.isEnabled());
  }

  void theScanGoesFromLeftToRightAndBackToTheFirst() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    for (int i = 1; i <= 12; ++i) {
      fondo.spazio();
      QVERIFY2(acceso(fondo.tastiera, i), qPrintable(QString::number(i)));
    }
    fondo.spazio();
    QVERIFY(acceso(fondo.tastiera, 0));
  }

  void withoutHelpTheLightGoesFrom10StraightTo12() {
    Fondo fondo;
    fondo.tastiera.AiutoVisibile.set(false);
    prepara(fondo.tastiera, false);
    QVERIFY(!fondo.tastiera.PulsanteNumero[11].isVisible());
    QVERIFY(!fondo.tastiera.PulsanteNumero[11].isEnabled());
    fondo.spazio(10);
    QVERIFY(acceso(fondo.tastiera, 10));
    fondo.spazio();
    QVERIFY(acceso(fondo.tastiera, 12));
  }

  void withTheWayOnClosedTheLightGoesFrom12To0() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    fondo.spazio(12);
    QVERIFY(acceso(fondo.tastiera, 12));
    QVERIFY(!fondo.tastiera.PulsanteNumero[13].isEnabled());
    fondo.spazio();
    QVERIFY(acceso(fondo.tastiera, 0));
  }

  void afterAttivaAvantiSpaceDoesNothingAndEnterChooses13InManualMode() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    fondo.spazio(5);
    fondo.tastiera.AttivaAvanti();
    QVERIFY(acceso(fondo.tastiera, 13));
    QVERIFY(fondo.tastiera.PulsanteNumero[13].isEnabled());
    fondo.spazio(3);
    QVERIFY(acceso(fondo.tastiera, 13));
    QVERIFY(fondo.scelti().empty());
    fondo.invio();
    QCOMPARE(fondo.scelti(), std::vector<int>{13});
  }

  void afterAttivaAvantiTheLightRestsAndSpaceChooses13InAutomaticMode() {
    Fondo fondo;
    prepara(fondo.tastiera, true);
    fondo.passa(3.05);
    fondo.tastiera.AttivaAvanti();
    fondo.passa(10);
    QVERIFY(acceso(fondo.tastiera, 13));
    fondo.premi(Qt::Key_Space);
    QVERIFY(fondo.scelti().empty());
    fondo.lascia(Qt::Key_Space);
    QCOMPARE(fondo.scelti(), std::vector<int>{13});
  }

  void afterDisattivaAvantiTheLightIsOnTheFirstButton() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    fondo.spazio(2);
    fondo.tastiera.AttivaAvanti();
    fondo.tastiera.DisattivaAvanti();
    QVERIFY(acceso(fondo.tastiera, 0));
    QVERIFY(!fondo.tastiera.PulsanteNumero[13].isEnabled());
    QVERIFY(!fondo.tastiera.AvantiAttivo.get());
  }

  void selezionaCestinoAndOneStepLandOnHelpOrOnConfirmWithoutIt() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    fondo.spazio(3);
    fondo.tastiera.SelezionaCestino();
    QVERIFY(acceso(fondo.tastiera, 10));
    fondo.spazio();
    QVERIFY(acceso(fondo.tastiera, 11));
    fondo.tastiera.AiutoVisibile.set(false);
    fondo.tastiera.SelezionaCestino();
    fondo.spazio();
    QVERIFY(acceso(fondo.tastiera, 12));
  }

  void theIntervalIsAQuarterOfASecondForEachUnitAndOverflowsAbove131() {
    Fondo fondo;
    fondo.tastiera.TempoScansione.set(1);
    QCOMPARE(fondo.tastiera.IntervalloScansione(), qint16(250));
    QCOMPARE(fondo.tastiera.TimerScansione.interval(), 250);
    fondo.tastiera.TempoScansione.set(4);
    QCOMPARE(fondo.tastiera.IntervalloScansione(), qint16(1000));
    fondo.tastiera.TempoScansione.set(131);
    QCOMPARE(fondo.tastiera.IntervalloScansione(), qint16(32750));
    try {
      fondo.tastiera.TempoScansione.set(132);
      QFAIL("132 quarters of a second fit");
    } catch (const platform::RunTimeError& errore) {
      QCOMPARE(errore.number(), int(platform::RunTimeError::Overflow));
    }
  }

  void theAutomaticScanStepsAtItsPaceAndEachChangeOfItStartsTheCountAnew() {
    Fondo fondo;
    prepara(fondo.tastiera, true);
    fondo.passa(0.99);
    QVERIFY(acceso(fondo.tastiera, 0));
    fondo.passa(0.02);
    QVERIFY(acceso(fondo.tastiera, 1));
    fondo.tastiera.TempoScansione.set(8);
    fondo.tastiera.Attiva();
    fondo.passa(1.99);
    QVERIFY(acceso(fondo.tastiera, 0));
    fondo.passa(0.02);
    QVERIFY(acceso(fondo.tastiera, 1));
  }

  void disattivaStopsTheKeysAloneAndTheScanGoesOn() {
    Fondo fondo;
    prepara(fondo.tastiera, true);
    fondo.tastiera.Disattiva();
    QVERIFY(!fondo.tastiera.Timer1.isEnabled());
    QVERIFY(fondo.tastiera.TimerScansione.isEnabled());
    fondo.passa(2.05);
    QVERIFY(acceso(fondo.tastiera, 2));
    fondo.spazio();
    QVERIFY(fondo.scelti().empty());
    QVERIFY(fondo.tastiera.TimerScansione.isEnabled());
  }

  void aKeyThatIsDownWhenDisattivaComesChoosesNothingAtItsRelease() {
    for (const bool automatica : {false, true}) {
      Fondo fondo;
      prepara(fondo.tastiera, automatica);
      const int tasto = automatica ? Qt::Key_Space : Qt::Key_Return;
      fondo.premi(tasto);
      fondo.tastiera.Disattiva();
      QCOMPARE(fondo.tastiera.TimerScansione.isEnabled(), automatica);
      fondo.lascia(tasto);
      QVERIFY(fondo.scelti().empty());
      fondo.tastiera.Attiva();
      fondo.batti(tasto);
      QCOMPARE(fondo.scelti(), std::vector<int>{0});
    }
  }

  void manualModeStopsTheTimerAndAutomaticModeStartsIt() {
    Fondo fondo;
    fondo.tastiera.ScansioneAutomatica.set(true);
    QVERIFY(fondo.tastiera.TimerScansione.isEnabled());
    fondo.tastiera.ScansioneAutomatica.set(false);
    QVERIFY(!fondo.tastiera.TimerScansione.isEnabled());
    fondo.tastiera.AttivaAutomatica();
    QVERIFY(fondo.tastiera.TimerScansione.isEnabled());
    fondo.tastiera.DisattivaAutomatica();
    QVERIFY(!fondo.tastiera.TimerScansione.isEnabled());
  }

  void theColorsOfTheLightAreTheProperties() {
    Fondo fondo;
    fondo.tastiera.ColoreScansione.set(0xFF00);
    fondo.tastiera.ColoreSfondo.set(0xFF0000);
    fondo.tastiera.Attiva();
    QVERIFY((fondo.tastiera.PulsanteNumero[0].backColor() == platform::Rgb{0, 255, 0}));
    QVERIFY((fondo.tastiera.PulsanteNumero[1].backColor() == platform::Rgb{0, 0, 255}));
  }
};

const prova::Iscrizione<TastieraNumericaScansioneTest, QApplication> kIscritta;

}  // namespace tastiera_numerica_scansione_test

#include "tastiera_numerica_scansione_test.moc"
