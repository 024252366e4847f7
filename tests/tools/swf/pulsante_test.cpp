#include "tools/swf/pulsante.h"

#include <QTest>

#include "support/iscrizione.h"

namespace pulsante_test {

using namespace somme::swf;
using Byte = std::vector<std::uint8_t>;

class PulsanteTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void statesComeFirstThenWhatHappensAtTheRelease() {
    const Byte byte = Pulsante()
                          .mostra(Pulsante::Fermo | Pulsante::Sensibile, 2, {5})
                          .alRilascio(Azioni().ferma())
                          .byte();
    const Byte attesi{0,                               // no menu
                      11,         0,                   // from this field to the conditions
                      0x09,       5,   0,    2,    0,  // at rest and where the mouse is felt
                      0b00000010, 0b0,                 // a matrix that changes nothing
                      0,                               // nor do the colours
                      0,                               // no more records
                      0,          0,   0x08, 0x00,     // the only condition: let go over the button
                      0x07,       0};
    QCOMPARE(byte, attesi);
  }

  void withoutActionsNothingFollowsTheStates() {
    const Byte byte = Pulsante().mostra(Pulsante::Premuto, 1, {5}).byte();
    QCOMPARE(byte, (Byte{0, 0, 0, 0x04, 5, 0, 1, 0, 0b00000010, 0, 0, 0}));
  }

  void aRecordWithoutAStateIsRefused() {
    Pulsante p;
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument, p.mostra(0, 1, {1}));
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument, p.mostra(16, 1, {1}));
  }
};

const prova::Iscrizione<PulsanteTest> kIscritta;

}  // namespace pulsante_test

#include "pulsante_test.moc"
