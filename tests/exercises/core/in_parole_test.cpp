#include "exercises/core/in_parole.h"

#include <QApplication>

#include "support/banco.h"
#include "support/iscrizione.h"

namespace in_parole_test {

using prova::Banco;
using somme::InParole;

// What stands on a board, told in words.
class InParoleTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void everyKindIsNamedFromTheLargestAndNothingOfAKindIsLeftOut() {
    Banco banco({640, 480});
    QCOMPARE(InParole(*banco.ambiente, {.decine = 3, .unita = 4}),
             QStringLiteral("3 decine, 4 unità"));
    QCOMPARE(InParole(*banco.ambiente, {2, 3, 4, 5}),
             QStringLiteral("2 migliaia, 3 centinaia, 4 decine, 5 unità"));
    QCOMPARE(InParole(*banco.ambiente, {.migliaia = 2, .unita = 10}),
             QStringLiteral("2 migliaia, 10 unità"));
  }

  void oneOfAKindIsInTheSingular() {
    Banco banco({640, 480});
    QCOMPARE(InParole(*banco.ambiente, {1, 1, 1, 1}),
             QStringLiteral("1 migliaio, 1 centinaio, 1 decina, 1 unità"));
  }

  void nothingAtAllIsSaidToo() {
    Banco banco({640, 480});
    QCOMPARE(InParole(*banco.ambiente, {}), QStringLiteral("vuoto"));
  }

  void theWordsAreThoseOfTheLanguageNow() {
    Banco banco({640, 480});
    banco.ambiente->stato.LinguaCorrente = QStringLiteral("English");
    QCOMPARE(InParole(*banco.ambiente, {2, 1, 3, 1}),
             QStringLiteral("2 thousands, 1 hundred, 3 tens, 1 unit"));
    QCOMPARE(InParole(*banco.ambiente, {}), QStringLiteral("empty"));
  }

  void aLanguageWithoutTheWordsFallsBackOnTheItalianOnes() {
    Banco banco({640, 480});
    banco.metti(QStringLiteral("Vuota.lng"), "[Strings]\n");
    banco.ambiente->stato.LinguaCorrente = QStringLiteral("Vuota");
    QCOMPARE(InParole(*banco.ambiente, {.decine = 1}), QStringLiteral("1 decina"));
  }
};

const prova::Iscrizione<InParoleTest, QApplication> kIscritta;

}  // namespace in_parole_test

#include "in_parole_test.moc"
