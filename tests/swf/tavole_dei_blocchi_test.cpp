#include "swf/tavole_dei_blocchi.h"

#include <QTest>
#include <algorithm>
#include <cmath>

#include "support/iscrizione.h"
#include "tests/tools/swf/passeggiata.h"

namespace tavole_dei_blocchi_test {

using prove::FilmatoLetto;

namespace {

// A raised command and where it stands.
struct Comando {
  int fotogramma;
  std::string comando;
  std::string argomenti;
};

std::vector<Comando> comandi(const FilmatoLetto& letto) {
  std::vector<Comando> esito;
  for (const auto& blocco : letto.scena.blocchi) {
    for (const auto& azione : blocco.azioni) {
      if (azione.codice == 0x83) {
        const std::string indirizzo = prove::testo(azione.dati);
        esito.push_back(
            {blocco.fotogramma, indirizzo, prove::testo(azione.dati, indirizzo.size() + 1)});
      }
    }
  }
  return esito;
}

// Whether an action of that frame stops the scene, before any action turns to another clip.
bool ferma(const FilmatoLetto& letto, int fotogramma) {
  for (const auto& blocco : letto.scena.blocchi) {
    if (blocco.fotogramma != fotogramma) continue;
    bool sullaScena = true;
    for (const auto& azione : blocco.azioni) {
      if (azione.codice == 0x8B) sullaScena = prove::testo(azione.dati).empty();
      if (azione.codice == 0x07 && sullaScena) return true;
    }
  }
  return false;
}

// The picture that the clip shows first.
prove::Rettangolo figura(const FilmatoLetto& letto, const std::string& nome) {
  const auto& clip = letto.clip.at(letto.posto(nome)->carattere);
  return letto.forme.at(clip.posti.at(0).carattere);
}

// Where a clip's first picture stands on the stage, in twips.
prove::Rettangolo doveSta(const FilmatoLetto& letto, const prove::Posto& posto) {
  auto r = figura(letto, posto.nome);
  return {r.xMinimo + static_cast<int>(posto.x), r.xMassimo + static_cast<int>(posto.x),
          r.yMinimo + static_cast<int>(posto.y), r.yMassimo + static_cast<int>(posto.y)};
}

bool discosti(const prove::Rettangolo& r, const prove::Rettangolo& altro) {
  return r.xMassimo < altro.xMinimo || altro.xMassimo < r.xMinimo || r.yMassimo < altro.yMinimo ||
         altro.yMassimo < r.yMinimo;
}

int quanti(const FilmatoLetto& letto, const std::string& prefisso) {
  int n = 0;
  while (letto.posto(prefisso + std::to_string(n + 1))) ++n;
  return n;
}

}  // namespace

class TavoleDeiBlocchiTest : public QObject {
  Q_OBJECT

  std::map<std::string, FilmatoLetto> letti_;

 private Q_SLOTS:
  void initTestCase() {
    letti_["dau"] = prove::leggi(somme::filmati::dau().byte());
    letti_["hdau"] = prove::leggi(somme::filmati::hdau().byte());
    letti_["unione"] = prove::leggi(somme::filmati::unione().byte());
    letti_["unionehdau"] = prove::leggi(somme::filmati::unionehdau().byte());
  }

  void everyBoardHoldsItsBlocks_data() {
    QTest::addColumn<QString>("movie");
    QTest::addColumn<int>("hundreds");
    QTest::addColumn<int>("tens");
    QTest::addColumn<int>("units");
    QTest::newRow("an addend of tens and units") << "dau" << 0 << 9 << 9;
    QTest::newRow("an addend with hundreds") << "hdau" << 9 << 9 << 9;
    QTest::newRow("tens and units joined") << "unione" << 0 << 9 << 19;
    QTest::newRow("hundreds, tens and units joined") << "unionehdau" << 9 << 19 << 19;
  }

