#include "tools/swf/azioni.h"

#include <QTest>

#include "support/iscrizione.h"

namespace azioni_test {

using namespace somme::swf;
using Byte = std::vector<std::uint8_t>;

class AzioniTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aCommandOfFixedWordsIsOneAction() {
    QCOMPARE(Azioni().comando("c", "ar").byte(), (Byte{0x83, 15, 0, 'F', 'S', 'C', 'o', 'm', 'm',
                                                       'a', 'n', 'd', ':', 'c', 0, 'a', 'r', 0}));
  }

  void aCommandFromTheStackNamesNoWindowMethod() {
    QCOMPARE(Azioni().comandoCalcolato().byte(), (Byte{0x9A, 1, 0, 0}));
  }

  void pushedValuesCarryTheirKind() {
    QCOMPARE(Azioni().spingi("u1").byte(), (Byte{0x96, 4, 0, 0, 'u', '1', 0}));
    QCOMPARE(Azioni().spingi(-2).byte(), (Byte{0x96, 5, 0, 7, 0xFE, 0xFF, 0xFF, 0xFF}));
    QCOMPARE(Azioni().spingi(1.5).byte(), (Byte{0x96, 5, 0, 1, 0x00, 0x00, 0xC0, 0x3F}));
    QCOMPARE(Azioni().spingi(Proprieta::Visibile).byte(), (Byte{0x96, 5, 0, 7, 7, 0, 0, 0}));
  }

  void framesCountFromZeroInTheFile() {
    QCOMPARE(Azioni().vaiAFotogramma(51).byte(), (Byte{0x81, 2, 0, 50, 0}));
  }

  void aTargetIsAText() {
    QCOMPARE(Azioni().bersaglio("/u").byte(), (Byte{0x8B, 3, 0, '/', 'u', 0}));
  }

  void aJumpCountsFromTheActionAfterIt() {
    Azioni avanti;
    const auto dopo = avanti.nuovoSegno();
    avanti.saltaSe(dopo).ferma().riproduci().segna(dopo);
    QCOMPARE(avanti.byte(), (Byte{0x9D, 2, 0, 2, 0, 0x07, 0x06}));

    Azioni indietro;
    const auto prima = indietro.nuovoSegno();
    indietro.segna(prima).ferma().salta(prima);
    QCOMPARE(indietro.byte(), (Byte{0x07, 0x99, 2, 0, 0xFA, 0xFF}));
  }

  void aMarkThatWasNeverPlacedIsRefused() {
    Azioni azioni;
    azioni.salta(azioni.nuovoSegno());
    QVERIFY_THROWS_EXCEPTION(std::logic_error, (void)azioni.byte());
  }

  void aJumpTooFarIsRefused() {
    Azioni azioni;
    const auto lontano = azioni.nuovoSegno();
    azioni.salta(lontano);
    for (int i = 0; i < 0x8000; ++i) azioni.ferma();
    azioni.segna(lontano);
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, (void)azioni.byte());
  }
};

const prova::Iscrizione<AzioniTest> kIscritta;

}  // namespace azioni_test

#include "azioni_test.moc"
