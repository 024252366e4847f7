#include "app/form_menu_abaco.h"

#include <QApplication>
#include "app/form_menu_numeri.h"
#include "app/shared/nomi_forme.h"
#include "support/banco.h"
#include "support/controfigura.h"
#include "support/iscrizione.h"

namespace titoli_dei_menu_test {

using prova::Banco;
using somme::FormMenuAbaco;
using somme::FormMenuNumeri;
using namespace somme::forme;

namespace {

constexpr QSize kFinestra{1366, 768};

// A language whose strings are their own keys in angle brackets, which real words may hide: some
// are the same under several keys. The captions are those of the designs.
void chiaviComeParole(const Banco& banco) {
  QByteArray testo = "[Strings]\n";
  for (int i = 24; i <= 39; ++i) {
    testo += "00" + QByteArray::number(i) + "=\"<00" + QByteArray::number(i) + ">\"\n";
  }
  banco.metti(QStringLiteral("Italiano.lng"), testo);
}

}  // namespace

// What stands above the record of an exercise, put together by the two menus with titles.
class TitoliDeiMenuTest : public QObject {
  Q_OBJECT

  // Rows of a test: the buttons of an array, from 1.
  static void finoA(int ultimo, const char* nome) {
    QTest::addColumn<int>("indice");
    for (int i = 1; i <= ultimo; ++i) QTest::addRow("%s(%d)", nome, i) << i;
  }
  // Of groups, each given as its last button and the key of its word.
  static QString gruppoDi(int indice, std::initializer_list<std::pair<int, int>> gruppi) {
    for (const auto& [ultimo, chiave] : gruppi) {
      if (indice <= ultimo) return QStringLiteral("<00%1>").arg(chiave);
    }
    return {};
  }
  static QString titolo(const Banco& banco) { return banco.ambiente->stato.TitoloEsercizio; }

 private Q_SLOTS:
  void everySumIsTitledWithItsGroupAndItsCaption_data() { finoA(27, "Command1"); }
  void everySumIsTitledWithItsGroupAndItsCaption() {
    QFETCH(int, indice);
    Banco banco(kFinestra, prova::SenzaEsercizi);
    chiaviComeParole(banco);
    FormMenuNumeri& menu = banco.apri<FormMenuNumeri>(kFormMenuNumeri);
    const QString didascalia = menu.Command1[indice].caption();
    const QString gruppo = gruppoDi(indice, {{1, 24}, {4, 25}, {9, 26}, {18, 27}, {27, 28}});
    banco.clicca(menu.Command1[indice]);
    QCOMPARE(titolo(banco), QStringLiteral("<0031>") + gruppo + didascalia);
  }

  void everyAddendIsTitledWithTheCaptionOfTheSumWithItsIndex_data() { finoA(4, "Command2"); }
  void everyAddendIsTitledWithTheCaptionOfTheSumWithItsIndex() {
    QFETCH(int, indice);
    Banco banco(kFinestra, prova::SenzaEsercizi);
    chiaviComeParole(banco);
    FormMenuNumeri& menu = banco.apri<FormMenuNumeri>(kFormMenuNumeri);
    const QString didascalia = menu.Command1[indice].caption();
    banco.clicca(menu.Command2[indice]);
    QCOMPARE(titolo(banco),
             QStringLiteral("<0031>") +
                 (indice <= 2 ? QStringLiteral("<0029>") : QStringLiteral("<0030>")) + didascalia);
  }

  void everyLevelOfTheAbacusIsTitledWithItsGroupAndItsCaption_data() { finoA(23, "Command1"); }
  void everyLevelOfTheAbacusIsTitledWithItsGroupAndItsCaption() {
    QFETCH(int, indice);
    Banco banco(kFinestra, prova::SenzaEsercizi);
    chiaviComeParole(banco);
    FormMenuAbaco& menu = banco.apri<FormMenuAbaco>(kFormMenuAbaco);
    const QString didascalia = menu.Command1[indice].caption();
    const QString gruppo = gruppoDi(indice, {{5, 36}, {14, 37}, {23, 38}});
    banco.clicca(menu.Command1[indice]);
    QCOMPARE(titolo(banco), QStringLiteral("<0039>") + gruppo + didascalia);
  }

  void addendOverTenStandsInTheGroupUpToTwenty() {
    Banco banco(kFinestra, prova::SenzaEsercizi);
    chiaviComeParole(banco);
    banco.clicca(banco.apri<FormMenuNumeri>(kFormMenuNumeri).Command1[4]);
    QCOMPARE(banco.ambiente->stato.TipoEsercizio, qint16(4));
    QCOMPARE(titolo(banco), QStringLiteral("<0031><0025>addendo > 10"));
  }

  void completingTwentyIsTitledAddendOverTen() {
    Banco banco(kFinestra, prova::SenzaEsercizi);
    chiaviComeParole(banco);
    banco.clicca(banco.apri<FormMenuNumeri>(kFormMenuNumeri).Command2[4]);
    QCOMPARE(banco.ambiente->stato.TipoEsercizio, qint16(4));
    QCOMPARE(titolo(banco), QStringLiteral("<0031><0030>addendo > 10"));
  }

  void anotherLevelHasATitleWithThatLevelAlone() {
    Banco banco(kFinestra, prova::SenzaEsercizi);
    banco.clicca(banco.apri<FormMenuNumeri>(kFormMenuNumeri).Command1[5]);
    banco.clicca(banco.apri<FormMenuNumeri>(kFormMenuNumeri).Command1[1]);
    QCOMPARE(titolo(banco), QStringLiteral("Solo numeri. Entro 10: somme"));
  }

  void aTitleWithoutItsKeyLacksThatPart() {
    Banco banco(kFinestra, prova::SenzaEsercizi);
    banco.metti(QStringLiteral("Italiano.lng"), "[Strings]\n0031=\"Numeri. \"\n");
    banco.clicca(banco.apri<FormMenuNumeri>(kFormMenuNumeri).Command1[1]);
    QCOMPARE(titolo(banco), QStringLiteral("Numeri. somme"));
  }

  void theWordsOfTheTitlesAreThoseOfTheLanguage() {
    Banco banco(kFinestra, prova::SenzaEsercizi);
    banco.metti(QStringLiteral("LangSetting.ini"), "[Language]\nCurrentLanguage=\"English\"\n");
    banco.ambiente->stato.LinguaCorrente = QStringLiteral("English");
    FormMenuNumeri& menu = banco.apri<FormMenuNumeri>(kFormMenuNumeri);
    QCOMPARE(menu.Command1[10].caption(), QStringLiteral(" no carrying"));
    banco.clicca(menu.Command1[10]);
    QCOMPARE(titolo(banco), QStringLiteral("Numbers only. Up to 999:  no carrying"));
  }
};

const prova::Iscrizione<TitoliDeiMenuTest, QApplication> kIscritta;

}  // namespace titoli_dei_menu_test

#include "titoli_dei_menu_test.moc"
