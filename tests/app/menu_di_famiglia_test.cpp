#include "app/menu_di_famiglia.h"

#include <QApplication>

#include "app/form_menu_abaco.h"
#include "app/form_menu_numeri.h"
#include "app/form_menu_plu.h"
#include "app/form_menu_scelte.h"
#include "app/shared/nomi_forme.h"
#include "exercises/numbers/forma_numeri_tastiera.h"
#include "platform/forms/page.h"
#include "support/banco.h"
#include "support/controfigura.h"
#include "support/iscrizione.h"
#include "support/pulsante.h"
#include "support/righe_di_parole.h"

namespace menu_di_famiglia_test {

using prova::Banco;
using namespace somme;

namespace {

constexpr QSize kFinestra{1366, 768};

struct Voce {
  const char* didascalia;
  int sinistra;
  int alto;
};

// Caption and place of the buttons, as a teacher finds them.
constexpr Voce kTotale[] = {
    {"somme", 240, 1440},
    {"addendi entro il 10", 1920, 1440},
    {"10 + ....", 1920, 2280},
    {"addendo > 10", 1920, 3960},
    {"senza cambio", 3600, 1440},
    {"con il cambio", 3600, 2280},
    {"con e senza cambio", 3600, 3120},
    {"aggiungi solo unità", 3600, 3960},
    {"aggiungi solo decine", 3600, 4800},
    {" senza cambio", 5280, 1440},
    {" cambio alle unità", 5280, 2280},
    {" cambio alle decine", 5280, 3120},
    {" con un cambio", 5280, 3960},
    {"con due cambi", 5280, 4800},
    {" con e senza cambi", 6960, 1440},
    {" aggiungi solo unità", 6960, 2280},
    {" aggiungi solo decine", 6960, 3120},
    {"aggiungi solo centinaia", 6960, 3960},
    {" senza cambio", 8640, 1440},
    {" con un cambio", 8640, 2280},
    {"con due cambi", 8640, 3120},
    {"con tre cambi", 8640, 3960},
    {" con e senza cambi", 8640, 4800},
    {" aggiungi solo unità", 10320, 1440},
    {" aggiungi solo decine", 10320, 2280},
    {"aggiungi solo centinaia", 10320, 3120},
    {"aggiungi solo migliaia", 10320, 3960},
};
constexpr Voce kAddendo[] = {
    {"componi il 10", 240, 2280},
    {"trova un addendo", 240, 3120},
    {"10 + ... = 18", 1920, 3120},
    {"completa il 20", 1920, 4800},
};
constexpr Voce kAbaco[] = {
    {"senza cambio", 240, 1440},
    {"con il cambio", 240, 2280},
    {"con e senza cambio", 240, 3120},
    {"aggiungi solo unità", 240, 3960},
    {"aggiungi solo decine", 240, 4800},
    {" senza cambio", 2400, 1440},
    {" cambio alle unità", 2400, 2280},
    {" cambio alle decine", 2400, 3120},
    {" con un cambio", 2400, 3960},
    {"con due cambi", 2400, 4800},
    {" con e senza cambi", 4560, 1440},
    {" aggiungi solo unità", 4560, 2280},
    {" aggiungi solo decine", 4560, 3120},
    {"aggiungi solo centinaia", 4560, 3960},
    {" senza cambio", 6720, 1440},
    {" con un cambio", 6720, 2280},
    {"con due cambi", 6720, 3120},
    {"con tre cambi", 6720, 3960},
    {" con e senza cambi", 6720, 4800},
    {" aggiungi solo unità", 8760, 1440},
    {" aggiungi solo decine", 8760, 2280},
    {"aggiungi solo centinaia", 8760, 3120},
    {"aggiungi solo migliaia", 8760, 3960},
};

struct VoceBlocchi {
  const char* pulsante;
  const char* didascalia;
  int sinistra;
  int alto;
  qint16 tipo;
  const char* forma;
};
constexpr VoceBlocchi kBlocchi[] = {
    {"Command2", " senza cambio", 120, 1560, 1, "FormLU"},
    {"Command3", " con il cambio", 120, 2400, 2, "FormLU"},
    {"Command4", " con e senza cambio", 120, 3240, 3, "FormLU"},
    {"Command14", " aggiungi solo unità", 120, 4080, 4, "FormLU"},
    {"Command5", "aggiungi solo decine", 120, 4920, 5, "FormLU"},
    {"Command9", " senza cambio", 3240, 1560, 1, "FormHLU"},
    {"Command11", " cambio alle unità", 3240, 2400, 2, "FormHLU"},
    {"Command12", " cambio alle decine", 3240, 3240, 3, "FormHLU"},
    {"Command8", " con un cambio", 3240, 4080, 4, "FormHLU"},
    {"Command10", "con due cambi", 3240, 4920, 5, "FormHLU"},
    {"Command7", " con e senza cambi", 6360, 1560, 6, "FormHLU"},
    {"Command15", " aggiungi solo unità", 6360, 2400, 7, "FormHLU"},
    {"Command6", " aggiungi solo decine", 6360, 3240, 8, "FormHLU"},
    {"Command13", "aggiungi solo centinaia", 6360, 4080, 9, "FormHLU"},
};

bool sta(const platform::Control& controllo, int sinistra, int alto, int larghezza, int altezza) {
  const platform::TwipsRect posto{double(sinistra), double(alto), double(larghezza),
                                  double(altezza)};
  return controllo.designPlace() == posto;
}

}  // namespace

// The five family menus: each button pressed, with what it writes and where it leads.
class MenuDiFamigliaTest : public QObject {
  Q_OBJECT

