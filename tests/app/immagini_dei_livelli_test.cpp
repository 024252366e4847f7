#include <QApplication>
#include <QImage>
#include <QWidget>
#include <array>
#include <cstdlib>
#include <vector>

#include "app/disegno_menu.h"
#include "app/shared/nomi_forme.h"
#include "platform/forms/controls/button.h"
#include "support/banco.h"
#include "support/iscrizione.h"

namespace immagini_dei_livelli_test {

using platform::Row;
using prova::Banco;
using namespace somme;
using namespace somme::programma::disegno;

namespace {

constexpr Row Pulsante(std::string_view nome, std::string_view immagine) {
  return {nome, -1, nullptr, {}, {.picture = immagine}};
}

struct Voce {
  QString nome;
  QImage ritratto;
};

// The buttons of a menu that open exercises, without their words, in grey as whoever tells no
// colours sees them.
std::vector<Voce> Livelli(Banco& banco, std::string_view menu) {
  banco.mostra(menu);
  std::vector<Voce> voci;
  QSize grandezza;
  for (platform::Control* controllo : banco.forma<MenuDiFamiglia>().controls()) {
    const auto* pulsante = dynamic_cast<const platform::Button*>(controllo);
    if (pulsante == nullptr || pulsante->look().picture == "indietro") continue;
    QWidget* widget = controllo->widget();
    widget->clearFocus();
    // A pixel more or less would make a difference of its own.
    if (!voci.empty()) widget->resize(grandezza);
    grandezza = widget->size();
    const QImage intero = widget->grab().toImage().convertToFormat(QImage::Format_Grayscale8);
    voci.push_back({controllo->name(), intero.copy(0, 0, intero.width() / 3, intero.height())});
  }
  return voci;
}

// The share of the pixels, in percent, that differ by more than a shade.
double Differenza(const QImage& a, const QImage& b) {
  constexpr int kOmbra = 40;  // of 255
  int diversi = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      diversi += int(std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > kOmbra);
    }
  }
  return 100.0 * diversi / (a.width() * a.height());
}

}  // namespace

// What a pupil who cannot read finds his level by.
class ImmaginiDeiLivelliTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void everyLevelOfBlocksTableAndBarsLooksUnlikeEveryOtherOfItsMenu_data() {
    QTest::addColumn<QByteArray>("menu");
    QTest::addColumn<QSize>("finestra");
    QTest::addColumn<int>("livelli");
    for (const QSize finestra : {QSize(800, 600), QSize(1366, 768)}) {
      const auto riga = [&](std::string_view menu, int livelli) {
        const QByteArray nome(menu.data(), qsizetype(menu.size()));
        QTest::addRow("%s %d", nome.constData(), finestra.width()) << nome << finestra << livelli;
      };
      riga(forme::kFormMenuPLU, 14);
      riga(forme::kFormMenuTabella, 5);
      riga(forme::kFormMenuBarre, 2);
    }
  }
  void everyLevelOfBlocksTableAndBarsLooksUnlikeEveryOtherOfItsMenu() {
    QFETCH(QByteArray, menu);
    QFETCH(QSize, finestra);
    QFETCH(int, livelli);
    Banco banco(finestra);
    const std::vector<Voce> voci = Livelli(banco, menu.toStdString());
    QCOMPARE(int(voci.size()), livelli);
    constexpr double kDiversi = 2.5;
    for (std::size_t i = 0; i < voci.size(); ++i) {
      for (std::size_t j = 0; j < i; ++j) {
        const double differenza = Differenza(voci[i].ritratto, voci[j].ritratto);
        QVERIFY2(
            differenza >= kDiversi,
            qPrintable(
                QStringLiteral("%1, %2: %3 %").arg(voci[i].nome, voci[j].nome).arg(differenza)));
      }
    }
  }

  void aLevelWithoutAPictureOfItsOwnIsRefused() {
    constexpr auto kProprie = std::to_array<Row>({Pulsante("a", "uno"), Pulsante("b", "due")});
    constexpr auto kSenza = std::to_array<Row>({Pulsante("a", "uno"), Pulsante("b", "")});
    constexpr auto kUguali = std::to_array<Row>({Pulsante("a", "uno"), Pulsante("b", "uno")});
    QVERIFY(ConImmaginiProprie(kProprie));
    QVERIFY(!ConImmaginiProprie(kSenza));
    QVERIFY(!ConImmaginiProprie(kUguali));
  }
};

const prova::Iscrizione<ImmaginiDeiLivelliTest, QApplication> kIscritta;

}  // namespace immagini_dei_livelli_test

#include "immagini_dei_livelli_test.moc"
