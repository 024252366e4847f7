#include "tools/swf/linea_tempo.h"

#include <QTest>

#include "support/iscrizione.h"

namespace linea_tempo_test {

using namespace somme::swf;
using Byte = std::vector<std::uint8_t>;

class LineaTempoTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aNamedThingIsPlacedWithMatrixAndName() {
    LineaTempo t;
    t.poni(3, {7}, {.matrice = spostato({0, 0}), .nome = "u1"});
    // Tag 26, 9 bytes: name, matrix, character; depth 3; character 7; a matrix of one-bit zeros.
    QCOMPARE(t.byte(), (Byte{0x8A, 0x06, 0x26, 3, 0, 7, 0, 0b00000010, 0, 'u', '1', 0}));
  }

  void aMoveNamesNoCharacter() {
    LineaTempo t;
    t.muovi(3, {.colore = TrasformaColore{}});
    QCOMPARE(t.byte(), (Byte{0x84, 0x06, 0x09, 3, 0, 0}));
  }

  void takingAwayNamesTheDepth() {
    LineaTempo t;
    t.togli(258);
    QCOMPARE(t.byte(), (Byte{0x02, 0x07, 2, 1}));
  }

  void actionsEndWithAZero() {
    LineaTempo t;
    t.esegui(Azioni().ferma());
    QCOMPARE(t.byte(), (Byte{0x02, 0x03, 0x07, 0}));
  }

  void framesAreCountedAsTheyEnd() {
    LineaTempo t;
    QCOMPARE(t.fotogramma(), 1);
    t.nomina("a").mostra(3);
    QCOMPARE(t.byte(), (Byte{0xC2, 0x0A, 'a', 0, 0x40, 0, 0x40, 0, 0x40, 0}));
    QCOMPARE(t.finiti(), 3);
    QCOMPARE(t.fotogramma(), 4);
  }

  void aBodyOf63BytesHasALongHead() {
    ScrittoreByte corto;
    scriviEtichetta(corto, Etichetta::NomeFotogramma, Byte(62, 'x'));
    QCOMPARE(Byte(corto.byte().begin(), corto.byte().begin() + 3), (Byte{0xFE, 0x0A, 'x'}));
    ScrittoreByte lungo;
    scriviEtichetta(lungo, Etichetta::NomeFotogramma, Byte(63, 'x'));
    QCOMPARE(Byte(lungo.byte().begin(), lungo.byte().begin() + 7),
             (Byte{0xFF, 0x0A, 63, 0, 0, 0, 'x'}));
  }

  void aDepthOutOfRangeIsRefused() {
    LineaTempo t;
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, t.poni(0, {1}));
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, t.togli(65536));
  }
};

const prova::Iscrizione<LineaTempoTest> kIscritta;

}  // namespace linea_tempo_test

#include "linea_tempo_test.moc"