  // A button of one of the arrays, with what stands on it and the form that it leads to.
  static void provaVoceDeiNumeri(platform::ControlArray<platform::Button> FormMenuNumeri::*bottoni,
                                 int indice, const Voce& voce, const char* forma) {
    Banco banco(kFinestra, prova::SenzaEsercizi);
    FormMenuNumeri& menu = banco.apri<FormMenuNumeri>(forme::kFormMenuNumeri);
    const platform::Button& bottone = (menu.*bottoni)[indice];
    QCOMPARE(bottone.caption(), QString::fromUtf8(voce.didascalia));
    QVERIFY(sta(bottone, voce.sinistra, voce.alto, 1500, 675));
    banco.clicca(bottone);
    QCOMPARE(banco.ambiente->stato.TipoEsercizio, qint16(indice));
    QCOMPARE(banco.nomeForma(), QString::fromLatin1(forma));
  }

 private Q_SLOTS:
  void everySumOfTheNumbersSetsItsLevel_data() {
    QTest::addColumn<int>("indice");
    for (int i = 1; i <= 27; ++i) QTest::addRow("Command1(%d)", i) << i;
  }
  void everySumOfTheNumbersSetsItsLevel() {
    QFETCH(int, indice);
    provaVoceDeiNumeri(&FormMenuNumeri::Command1, indice, kTotale[indice - 1], "FormNumeriTotale");
  }

  void everyAddendOfTheNumbersSetsItsLevel_data() {
    QTest::addColumn<int>("indice");
    for (int i = 1; i <= 4; ++i) QTest::addRow("Command2(%d)", i) << i;
  }
  void everyAddendOfTheNumbersSetsItsLevel() {
    QFETCH(int, indice);
    provaVoceDeiNumeri(&FormMenuNumeri::Command2, indice, kAddendo[indice - 1],
                       "FormNumeriAddendo");
  }

  void theHiddenElementOfTheAddendsShowsNothing() {
    Banco banco(kFinestra, prova::SenzaEsercizi);
    FormMenuNumeri& menu = banco.apri<FormMenuNumeri>(forme::kFormMenuNumeri);
    QVERIFY(!menu.Command2[0].isVisible());
    QVERIFY(menu.Command1[0].isVisible());
  }

  void theHiddenElementOfTheAddendsWouldGoBackToo() {
    Banco banco(kFinestra, prova::SenzaEsercizi);
    FormMenuNumeri& menu = banco.apri<FormMenuNumeri>(forme::kFormMenuNumeri);
    menu.Command2[0].setVisible(true);
    banco.clicca(menu.Command2[0]);
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenu"));
  }

