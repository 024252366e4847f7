#include "cases/livelli_coerenti.h"

#include <QTest>
#include <functional>
#include <vector>

#include "scripted_chance.h"
#include "support/iscrizione.h"

namespace livelli_coerenti_test {

using namespace somme;

namespace {

using Tavola = std::vector<Livello>;

// The program's own rows, to be spoilt.
Tavola buona() {
  return {kLivelli.begin(), kLivelli.end()};
}

// The row of a sum by its number.
Livello& somma(Tavola& tavola, qint16 totale) {
  return *std::ranges::find(tavola, totale, [](const Livello& l) { return l.numeri.totale; });
}

struct Guasto {
  const char* nome;
  bool (*regola)(Livelli livelli);
  std::function<void(Tavola&)> guasta;
};

const std::vector<Guasto>& guasti() {
  using namespace coerenti;
  static const std::vector<Guasto> tutti{
      {"a row among those of another group", InOrdine,
       [](Tavola& t) { std::swap(somma(t, 9), somma(t, 10)); }},
      {"no words", ConParole, [](Tavola& t) { somma(t, 3).didascalia = ""; }},
      {"blanks for words", ConParole, [](Tavola& t) { somma(t, 3).didascalia = "  "; }},
      {"of no family", Offerti, [](Tavola& t) { somma(t, 3).numeri = {}; }},
      {"a sum and an addend at once", Offerti, [](Tavola& t) { somma(t, 3).numeri.addendo = 5; }},
      {"two sums of one number", NumeriDistinti, [](Tavola& t) { somma(t, 8).numeri.totale = 7; }},
      {"two levels of the abacus of one number", NumeriDistinti,
       [](Tavola& t) { somma(t, 8).abaco.tipo = 3; }},
      {"two levels up to 99 of one number on the blocks", NumeriDistinti,
       [](Tavola& t) { somma(t, 8).blocchi.tipo = 1; }},
      {"a number below 1", NumeriDistinti, [](Tavola& t) { somma(t, 8).abaco.tipo = -1; }},
      {"a box too short", CifreBastanti, [](Tavola& t) { somma(t, 27).cifre = 3; }},
      {"no box", CifreBastanti, [](Tavola& t) { somma(t, 1).cifre = 0; }},
      {"an addend without a sum of its number", AddendiConTitolo,
       [](Tavola& t) {
         t.front() = {Gruppo::Entro10, "x", GeneraEntro10, 2, {.addendo = 28}};
       }},
      {"an abacus up to 20", AbaciConFrecce, [](Tavola& t) { somma(t, 4).abaco.tipo = 24; }},
      {"hundreds carried up to 99", AbaciConFrecce,
       [](Tavola& t) { somma(t, 6).abaco.frecce = kDueFrecce; }},
      {"thousands carried up to 999", AbaciConFrecce,
       [](Tavola& t) { somma(t, 14).abaco.frecce = kTreFrecce; }},
      {"arrows without an abacus", AbaciConFrecce, [](Tavola& t) { somma(t, 6).abaco.tipo = 0; }},
      {"blocks up to 9,999", BlocchiCompleti,
       [](Tavola& t) {
         somma(t, 20).blocchi = {10, "Command16", "livello", "0010"};
       }},
      {"blocks without a button", BlocchiCompleti,
       [](Tavola& t) { somma(t, 5).blocchi.pulsante = {}; }},
      {"blocks without a name for the record", BlocchiCompleti,
       [](Tavola& t) { somma(t, 5).blocchi.registro = {}; }},
      {"a button of two levels", BlocchiCompleti,
       [](Tavola& t) { somma(t, 5).blocchi.pulsante = "Command3"; }},
      {"the button of the way back", BlocchiCompleti,
       [](Tavola& t) { somma(t, 5).blocchi.pulsante = "Command1"; }},
      {"a button without blocks", BlocchiCompleti, [](Tavola& t) { somma(t, 5).blocchi.tipo = 0; }},
  };
  return tutti;
}

constexpr int kCasi = 2000;

// A seeded source that gives up a case that is drawn for ever.
class Paziente final : public platform::Chance {
 public:
  explicit Paziente(std::uint64_t seme) : sorte_(seme) {}

  [[nodiscard]] float fraction() override {
    constexpr int kTiriAlPiu = 2000;
    if (++tiri_ > kTiriAlPiu) throw EndOfScript();
    return sorte_.fraction();
  }

 private:
  platform::SeededChance sorte_;
  int tiri_ = 0;
};

void perOgniCaso(const Livello& livello, const std::function<void(const Caso&)>& prova) {
  for (int seme = 0; seme < kCasi; ++seme) {
    Caso caso;
    Paziente sorte(static_cast<std::uint64_t>(seme));
    try {
      livello.genera(caso, sorte);
    } catch (const EndOfScript&) {
      continue;
    }
    prova(caso);
    if (QTest::currentTestFailed()) return;
  }
}

// Whether the column of a place, written one number under the other, makes ten.
bool siCambia(const Caso& caso, int posto) {
  const int oltre = posto * 10;
  return caso.Addendo1 % oltre + caso.Addendo2 % oltre >= oltre;
}

}  // namespace

// What must hold between the rows of levels: what a compiler holds them to, and what only a draw
// tells.
class LivelliCoerentiTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void rowsThatContradictOneAnotherAreRefused_data() {
    QTest::addColumn<int>("quale");
    for (int i = 0; i < int(guasti().size()); ++i) QTest::newRow(guasti()[size_t(i)].nome) << i;
  }
  void rowsThatContradictOneAnotherAreRefused() {
    QFETCH(int, quale);
    const Guasto& guasto = guasti()[size_t(quale)];
    Tavola tavola = buona();
    QVERIFY(guasto.regola(tavola));
    guasto.guasta(tavola);
    QVERIFY(!guasto.regola(tavola));
  }

  void noCaseIsGreaterThanItsGroupOrItsBox_data() { livelli(); }
  void noCaseIsGreaterThanItsGroupOrItsBox() {
    QFETCH(int, riga);
    const Livello& livello = kLivelli.at(size_t(riga));
    perOgniCaso(livello, [&livello](const Caso& caso) {
      QVERIFY(caso.Totale == caso.Addendo1 + caso.Addendo2);
      QVERIFY(caso.Totale <= Massimo(livello.gruppo));
      QVERIFY(QString::number(caso.Totale).size() <= livello.cifre);
    });
  }

  // A hidden arrow would leave a pupil with ten beads on a spike and no way on.
  void theAbacusShowsTheArrowOfEveryCarryThatACaseNeeds_data() { livelli(); }
  void theAbacusShowsTheArrowOfEveryCarryThatACaseNeeds() {
    QFETCH(int, riga);
    const Livello& livello = kLivelli.at(size_t(riga));
    if (livello.abaco.tipo == 0) return;
    perOgniCaso(livello, [&frecce = livello.abaco.frecce](const Caso& caso) {
      QVERIFY(frecce.UDa || !siCambia(caso, 1));
      QVERIFY(frecce.DaH || !siCambia(caso, 10));
      QVERIFY(frecce.HK || !siCambia(caso, 100));
    });
  }

 private:
  static void livelli() {
    QTest::addColumn<int>("riga");
    for (int i = 0; i < int(kLivelli.size()); ++i) {
      const auto& parole = kLivelli.at(size_t(i)).didascalia;
      QTest::addRow("%d %.*s", i, int(parole.size()), parole.data()) << i;
    }
  }
};

const prova::Iscrizione<LivelliCoerentiTest> kIscritta;

}  // namespace livelli_coerenti_test

#include "livelli_coerenti_test.moc"
