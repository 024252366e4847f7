#include "exercises/bars/disegno_barre.h"

#include <QApplication>

#include "app/shared/nomi_forme.h"
#include "support/banco.h"
#include "support/iscrizione.h"

namespace disegno_barre_test {

using platform::Row;
using platform::TwipsRect;
using prova::Banco;
namespace forme = somme::forme;

namespace {

// What a form's design says, in twips; a mark that goes from 0 to 0 is none.
struct Misure {
  std::string_view nome;
  double larghezza;
  double altezza;
  double origine;
  double unita;
  int aiuti;
  double segnoDa = 0;
  double segnoA = 0;
};

constexpr auto kMisure = std::to_array<Misure>({
    {forme::kFormBarre10, 11145, 7650, 0, 705, 10},
    {forme::kFormBarre10Tastiera, 10980, 7905, 240, 705, 10},
    {forme::kFormBarre10Scansione, 11010, 7245, 240, 705, 10},
    {forme::kFormBarre10HK, 10980, 7905, 240, 705, 10},
    {forme::kFormBarre20, 10980, 7605, 240, 465, 20, -120, 3360},
    {forme::kFormBarre20Scansione, 11190, 7500, 240, 465, 20, 480, 3000},
    {forme::kFormBarre20HK, 10980, 7905, 240, 465, 20, 120, 3600},
});

const Row* rigaDi(const platform::Form& forma, std::string_view nome, int indice = -1) {
  const Row* trovata = nullptr;
  for (const std::span<const Row> tavola : forma.design().tables) {
    for (const Row& riga : tavola) {
      if (riga.name == nome && riga.index == indice) trovata = &riga;
    }
  }
  return trovata;
}

}  // namespace

// The measures of the seven bars forms.
class DisegnoBarreTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void everyFormHasTheMeasuresOfItsDesign_data() {
    QTest::addColumn<int>("quale");
    for (int i = 0; i < int(kMisure.size()); ++i) {
      QTest::newRow(std::string(kMisure[size_t(i)].nome).c_str()) << i;
    }
  }
  void everyFormHasTheMeasuresOfItsDesign() {
    QFETCH(int, quale);
    const Misure& m = kMisure[size_t(quale)];
    Banco banco;
    banco.ambiente->stato.LimiteEsercizio = m.aiuti;
    banco.mostra(m.nome);
    auto& forma = banco.forma<somme::FormaBarre>();
    QCOMPARE(forma.design().width, m.larghezza);
    QCOMPARE(forma.design().height, m.altezza);
    QVERIFY(rigaDi(forma, "n1")->place == (TwipsRect{m.origine, m.origine, m.unita, m.unita}));
    for (const auto* quadretti : {&forma.aiuto1, &forma.aiuto2, &forma.aiuto3}) {
      QCOMPARE(quadretti->count(), m.aiuti);
    }
    const Row* segno = rigaDi(forma, "Line1");
    QCOMPARE(segno != nullptr, m.segnoDa != m.segnoA);
    if (segno != nullptr) {
      QCOMPARE(segno->place.top, m.segnoDa);
      QCOMPARE(segno->place.top + segno->place.height, m.segnoA);
      QCOMPARE(segno->look.borderWidth, 2);
      QCOMPARE(segno->look.hidden, m.nome != forme::kFormBarre20Scansione);
    }
    const bool sopra = m.nome == forme::kFormBarre10;
    constexpr std::array<double, 5> kTermini{0, 960, 1800, 2760, 3600};
    for (int i = 0; i < 5; ++i) {
      const TwipsRect& posto = rigaDi(forma, "Label4", i)->place;
      QCOMPARE(posto.left, (sopra ? 2880 : 2760) + kTermini[size_t(i)]);
      QCOMPARE(posto.top, sopra ? 120.0 : 4320.0);
      QCOMPARE(posto.width, i % 2 == 0 ? 975.0 : 855.0);
    }
  }

  void theElevenButtonsStandInTheirRow() {
    constexpr std::array<double, 11> kSinistre{360,  1335, 2295, 3255, 4215, 5175,
                                               6135, 7080, 8040, 9000, 9960};
    Banco banco;
    banco.ambiente->stato.LimiteEsercizio = 10;
    banco.mostra(forme::kFormBarre10);
    const auto& forma = banco.forma<somme::FormaBarre>();
    for (int i = 0; i <= 10; ++i) {
      const Row* numero = rigaDi(forma, "PulsanteNumero", i);
      QVERIFY(numero->place == (TwipsRect{kSinistre[size_t(i)], 4920, 800, 645}));
      QVERIFY(numero->look.caption == std::to_string(i));
    }
  }
};

const prova::Iscrizione<DisegnoBarreTest, QApplication> kIscritta;

}  // namespace disegno_barre_test

#include "disegno_barre_test.moc"