  void everyLevelOfTheAbacusSetsItsLevel_data() {
    QTest::addColumn<int>("indice");
    for (int i = 1; i <= 23; ++i) QTest::addRow("Command1(%d)", i) << i;
  }
  void everyLevelOfTheAbacusSetsItsLevel() {
    QFETCH(int, indice);
    Banco banco(kFinestra, prova::SenzaEsercizi);
    FormMenuAbaco& menu = banco.apri<FormMenuAbaco>(forme::kFormMenuAbaco);
    const Voce& voce = kAbaco[indice - 1];
    QCOMPARE(menu.Command1[indice].caption(), QString::fromUtf8(voce.didascalia));
    QVERIFY(sta(menu.Command1[indice], voce.sinistra, voce.alto, 1860, 675));
    banco.clicca(menu.Command1[indice]);
    QCOMPARE(banco.ambiente->stato.TipoEsercizio, qint16(indice));
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormAbaco"));
  }

  void everyLevelOfTheBlocksSetsItsLevel_data() {
    QTest::addColumn<int>("riga");
    for (int i = 0; i < 14; ++i) QTest::addRow("%d", i + 1) << i;
  }
  void everyLevelOfTheBlocksSetsItsLevel() {
    QFETCH(int, riga);
    Banco banco(kFinestra, prova::SenzaEsercizi);
    banco.ambiente->stato.TitoloEsercizio = QStringLiteral("come prima");
    FormMenuPLU& menu = banco.apri<FormMenuPLU>(forme::kFormMenuPLU);
    const VoceBlocchi& voce = kBlocchi[riga];
    const platform::Button& pulsante = prova::pulsante(menu, voce.pulsante);
    QCOMPARE(pulsante.caption(), QString::fromUtf8(voce.didascalia));
    QVERIFY(sta(pulsante, voce.sinistra, voce.alto, 2580, 675));
    banco.clicca(pulsante);
    QCOMPARE(banco.ambiente->stato.TipoEsercizio, voce.tipo);
    QCOMPARE(banco.nomeForma(), QString::fromUtf8(voce.forma));
    // These exercises compose their headings themselves.
    QCOMPARE(banco.ambiente->stato.TitoloEsercizio, QStringLiteral("come prima"));
  }

  void bothRangesOfTheBarsSetTheirLimit() {
    for (const int limite : {10, 20}) {
      Banco banco(kFinestra, prova::SenzaEsercizi);
      FormMenuScelte& menu = banco.apri<FormMenuScelte>(forme::kFormMenuBarre);
      const platform::Button& fino10 = prova::pulsante(menu, "Command2");
      const platform::Button& fino20 = prova::pulsante(menu, "Command4");
      QCOMPARE(fino10.caption(), QStringLiteral("Fino al 10"));
      QCOMPARE(fino20.caption(), QStringLiteral("Fino al 20"));
      banco.clicca(limite == 10 ? fino10 : fino20);
      QCOMPARE(banco.ambiente->stato.LimiteEsercizio, limite);
      QCOMPARE(banco.nomeForma(),
               limite == 10 ? QStringLiteral("FormBarre10") : QStringLiteral("FormBarre20"));
    }
  }

  void everyKindOfTheTableSetsItsIndexAsTheLevel_data() {
    QTest::addColumn<int>("indice");
    QTest::addColumn<QString>("didascalia");
    QTest::addColumn<int>("sinistra");
    QTest::addColumn<int>("alto");
    QTest::newRow("0") << 0 << QStringLiteral("Aggiungi un'unità") << 240 << 1440;
    QTest::newRow("1") << 1 << QStringLiteral("Aggiungi una decina") << 240 << 2640;
    QTest::newRow("5") << 5 << QStringLiteral("Aggiungi più unità") << 240 << 3840;
    QTest::newRow("6") << 6 << QStringLiteral("Aggiungi più decine") << 3600 << 1440;
    QTest::newRow("10") << 10 << QStringLiteral("Somme") << 3600 << 2640;
  }
  void everyKindOfTheTableSetsItsIndexAsTheLevel() {
    QFETCH(int, indice);
    QFETCH(QString, didascalia);
    QFETCH(int, sinistra);
    QFETCH(int, alto);
    Banco banco(kFinestra, prova::SenzaEsercizi);
    banco.ambiente->stato.TipoEsercizio = 77;
    FormMenuScelte& menu = banco.apri<FormMenuScelte>(forme::kFormMenuTabella);
    QCOMPARE(std::ranges::count_if(menu.controls(),
                                   [](const platform::Control* controllo) {
                                     return controllo->name().startsWith(QLatin1String("Command2"));
                                   }),
             5);
    const platform::Button& genere =
        prova::pulsante(menu, QStringLiteral("Command2(%1)").arg(indice));
    QCOMPARE(genere.caption(), didascalia);
    QVERIFY(sta(genere, sinistra, alto, 2580, 915));
    banco.clicca(genere);
    QCOMPARE(banco.ambiente->stato.TipoEsercizio, qint16(indice));
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormTabella"));
  }

