#include "swf/abaco.h"

#include <QTest>
#include <algorithm>
#include <set>

#include "support/iscrizione.h"
#include "tests/tools/swf/passeggiata.h"

namespace abaco_test {

using prove::FilmatoLetto;
using prove::Posto;

class AbacoTest : public QObject {
  Q_OBJECT

  FilmatoLetto letto_;

  // The button inside the clip of that name.
  const prove::PulsanteLetto& pulsante(const std::string& nome) {
    const auto& clip = letto_.clip.at(letto_.posto(nome)->carattere);
    return letto_.pulsanti.at(clip.posti.at(0).carattere);
  }

  static bool beadName(const std::string& nome) {
    static const std::set<std::string> prefissi{"k", "h", "da", "u", "ka", "ha", "daa", "ua"};
    return !nome.empty() && prefissi.contains(nome.substr(0, nome.size() - 1));
  }

  // Where the bead of that name feels the mouse, in twips of the stage.
  prove::Rettangolo zona(const Posto& posto) {
    for (const auto& aspetto : pulsante(posto.nome).aspetti) {
      if (!(aspetto.stati & 0x08)) continue;
      auto r = letto_.forme.at(aspetto.carattere);
      r.xMinimo += static_cast<int>(posto.x);
      r.xMassimo += static_cast<int>(posto.x);
      r.yMinimo += static_cast<int>(posto.y);
      r.yMassimo += static_cast<int>(posto.y);
      return r;
    }
    return {};
  }

 private Q_SLOTS:
  void initTestCase() { letto_ = prove::leggi(somme::filmati::abaco().byte()); }

  void theStageHasTheShapeOfItsPlaceOnTheForm() {
    // 7815 by 5415 on the form, 15 to a pixel; a pixel of the stage has 20.
    QCOMPARE(letto_.palco.larghezza(), 521 * 20);
    QCOMPARE(letto_.palco.altezza(), 361 * 20);
  }

  void itIsOneFrameThatStops() {
    QCOMPARE(letto_.scena.dichiarati, 1);
    QCOMPARE(letto_.scena.mostrati, 1);
    QCOMPARE(letto_.scena.blocchi.size(), std::size_t(1));
    QCOMPARE(letto_.scena.blocchi[0].azioni.size(), std::size_t(1));
    QCOMPARE(letto_.scena.blocchi[0].azioni[0].codice, 0x07);
    for (const auto& [numero, clip] : letto_.clip) QCOMPARE(clip.mostrati, 1);
  }

  void everyBeadSaysItsWordAndTheNameOfItsClip_data() {
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QString>("word");
    QTest::newRow("k") << "k"
                       << "migliaioinserito";
    QTest::newRow("h") << "h"
                       << "centinaioinserito";
    QTest::newRow("da") << "da"
                        << "decinainserita";
    QTest::newRow("u") << "u"
                       << "unitainserita";
    QTest::newRow("ka") << "ka"
                        << "migliaioinattesa";
    QTest::newRow("ha") << "ha"
                        << "centinaioinattesa";
    QTest::newRow("daa") << "daa"
                         << "decinainattesa";
    QTest::newRow("ua") << "ua"
                        << "unitainattesa";
  }

  void everyBeadSaysItsWordAndTheNameOfItsClip() {
    QFETCH(QString, prefix);
    QFETCH(QString, word);
    for (int i = 0; i <= 9; ++i) {
      const std::string nome = prefix.toStdString() + std::to_string(i);
      QVERIFY2(letto_.posto(nome).has_value(), nome.c_str());
      const auto& p = pulsante(nome);
      QCOMPARE(p.condizioni, 0x0008);  // let go inside
      QCOMPARE(prove::spinti(p.azioni),
               (std::vector<std::string>{"FSCommand:", "this", "_name", word.toStdString()}));
      std::vector<int> codici;
      codici.reserve(p.azioni.size());
      for (const auto& azione : p.azioni) codici.push_back(azione.codice);
      QCOMPARE(codici, (std::vector<int>{0x96, 0x96, 0x1C, 0x96, 0x4E, 0x21, 0x96, 0x9A}));
    }
  }

