#include "app/strade.h"

#include <QTest>

#include "app/shared/nomi_forme.h"

using somme::Famiglia;
using somme::Strada;
using namespace somme::forme;

// Which form a family menu leads to.
class StradeTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void everyFamilyHasAFormForEveryModeOfInput() {
    const auto vanno = [](Famiglia famiglia, std::string_view mouse, std::string_view scansione,
                          std::string_view helpiKeys) {
      return Strada(famiglia, 0) == mouse && Strada(famiglia, 1) == scansione &&
             Strada(famiglia, 2) == scansione && Strada(famiglia, 3) == helpiKeys;
    };
    QVERIFY(vanno(Famiglia::NumeriTotale, "FormNumeriTotale", "FormNumeriTotaleScansione",
                  "FormNumeriTotaleHK"));
    QVERIFY(vanno(Famiglia::NumeriAddendo, "FormNumeriAddendo", "FormNumeriAddendoScansione",
                  "FormNumeriAddendoHK"));
    QVERIFY(vanno(Famiglia::Abaco, "FormAbaco", "FormAbacoScansione", "FormAbacoHK"));
    QVERIFY(vanno(Famiglia::BlocchiDecine, "FormLU", "FormLUScansione", "FormLUHK"));
    QVERIFY(vanno(Famiglia::BlocchiCentinaia, "FormHLU", "FormHLUScansione", "FormHLUHK"));
    QVERIFY(vanno(Famiglia::Barre10, "FormBarre10", "FormBarre10Scansione", "FormBarre10HK"));
    QVERIFY(vanno(Famiglia::Barre20, "FormBarre20", "FormBarre20Scansione", "FormBarre20HK"));
  }

  void theTableIsOneFormWhateverTheMode() {
    for (qint16 modalita = 0; modalita <= 3; ++modalita) {
      QVERIFY(Strada(Famiglia::Tabella, modalita) == kFormTabella);
    }
  }
};

QTEST_MAIN(StradeTest)
#include "strade_test.moc"