  void theModeOfInputChoosesTheFormAndTheMenuIsUnloadedAfterwards() {
    Banco banco(kFinestra, prova::SenzaEsercizi);
    banco.ambiente->stato.ModalitaInput = 2;
    banco.clicca(prova::pulsante(banco.apri<FormMenuPLU>(forme::kFormMenuPLU), "Command2"));
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormLUScansione"));
    for (const auto& forma : banco.ambiente->fondo.forms().all()) {
      QVERIFY(forma->name() != QStringLiteral("FormMenuPLU"));
    }
  }

  void everyMenuClearsTheCountersAndGoesBackToTheMainMenu_data() {
    prova::righeDiParole({"nome", "indietro", "intestazione"},
                         {{"FormMenuNumeri", "Command1(0)", "Numeri"},
                          {"FormMenuAbaco", "Command1(0)", "Abaco"},
                          {"FormMenuPLU", "Command1", "Piatti, lunghi e unità"},
                          {"FormMenuBarre", "Command1", "Uso delle barre"},
                          {"FormMenuTabella", "Command1", "Uso della tabella"}});
  }
  void everyMenuClearsTheCountersAndGoesBackToTheMainMenu() {
    QFETCH(QString, nome);
    QFETCH(QString, indietro);
    QFETCH(QString, intestazione);
    Banco banco(kFinestra, prova::SenzaEsercizi);
    banco.ambiente->stato.ContaEsatti = 5;
    banco.ambiente->stato.ContaErrati = 6;
    const std::string utf8 = nome.toStdString();
    MenuDiFamiglia& menu = banco.apri<MenuDiFamiglia>(utf8);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QCOMPARE(menu.Label1.caption(), intestazione);
    QVERIFY(menu.page()->canvas()->hasGradient());
    const platform::Button& pulsante = prova::pulsante(menu, indietro);
    QCOMPARE(pulsante.caption(), QStringLiteral("Torna al menù principale"));
    banco.clicca(pulsante);
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenu"));
  }

  void leavingAnExerciseAndEnteringItAgainStartsWithBothCountersAtNought() {
    Banco banco(kFinestra);
    banco.clicca(banco.apri<FormMenuNumeri>(forme::kFormMenuNumeri).Command1[1]);
    banco.scrivi(QStringLiteral("99"));
    banco.batti(Qt::Key_Return);
    QCOMPARE(banco.forma<FormaNumeriTastiera>().EtichettaErrati.caption(),
             QStringLiteral("Errati  1"));
    banco.forma<FormaNumeriTastiera>().mnuEsci.click();
    banco.clicca(banco.forma<FormMenuNumeri>().Command1[1]);
    QCOMPARE(banco.forma<FormaNumeriTastiera>().EtichettaErrati.caption(),
             QStringLiteral("Errati  0"));
    QCOMPARE(banco.forma<FormaNumeriTastiera>().EtichettaEsatti.caption(),
             QStringLiteral("Esatti  0"));
  }

  void aDoubleClickOpensOneLevelOnce() {
    Banco banco(kFinestra, prova::SenzaEsercizi);
    FormMenuNumeri& menu = banco.apri<FormMenuNumeri>(forme::kFormMenuNumeri);
    banco.doppioClic(menu.Command1[5]);
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormNumeriTotale"));
    QCOMPARE(banco.ambiente->stato.TitoloEsercizio,
             QStringLiteral("Solo numeri. Entro 99: senza cambio"));
  }
};

const prova::Iscrizione<MenuDiFamigliaTest, QApplication> kIscritta;

}  // namespace menu_di_famiglia_test

#include "menu_di_famiglia_test.moc"
