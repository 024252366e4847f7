#include "app/disegno_menu.h"

#include <QApplication>
#include <algorithm>
#include <vector>

#include "app/shared/nomi_forme.h"
#include "app/tabella_forme.h"
#include "platform/forms/text_block.h"
#include "support/banco.h"
#include "support/iscrizione.h"

namespace disegno_menu_test {

using platform::Row;
using platform::TwipsRect;
using prova::Banco;
using namespace somme::forme;

namespace {

// What a menu's design says of a control; no place is any place.
struct Voce {
  std::string_view forma;
  std::string_view nome;
  int indice;  // in a control array; -1 outside of one
  std::string_view didascalia;
  TwipsRect posto = {};
};

constexpr std::string_view kIndietro = "Torna al menù principale";

constexpr auto kVoci = std::to_array<Voce>({
    {kFormMenu, "Command2", -1, "Uso delle barre", {240, 360, 2580, 1155}},
    {kFormMenu, "Command6", -1, "Tabella", {3480, 360, 2580, 1155}},
    {kFormMenu, "Command4", -1, "Piatti, lunghi, unità", {240, 1680, 2580, 1155}},
    {kFormMenu, "Command3", -1, "Solo numeri", {3480, 1680, 2580, 1155}},
    {kFormMenu, "Command5", -1, "Abaco", {240, 3000, 2580, 1155}},
    {kFormMenu, "Command1", -1, "Esci", {6600, 4680, 2580, 1155}},
    {kFormMenu, "HScrollScansione", -1, "", {240, 2520, 7095, 345}},
    {kFormMenu, "LabelTempoScansione", -1, "", {240, 2880, 7095, 345}},
    {kFormMenu, "CommandConfermaTempoInput", -1, "Conferma", {6120, 5280, 2580, 795}},
    {kFormMenuNumeri, "Label2", -1, "Entro 10"},
    {kFormMenuNumeri, "Label5", -1, "Entro 20"},
    {kFormMenuNumeri, "Label6", -1, "Entro 99"},
    {kFormMenuNumeri, "Label3", -1, "Entro 999"},
    {kFormMenuNumeri, "Label4", -1, "Entro 9.999"},
    {kFormMenuNumeri, "Command1", 0, kIndietro, {7800, 6120, 4020, 1155}},
    {kFormMenuAbaco, "Label2", -1, "Entro 99"},
    {kFormMenuAbaco, "Label3", -1, "Entro 999"},
    {kFormMenuAbaco, "Label4", -1, "Entro 9.999"},
    {kFormMenuAbaco, "Command1", 0, kIndietro, {6720, 6120, 3900, 1155}},
    {kFormMenuPLU, "Label2", -1, "Entro 99"},
    {kFormMenuPLU, "Label3", -1, "Entro 999"},
    {kFormMenuPLU, "Command1", -1, kIndietro},
    {kFormMenuBarre, "Command2", -1, "Fino al 10"},
    {kFormMenuBarre, "Command4", -1, "Fino al 20"},
    {kFormMenuBarre, "Command1", -1, kIndietro},
    {kFormMenuTabella, "Command1", -1, kIndietro},
});

const Row* rigaDi(const platform::Form& forma, const Voce& voce) {
  const Row* trovata = nullptr;
  for (const std::span<const Row> tavola : forma.design().tables) {
    for (const Row& riga : tavola) {
      if (riga.name == voce.nome && riga.index == voce.indice) trovata = &riga;
    }
  }
  return trovata;
}

}  // namespace

// Places and words of the menus, apart from their levels.
class DisegnoMenuTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void everyControlHasItsPlaceAndItsWords() {
    const Banco banco({640, 480});
    for (const Voce& voce : kVoci) {
      const auto forma = somme::CreaForma(*banco.ambiente, voce.forma);
      const Row* riga = rigaDi(*forma, voce);
      const std::string quale = std::string(voce.forma) + "." + std::string(voce.nome);
      QVERIFY2(riga != nullptr, quale.c_str());
      QVERIFY2(riga->look.caption == voce.didascalia, quale.c_str());
      QVERIFY2(voce.posto == TwipsRect{} || riga->place == voce.posto, quale.c_str());
    }
  }