  void everyBoardHoldsItsBlocks() {
    QFETCH(QString, movie);
    const auto& letto = letti_.at(movie.toStdString());
    QTEST(quanti(letto, "h"), "hundreds");
    QTEST(quanti(letto, "da"), "tens");
    QTEST(quanti(letto, "u"), "units");
  }

  void theStageHasTheShapeOfItsPlaceOnTheForm() {
    for (const char* piccola : {"dau", "hdau"}) {
      QCOMPARE(letti_.at(piccola).palco.larghezza(), 4575 / 15 * 20);
      QCOMPARE(letti_.at(piccola).palco.altezza(), 3975 / 15 * 20);
    }
    for (const char* grande : {"unione", "unionehdau"}) {
      QCOMPARE(letti_.at(grande).palco.larghezza(), 10455 / 15 * 20);
      QCOMPARE(letti_.at(grande).palco.altezza(), 4215 / 15 * 20);
    }
  }

  void everyMovieWaitsOnItsFirstFrame() {
    for (const auto& [nome, letto] : letti_) {
      QCOMPARE(letto.scena.dichiarati, letto.scena.mostrati);
      QVERIFY2(ferma(letto, 1), nome.c_str());
    }
  }

  void everyBlockIsPutDownOnceOnTheFirstFrame() {
    for (const auto& [nome, letto] : letti_) {
      for (const auto& posto : letto.scena.posti) {
        QCOMPARE(posto.fotogramma, 1);
        QCOMPARE(std::ranges::count(letto.scena.posti, posto.profondita, &prove::Posto::profondita),
                 1);
      }
    }
  }

  void boardsOfOneAddendRaiseNothing() {
    for (const char* nome : {"dau", "hdau"}) {
      QCOMPARE(letti_.at(nome).scena.mostrati, 1);
      QVERIFY(comandi(letti_.at(nome)).empty());
    }
  }

  void tenUnitsBecomeALongWithinFourSeconds() {
    const auto& letto = letti_.at("unione");
    const auto raised = comandi(letto);
    QCOMPARE(raised.size(), std::size_t(1));
    QCOMPARE(raised[0].comando, std::string("FSCommand:cambio"));
    QCOMPARE(raised[0].argomenti, std::string("cambio"));
    QVERIFY((raised[0].fotogramma - 1) / letto.cadenza < 4);
    QVERIFY(ferma(letto, raised[0].fotogramma));
  }

  void bothChangesOfTheHundredsBoardEndInTimeAndStop() {
    const auto& letto = letti_.at("unionehdau");
    const auto raised = comandi(letto);
    QCOMPARE(raised.size(), std::size_t(2));
    QCOMPARE(raised[0].argomenti, std::string("cambiouda"));
    QCOMPARE(raised[1].argomenti, std::string("cambiodah"));
    QVERIFY2(raised[0].fotogramma < 51, "the second change starts on frame 51");
    QVERIFY(raised[1].fotogramma > 51);
    QVERIFY((raised[0].fotogramma - 1) / letto.cadenza < 4);
    QVERIFY((raised[1].fotogramma - 50) / letto.cadenza < 4);
    for (const auto& comando : raised) QVERIFY(ferma(letto, comando.fotogramma));
  }

  void theChangesMoveSmoothly() {
    for (const char* nome : {"unione", "unionehdau"}) QVERIFY(letti_.at(nome).cadenza >= 24);
  }

  void aChangeTouchesNothingButTheTenThatChange() {
    for (const char* nome : {"unione", "unionehdau"}) {
      for (const auto& blocco : letti_.at(nome).scena.blocchi) {
        if (blocco.fotogramma < 2) continue;
        std::string clip;
        for (const auto& azione : blocco.azioni) {
          if (azione.codice == 0x96 && azione.dati.at(0) == 0) {
            const std::string testo = prove::testo(azione.dati, 1);
            if (testo.starts_with('/')) clip = testo.substr(1);
          }
          if (azione.codice != 0x23) continue;
          const auto cifre = clip.find_first_of("0123456789");
          QVERIFY2(std::stoi(clip.substr(cifre)) <= 10, clip.c_str());
          QVERIFY2(clip.starts_with(
                       nome == std::string("unionehdau") && blocco.fotogramma >= 51 ? "da" : "u"),
                   clip.c_str());
        }
      }
    }
  }

