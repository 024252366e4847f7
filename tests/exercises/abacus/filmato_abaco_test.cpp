#include "abaco_di_prova.h"

#include <QApplication>

#include "support/iscrizione.h"

namespace filmato_abaco_test {

using prova::BancoAbaco;
using prova::Ferro;
using prova::kFerri;

// The abacus' movie and its form, one against the other: what each asks of the other is there.
class FilmatoAbacoTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theMovieHasEveryClipThatTheFormNames() {
    const BancoAbaco banco(19);
    for (const char* nome : {"k", "h", "da", "u", "ka", "ha", "daa", "ua"}) {
      for (int i = 0; i < somme::PartitaAbaco::kPalline; ++i) {
        const QString clip = BancoAbaco::clip(nome, i);
        QVERIFY2(!prova::Banco::proprieta(banco.forma.ShockwaveFlash1, clip,
                                          platform::Board::Property::Alpha)
                      .isEmpty(),
                 qPrintable(clip));
      }
    }
    QVERIFY(prova::Banco::proprieta(banco.forma.ShockwaveFlash1, QStringLiteral("u10"),
                                    platform::Board::Property::Alpha)
                .isEmpty());
  }

  void everyWaitingBeadCanBeClickedAndTellsItsKindAndItself_data() { generi(); }
  void everyWaitingBeadCanBeClickedAndTellsItsKindAndItself() {
    QFETCH(int, colonna);
    const Ferro& ferro = kFerri[colonna];
    BancoAbaco banco(19);
    const int primo = colonna == 0 ? 1 : 0;
    for (int i = primo; i < somme::PartitaAbaco::kPalline; ++i) {
      banco.tocca(ferro.inAttesa, i);
      QCOMPARE(banco.forma.partita().Inserite()[ferro.posto], i + 1 - primo);
      QVERIFY(!banco.vede(ferro.inAttesa, i));
      QVERIFY(!banco.forma.partita().InAttesa(ferro.posto, i));
      QVERIFY(banco.vede(ferro.sulFerro, i - primo));
    }
    nientAltro(banco, ferro);
  }

  void everyBeadOnASpikeCanBeClickedAndTellsItsKind_data() { generi(); }
  void everyBeadOnASpikeCanBeClickedAndTellsItsKind() {
    QFETCH(int, colonna);
    const Ferro& ferro = kFerri[colonna];
    BancoAbaco banco(19);
    const int primo = colonna == 0 ? 1 : 0;
    const int quante = somme::PartitaAbaco::kPalline - primo;
    banco.metti(ferro.inAttesa, quante, primo);
    for (int i = quante - 1; i >= 0; --i) {
      banco.tocca(ferro.sulFerro, i);
      QCOMPARE(banco.forma.partita().Inserite()[ferro.posto], i);
      QVERIFY(!banco.vede(ferro.sulFerro, i));
    }
    nientAltro(banco, ferro);
  }

  void aClickBesideTheBeadsSaysNothing() {
    BancoAbaco banco(19);
    const QWidget* tavola = banco.forma.ShockwaveFlash1.widget();
    banco.cliccaIn(tavola->mapTo(&banco.ambiente->fondo.window(), QPoint(2, 2)));
    // The places of hidden beads feel nothing.
    for (const char* nome : {"k", "h", "da", "u"}) banco.tocca(nome, 0);
    QCOMPARE(banco.detto(), QStringLiteral("vuoto"));
  }

 private:
  static void generi() {
    QTest::addColumn<int>("colonna");
    for (int i = 0; i < 4; ++i) QTest::newRow(kFerri[i].sulFerro) << i;
  }
  static void nientAltro(const BancoAbaco& banco, const Ferro& ferro) {
    for (const Ferro& altro : kFerri) {
      if (&altro != &ferro) QCOMPARE(banco.forma.partita().Inserite()[altro.posto], 0);
    }
  }
};

const prova::Iscrizione<FilmatoAbacoTest, QApplication> kIscritta;

}  // namespace filmato_abaco_test

#include "filmato_abaco_test.moc"