  void aFamilyKeepsItsTintFromTheMainMenuToItsLevels_data() {
    QTest::addColumn<QByteArray>("strada");
    QTest::addColumn<QByteArray>("menu");
    const auto riga = [](const char* strada, std::string_view menu) {
      const QByteArray nome(menu.data(), qsizetype(menu.size()));
      QTest::newRow(nome.constData()) << QByteArray(strada) << nome;
    };
    riga("Command2", kFormMenuBarre);
    riga("Command6", kFormMenuTabella);
    riga("Command4", kFormMenuPLU);
    riga("Command3", kFormMenuNumeri);
    riga("Command5", kFormMenuAbaco);
  }
  void aFamilyKeepsItsTintFromTheMainMenuToItsLevels() {
    QFETCH(QByteArray, strada);
    QFETCH(QByteArray, menu);
    const Banco banco({640, 480});
    const auto principale = somme::CreaForma(*banco.ambiente, kFormMenu);
    const Row* via = rigaDi(*principale, {kFormMenu, strada.constData(), -1, ""});
    QVERIFY(via != nullptr && via->look.back.has_value());
    // Words on it are read with ease.
    QVERIFY(platform::contrast(platform::toColor(*via->look.back), Qt::black) >= 4.5);
    const auto forma = somme::CreaForma(*banco.ambiente, menu.toStdString());
    int livelli = 0;
    for (const std::span<const Row> tavola : forma->design().tables) {
      for (const Row& riga : tavola) {
        const bool eLivello = riga.name.starts_with("Command") && !riga.look.hidden &&
                              riga.look.picture != "indietro";
        if (!eLivello) continue;
        ++livelli;
        QVERIFY2(riga.look.back == via->look.back, std::string(riga.name).c_str());
      }
    }
    QVERIFY(livelli > 0);
  }

  void noTwoFamiliesHaveOneTint() {
    const Banco banco({640, 480});
    const auto menu = somme::CreaForma(*banco.ambiente, kFormMenu);
    std::vector<platform::Rgb> tinte;
    for (const char* nome : {"Command2", "Command3", "Command4", "Command5", "Command6"}) {
      const Row* riga = rigaDi(*menu, {kFormMenu, nome, -1, ""});
      QVERIFY(riga != nullptr && riga->look.back.has_value());
      QVERIFY(std::ranges::find(tinte, *riga->look.back) == tinte.end());
      tinte.push_back(*riga->look.back);
    }
  }

  void theMainMenuHasTheClientAreaOfItsDesign() {
    const Banco banco({640, 480});
    const auto forma = somme::CreaForma(*banco.ambiente, kFormMenu);
    QCOMPARE(forma->design().width, 9780.0);
    QCOMPARE(forma->design().height, 6210.0);
  }

  void thePanelOfTheIntervalIsGrayAndHidden() {
    const Banco banco({640, 480});
    const auto forma = somme::CreaForma(*banco.ambiente, kFormMenu);
    const Row* pannello = rigaDi(*forma, {kFormMenu, "PictureTempoScansione", -1, ""});
    QVERIFY(pannello != nullptr);
    QVERIFY(pannello->look.back == std::optional(platform::Rgb{224, 224, 224}));
    QVERIFY(pannello->look.hidden);
    for (const char* nome :
         {"LabelTempoScansione", "HScrollScansione", "CommandConfermaTempoInput"}) {
      const Row* riga = rigaDi(*forma, {kFormMenu, nome, -1, ""});
      QVERIFY2(riga != nullptr && riga->look.in == "PictureTempoScansione", nome);
    }
  }
};

const prova::Iscrizione<DisegnoMenuTest, QApplication> kIscritta;

}  // namespace disegno_menu_test

#include "disegno_menu_test.moc"
