#include "input/tastiera_hdu_scansione.h"

#include <QApplication>

#include "fondo_tastiera.h"
#include "support/iscrizione.h"

namespace tastiera_hdu_scansione_test {

using platform::PropertyValue;
using prova::accesi;
using prova::acceso;
using somme::TastieraHDUScansione;

namespace {

using Fondo = prova::FondoTastiera<TastieraHDUScansione>;

void prepara(TastieraHDUScansione& tastiera, bool k, bool h) {
  tastiera.KVisibile.set(k);
  tastiera.HVisibile.set(h);
  tastiera.ScansioneAutomatica.set(false);
  tastiera.Attiva();
}

// The buttons that a manual scan lights, from the first one on.
std::vector<int> giro(Fondo& fondo, int passi) {
  std::vector<int> quali{fondo.tastiera.pulsanteAcceso()};
  for (int i = 0; i < passi; ++i) {
    fondo.spazio();
    quali.push_back(fondo.tastiera.pulsanteAcceso());
  }
  return quali;
}

}  // namespace

// The scanning keyboard of place values.
class TastieraHDUScansioneTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void sixPropertiesAreStoredInTheirOrderWithTheirTypesAndDefaults() {
    Fondo fondo;
    QCOMPARE(prova::nomiDelleProprieta(fondo.tastiera),
             QStringLiteral("ColoreSfondo ColoreScansione KVisibile HVisibile "
                            "ScansioneAutomatica TempoScansione"));
    const std::vector<PropertyValue> attesi{qint32(14737632), qint32(255), true, true, false,
                                            qint16(4)};
    QVERIFY(prova::alPredefinito(fondo.tastiera, attesi));
    QCOMPARE(TastieraHDUScansione::kIdentificativo, std::string_view("Somme.TastieraHDUScansione"));
  }

  void itsFacesAreThePlaceValuesTheBinAndConfirm() {
    Fondo fondo;
    QStringList facce;
    fondo.tastiera.Pulsante.forEach(
        [&facce](const platform::Button& pulsante) { facce.append(pulsante.caption()); });
    QCOMPARE(facce.join(u'|'), QStringLiteral("k|h|da|u||"));
  }

  void aWidthOf6000TwipsGivesAPitchOf1000ASideOf857AndAHeightOf1000() {
    Fondo fondo;
    fondo.tastiera.setWidth(6000);
    QCOMPARE(fondo.tastiera.height(), 1000.0);
    for (int i = 0; i < 6; ++i) {
      QCOMPARE(fondo.tastiera.Pulsante[i].left(), i * 1000.0);
      QCOMPARE(fondo.tastiera.Pulsante[i].width(), 857.0);
      QCOMPARE(fondo.tastiera.Pulsante[i].height(), 857.0);
    }
  }

  void withAllKeysTheScanGoesThroughAllSix() {
    Fondo fondo;
    prepara(fondo.tastiera, true, true);
    QCOMPARE(giro(fondo, 6), (std::vector<int>{0, 1, 2, 3, 4, 5, 0}));
  }

  void withoutThousandsAndHundredsTheScanBeginsOnTensAndWrapsFromConfirmToTens() {
    Fondo fondo;
    prepara(fondo.tastiera, false, false);
    QVERIFY(!fondo.tastiera.Pulsante[0].isVisible());
    QVERIFY(!fondo.tastiera.Pulsante[1].isVisible());
    QVERIFY(!fondo.tastiera.Pulsante[0].isEnabled());
    // The hidden ones leave their gap.
    QCOMPARE(fondo.tastiera.Pulsante[2].left(), 2 * 2333.0);
    QVERIFY(acceso(fondo.tastiera, 2));
    QCOMPARE(giro(fondo, 4), (std::vector<int>{2, 3, 4, 5, 2}));
    QVERIFY(acceso(fondo.tastiera, 2));
  }

  void withoutThousandsAloneTheScanBeginsOnHundreds() {
    Fondo fondo;
    prepara(fondo.tastiera, false, true);
    QVERIFY(acceso(fondo.tastiera, 1));
    QCOMPARE(giro(fondo, 5), (std::vector<int>{1, 2, 3, 4, 5, 1}));
  }

  void withoutHundredsTheThousandsAreNeverReached() {
    Fondo fondo;
    prepara(fondo.tastiera, true, false);
    QCOMPARE(fondo.tastiera.PrimoPulsante(), qint16(2));
    QVERIFY(fondo.tastiera.Pulsante[0].isVisible());
    QCOMPARE(giro(fondo, 5), (std::vector<int>{2, 3, 4, 5, 2, 3}));
  }

  void eachChangeOfAPropertyPutsTheLightBackOnTheFirstButton() {
    Fondo fondo;
    prepara(fondo.tastiera, false, true);
    fondo.spazio(3);
    QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(4));
    fondo.tastiera.TempoScansione.set(6);
    QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(1));
    QCOMPARE(fondo.tastiera.IntervalloScansione(), qint16(1500));
  }

  void attivaPaintsTheFirstShownButtonAndLeavesTheCurrentOne() {
    Fondo fondo;
    prepara(fondo.tastiera, false, false);
    fondo.spazio(2);
    fondo.tastiera.Attiva();
    QCOMPARE(accesi(fondo.tastiera), std::vector<int>{2});
    QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(4));
  }

  void aFormMayWriteTheCurrentButton() {
    Fondo fondo;
    prepara(fondo.tastiera, false, true);
    fondo.spazio(3);
    fondo.tastiera.Attiva();
    fondo.tastiera.PulsanteCorrente.set(1);
    QVERIFY(acceso(fondo.tastiera, 1));
    fondo.spazio();
    QVERIFY(acceso(fondo.tastiera, 2));
    fondo.invio();
    QCOMPARE(fondo.scelti(), std::vector<int>{2});
  }

  void automaticScanningChoosesAtTheReleaseAndGoesOn() {
    Fondo fondo;
    prepara(fondo.tastiera, true, true);
    fondo.tastiera.ScansioneAutomatica.set(true);
    fondo.passa(3.05);
    QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(3));
    fondo.premi(Qt::Key_Space);
    fondo.passa(5);
    QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(3));
    fondo.lascia(Qt::Key_Space);
    QCOMPARE(fondo.scelti(), std::vector<int>{3});
    fondo.passa(1.05);
    QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(4));
    fondo.passa(2);
    QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(0));
  }
};

const prova::Iscrizione<TastieraHDUScansioneTest, QApplication> kIscritta;

}  // namespace tastiera_hdu_scansione_test

#include "tastiera_hdu_scansione_test.moc"
