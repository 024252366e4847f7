#include "cases/livelli.h"

#include <QTest>
#include <array>
#include <utility>

#include "support/iscrizione.h"

namespace livelli_test {

using namespace somme;
using namespace std::string_view_literals;

namespace {

// How many levels a family has.
auto QuantiLivelli(Famiglia famiglia) {
  return std::ranges::count_if(kLivelli,
                               [famiglia](const Livello& l) { return TipoIn(l, famiglia) != 0; });
}

}  // namespace

class LivelliTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theLevelsOfTheSumsStandAtTheirNumbers() {
    const auto* primo = LivelloDi(Famiglia::NumeriTotale, 1);
    QVERIFY(primo != nullptr);
    QCOMPARE(primo->didascalia, "somme"sv);
    QVERIFY(primo->genera == &GeneraEntro10);
    const auto* ottavo = LivelloDi(Famiglia::NumeriTotale, 8);
    QCOMPARE(ottavo->didascalia, "aggiungi solo unità"sv);
    QVERIFY(ottavo->genera == &GeneraEntro99SoloUnita);
    const auto* ultimo = LivelloDi(Famiglia::NumeriTotale, 27);
    QCOMPARE(ultimo->didascalia, "aggiungi solo migliaia"sv);
    QVERIFY(ultimo->genera == &GeneraEntro9999SoloMigliaia);
  }

  // Those of the blocks, 5 to 18, are known by what their forms draw.
  void theLevelsThatTheBlocksDoNotHaveStandAtTheirNumbers() {
    const std::array<std::pair<int, Generatore>, 13> attesi = {{{1, GeneraEntro10},
                                                                {2, GeneraEntro20},
                                                                {3, GeneraDieciPiu},
                                                                {4, GeneraAddendoMaggiore10},
                                                                {19, GeneraEntro9999SenzaCambio},
                                                                {20, GeneraEntro9999UnCambio},
                                                                {21, GeneraEntro9999DueCambi},
                                                                {22, GeneraEntro9999TreCambi},
                                                                {23, GeneraEntro9999ConESenzaCambi},
                                                                {24, GeneraEntro9999SoloUnita},
                                                                {25, GeneraEntro9999SoloDecine},
                                                                {26, GeneraEntro9999SoloCentinaia},
                                                                {27, GeneraEntro9999SoloMigliaia}}};
    for (const auto& [tipo, genera] : attesi) {
      QVERIFY(LivelloDi(Famiglia::NumeriTotale, tipo)->genera == genera);
    }
  }

  void theBlanksThatBeginACaptionArePartOfIt() {
    QCOMPARE(LivelloDi(Famiglia::NumeriTotale, 10)->didascalia, " senza cambio"sv);
    QCOMPARE(LivelloDi(Famiglia::NumeriTotale, 14)->didascalia, "con due cambi"sv);
    QCOMPARE(LivelloDi(Famiglia::NumeriTotale, 24)->didascalia, " aggiungi solo unità"sv);
  }

  void groupsAndDigitsFollowTheNumber() {
    for (int tipo = 1; tipo <= 27; ++tipo) {
      const Livello& livello = *LivelloDi(Famiglia::NumeriTotale, tipo);
      const Gruppo gruppo = tipo == 1    ? Gruppo::Entro10
                            : tipo <= 4  ? Gruppo::Entro20
                            : tipo <= 9  ? Gruppo::Entro99
                            : tipo <= 18 ? Gruppo::Entro999
                                         : Gruppo::Entro9999;
      QVERIFY(livello.gruppo == gruppo);
      QCOMPARE(livello.cifre, qint16(tipo <= 9 ? 2 : tipo <= 18 ? 3 : 5));
    }
  }

  void theLevelsOfTheAddendsStandAtTheirNumbers() {
    const std::array<Generatore, 4> attesi = {GeneraTotale10, GeneraEntro10, GeneraDieciPiu,
                                              GeneraTotale20};
    const std::array didascalie = {"componi il 10"sv, "trova un addendo"sv, "10 + ... = 18"sv,
                                   "completa il 20"sv};
    for (int tipo = 1; tipo <= 4; ++tipo) {
      const Livello& livello = *LivelloDi(Famiglia::NumeriAddendo, tipo);
      const auto indice = static_cast<std::size_t>(tipo) - 1;
      QVERIFY(livello.genera == attesi.at(indice));
      QCOMPARE(livello.didascalia, didascalie.at(indice));
      QVERIFY(livello.gruppo == (tipo <= 2 ? Gruppo::Entro10 : Gruppo::Entro20));
      QCOMPARE(livello.cifre, qint16{2});
    }
  }

  void aFamilyGoesAsFarAsItsLevels() {
    QCOMPARE(Massimo(Famiglia::NumeriTotale), 9999);
    QCOMPARE(Massimo(Famiglia::NumeriAddendo), 20);
    QCOMPARE(Massimo(Famiglia::Abaco), 9999);
    QCOMPARE(Massimo(Famiglia::BlocchiDecine), 99);
    QCOMPARE(Massimo(Famiglia::BlocchiCentinaia), 999);
    QCOMPARE(Massimo(Famiglia::Tabella), 0);
  }

  void theAbacusHasTheSumsFromEntro99On() {
    QCOMPARE(QuantiLivelli(Famiglia::Abaco), 23);
    for (int tipo = 1; tipo <= 23; ++tipo) {
      QCOMPARE(LivelloDi(Famiglia::Abaco, tipo), LivelloDi(Famiglia::NumeriTotale, tipo + 4));
    }
    QVERIFY(LivelloDi(Famiglia::Abaco, 5)->gruppo == Gruppo::Entro99);
    QVERIFY(LivelloDi(Famiglia::Abaco, 6)->gruppo == Gruppo::Entro999);
    QVERIFY(LivelloDi(Famiglia::Abaco, 15)->gruppo == Gruppo::Entro9999);
  }

  void theBlocksHaveOneGroupForEachBoard() {
    QCOMPARE(QuantiLivelli(Famiglia::BlocchiDecine), 5);
    for (int tipo = 1; tipo <= 5; ++tipo) {
      QVERIFY(LivelloDi(Famiglia::BlocchiDecine, tipo)->gruppo == Gruppo::Entro99);
    }
    QVERIFY(LivelloDi(Famiglia::BlocchiDecine, 2)->genera == &GeneraEntro99ConCambio);
    QCOMPARE(QuantiLivelli(Famiglia::BlocchiCentinaia), 9);
    for (int tipo = 1; tipo <= 9; ++tipo) {
      QVERIFY(LivelloDi(Famiglia::BlocchiCentinaia, tipo)->gruppo == Gruppo::Entro999);
    }
    QVERIFY(LivelloDi(Famiglia::BlocchiCentinaia, 9)->genera == &GeneraEntro999SoloCentinaia);
  }

  void anyOtherNumberHasNoLevel() {
    for (const int tipo : {-32768, -1, 0, 28, 32767}) {
      QVERIFY(LivelloDi(Famiglia::NumeriTotale, tipo) == nullptr);
    }
    QVERIFY(LivelloDi(Famiglia::NumeriAddendo, 5) == nullptr);
    QVERIFY(LivelloDi(Famiglia::Abaco, 24) == nullptr);
    QVERIFY(LivelloDi(Famiglia::BlocchiDecine, 6) == nullptr);
    QVERIFY(LivelloDi(Famiglia::BlocchiCentinaia, 10) == nullptr);
  }
};

const prova::Iscrizione<LivelliTest> kIscritta;

}  // namespace livelli_test

#include "livelli_test.moc"
