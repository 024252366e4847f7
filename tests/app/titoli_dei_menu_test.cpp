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

  static QString titolo(const Banco& banco) { return banco.ambiente->stato.TitoloEsercizio; }

 private Q_SLOTS:
  void everySumIsTitledWithItsGroupAndItsCaption_data() {
    QTest::addColumn<int>("indice");
    for (int i = 1; i <= 27; ++i) QTest::addRow("Command1(%d)", i) << i;
  }
  void everySumIsTitledWithItsGroupAndItsCaption() {
    QFETCH(int, indice);
    Banco banco(kFinestra, prova::SenzaEsercizi);
    chiaviComeParole(banco);
    FormMenuNumeri& menu = banco.apri<FormMenuNumeri>(kFormMenuNumeri);
    const QString didascalia = menu.Command1[indice].caption();
    QString gruppo = QStringLiteral("<0028>");
    if (indice <= 18) gruppo = QStringLiteral("<0027>");
    if (indice <= 9) gruppo = QStringLiteral("<0026>");
    if (indice <= 4) gruppo = QStringLiteral("<0025>");
    if (indice == 1) gruppo = QStringLiteral("<0024>");
    banco.clicca(menu.Command1[indice]);
    QCOMPARE(titolo(banco), QStringLiteral("<0031>") + gruppo + didascalia);
  }

  void everyAddendIsTitledWithTheCaptionOfTheSumWithItsIndex_data() {
    QTest::addColumn<int>("indice");
    for (int i = 1; i <= 4; ++i) QTest::addRow("Command2(%d)", i) << i;
  }
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

  void everyLevelOfTheAbacusIsTitledWithItsGroupAndItsCaption_data() {
    QTest::addColumn<int>("indice");
    for (int i = 1; i <= 23; ++i) QTest::addRow("Command1(%d)", i) << i;
  }
  void everyLevelOfTheAbacusIsTitledWithItsGroupAndItsCaption() {
    QFETCH(int, indice);
    Banco banco(kFinestra, prova::SenzaEsercizi);
    chiaviComeParole(banco);
    FormMenuAbaco& menu = banco.apri<FormMenuAbaco>(kFormMenuAbaco);
    const QString didascalia = menu.Command1[indice].caption();
    QString gruppo = QStringLiteral("<0038>");
    if (indice <= 14) gruppo = QStringLiteral("<0037>");
    if (indice <= 5) gruppo = QStringLiteral("<0036>");
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