  // A sign would be drawn in lines of its own for each place.
  void theBeadsDifferByNothingButTheirColors() {
    std::set<std::size_t> misure;
    for (const std::string nome : {"k0", "h0", "da0", "u0", "ka1", "ha1", "daa1", "ua1"}) {
      const int figura = pulsante(nome).aspetti.at(0).carattere;
      for (const auto& etichetta : letto_.etichette) {
        const bool forma = etichetta.codice == 2 || etichetta.codice == 22 ||
                           etichetta.codice == 32 || etichetta.codice == 83;
        if (!forma || (etichetta.corpo.at(0) | etichetta.corpo.at(1) << 8) != figura) continue;
        misure.insert(etichetta.corpo.size());
      }
    }
    QCOMPARE(misure.size(), std::size_t(1));
  }

  void noNameIsTakenTwice() {
    std::set<std::string> nomi;
    for (const auto& posto : letto_.scena.posti) {
      if (!posto.nome.empty()) QVERIFY2(nomi.insert(posto.nome).second, posto.nome.c_str());
    }
    QCOMPARE(nomi.size(), std::size_t(80));
    QVERIFY(std::ranges::all_of(nomi, beadName));
  }

  void everyBeadCanBeHitInTheSmallestWindow() {
    // Where the window is at its smallest, the abacus is shown at 0.8.
    for (const auto& posto : letto_.scena.posti) {
      if (posto.nome.empty()) continue;
      const auto r = zona(posto);
      QVERIFY2(r.larghezza() * 0.8 >= 24 * 20, posto.nome.c_str());
      QVERIFY2(r.altezza() * 0.8 >= 24 * 20, posto.nome.c_str());
      QVERIFY(r.xMinimo >= 0 && r.yMinimo >= 0);
      QVERIFY(r.xMassimo <= letto_.palco.xMassimo && r.yMassimo <= letto_.palco.yMassimo);
    }
  }

  void noTwoBeadsShareAPlace() {
    std::vector<Posto> palline;
    std::ranges::copy_if(letto_.scena.posti, std::back_inserter(palline),
                         [](const Posto& p) { return !p.nome.empty(); });
    for (std::size_t i = 0; i < palline.size(); ++i) {
      for (std::size_t j = i + 1; j < palline.size(); ++j) {
        const auto a = zona(palline[i]);
        const auto b = zona(palline[j]);
        const bool divise = a.xMassimo <= b.xMinimo || b.xMassimo <= a.xMinimo ||
                            a.yMassimo <= b.yMinimo || b.yMassimo <= a.yMinimo;
        QVERIFY2(divise, (palline[i].nome + " and " + palline[j].nome).c_str());
      }
    }
  }

  void beadsOfASpikeStandOneUponTheOtherFromTheBase() {
    for (const std::string ordine : {"k", "h", "da", "u"}) {
      for (int i = 1; i <= 9; ++i) {
        const auto sotto = *letto_.posto(ordine + std::to_string(i - 1));
        const auto sopra = *letto_.posto(ordine + std::to_string(i));
        QCOMPARE(sopra.x, sotto.x);
        QCOMPARE(sotto.y - sopra.y, 600.0);
      }
    }
  }

  void spikesStandInTheOrderOfTheNumber() {
    QVERIFY(letto_.posto("k0")->x < letto_.posto("h0")->x);
    QVERIFY(letto_.posto("h0")->x < letto_.posto("da0")->x);
    QVERIFY(letto_.posto("da0")->x < letto_.posto("u0")->x);
    for (const std::string ordine : {"k", "h", "da", "u"}) {
      QVERIFY(letto_.posto(ordine + "0")->x < letto_.posto(ordine + "a0")->x);
    }
  }

  void theSameAbacusGivesTheSameBytes() {
    QCOMPARE(somme::filmati::abaco().byte(), somme::filmati::abaco().byte());
  }
};

const prova::Iscrizione<AbacoTest> kIscritta;

}  // namespace abaco_test

#include "abaco_test.moc"
