#include "abaco_di_prova.h"

using prova::BancoAbaco;

// The abacus' movie and its form, one against the other: what each asks of the other is there.
class FilmatoAbacoTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theMovieHasEveryClipThatTheFormNames() {
    const BancoAbaco banco(19);
    for (const char* nome : {"k", "h", "da", "u", "ka", "ha", "daa", "ua"}) {
      for (int i = 0; i < somme::FormaAbaco::kPalline; ++i) {
        const QString clip = BancoAbaco::clip(nome, i);
        QVERIFY2(
            !prova::Banco::proprieta(banco.forma.ShockwaveFlash1, clip, prova::kAlfa).isEmpty(),
            qPrintable(clip));
      }
    }
    QVERIFY(
        prova::Banco::proprieta(banco.forma.ShockwaveFlash1, QStringLiteral("u10"), prova::kAlfa)
            .isEmpty());
  }

  void everyWaitingBeadCanBeClickedAndTellsItsKindAndItself_data() { generi(); }
  void everyWaitingBeadCanBeClickedAndTellsItsKindAndItself() {
    QFETCH(int, colonna);
    const auto& genere = *somme::kGeneriPalline[std::size_t(colonna)];
    BancoAbaco banco(19);
    const int primo = colonna == 0 ? 1 : 0;
    for (int i = primo; i < somme::FormaAbaco::kPalline; ++i) {
      banco.tocca(genere.inAttesa.data(), i);
      QCOMPARE(banco.forma.*genere.inserite, qint16(i + 1 - primo));
      QVERIFY(!banco.vede(genere.inAttesa.data(), i));
      QVERIFY(!banco.forma.PallineInAttesa[std::size_t(i)][genere.colonna]);
      QVERIFY(banco.vede(genere.sulFerro.data(), i - primo));
    }
    nientAltro(banco, genere);
  }

  void everyBeadOnASpikeCanBeClickedAndTellsItsKind_data() { generi(); }
  void everyBeadOnASpikeCanBeClickedAndTellsItsKind() {
    QFETCH(int, colonna);
    const auto& genere = *somme::kGeneriPalline[std::size_t(colonna)];
    BancoAbaco banco(19);
    const int primo = colonna == 0 ? 1 : 0;
    const int quante = somme::FormaAbaco::kPalline - primo;
    banco.metti(genere.inAttesa.data(), quante, primo);
    for (int i = quante - 1; i >= 0; --i) {
      banco.tocca(genere.sulFerro.data(), i);
      QCOMPARE(banco.forma.*genere.inserite, qint16(i));
      QVERIFY(!banco.vede(genere.sulFerro.data(), i));
    }
    nientAltro(banco, genere);
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
    for (int i = 0; i < 4; ++i) {
      QTest::newRow(somme::kGeneriPalline[std::size_t(i)]->sulFerro.data()) << i;
    }
  }
  static void nientAltro(const BancoAbaco& banco, const somme::GenerePalline& genere) {
    for (const somme::GenerePalline* altro : somme::kGeneriPalline) {
      if (altro != &genere) QCOMPARE(banco.forma.*altro->inserite, qint16(0));
    }
  }
};

QTEST_MAIN(FilmatoAbacoTest)
#include "filmato_abaco_test.moc"