  void tenUnitsAreAsTallAsALongAndTenLongsAsWideAsAFlat() {
    for (const auto& [nome, letto] : letti_) {
      const auto unita = figura(letto, "u1");
      const auto lungo = figura(letto, "da1");
      const int orlo = -unita.xMinimo;  // half the edge's width stands outside
      const int lato = unita.larghezza() - 2 * orlo;
      QCOMPARE(unita.altezza() - 2 * orlo, lato);
      QCOMPARE(lungo.larghezza() - 2 * orlo, lato);
      QCOMPARE(lungo.altezza() - 2 * orlo, 10 * lato);
      if (quanti(letto, "h") == 0) continue;
      QCOMPARE(figura(letto, "h1").larghezza() - 2 * orlo, 10 * lato);
      QCOMPARE(figura(letto, "h1").altezza() - 2 * orlo, 10 * lato);
    }
  }

  void noTwoBlocksTouchButFlatsAndAllStandOnTheBoard() {
    for (const auto& [nome, letto] : letti_) {
      std::vector<prove::Rettangolo> blocchi;
      for (const auto& posto : letto.scena.posti) {
        if (posto.nome.empty() || posto.nome.starts_with("custode")) continue;
        const auto r = doveSta(letto, posto);
        QVERIFY2(r.xMinimo > 0 && r.yMinimo > 0, posto.nome.c_str());
        QVERIFY2(r.xMassimo < letto.palco.xMassimo && r.yMassimo < letto.palco.yMassimo,
                 posto.nome.c_str());
        if (posto.nome.starts_with("h")) continue;
        for (const auto& altro : blocchi) {
          QVERIFY2(discosti(r, altro), (nome + ": " + posto.nome).c_str());
        }
        blocchi.push_back(r);
      }
      for (const auto& posto : letto.scena.posti) {
        if (!posto.nome.starts_with("h")) continue;
        for (const auto& altro : blocchi) {
          QVERIFY2(discosti(doveSta(letto, posto), altro), (nome + ": " + posto.nome).c_str());
        }
      }
    }
  }

  // Like cards: the later one in front, of each the upper left corner and half of both sides.
  void flatsLieOverOneAnotherSoThatEachIsSeen() {
    for (const char* nome : {"hdau", "unionehdau"}) {
      const auto& letto = letti_.at(nome);
      for (int i = 1; i <= 9; ++i) {
        const auto uno = letto.posto("h" + std::to_string(i));
        const auto sotto = doveSta(letto, *uno);
        for (int j = i + 1; j <= 9; ++j) {
          const auto altro = letto.posto("h" + std::to_string(j));
          const auto sopra = doveSta(letto, *altro);
          QVERIFY(altro->profondita > uno->profondita);
          const bool aDestra = sopra.xMinimo >= (sotto.xMinimo + sotto.xMassimo) / 2;
          const bool inBasso = sopra.yMinimo >= (sotto.yMinimo + sotto.yMassimo) / 2;
          QVERIFY2(aDestra || inBasso, nome);
        }
      }
    }
  }

  void theSameBoardGivesTheSameBytes() {
    QCOMPARE(somme::filmati::unionehdau().byte(), somme::filmati::unionehdau().byte());
    QCOMPARE(somme::filmati::unione().byte(), somme::filmati::unione().byte());
  }
};

const prova::Iscrizione<TavoleDeiBlocchiTest> kIscritta;

}  // namespace tavole_dei_blocchi_test

#include "tavole_dei_blocchi_test.moc"
