#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <random>

#include "app/form_menu_scelte.h"
#include "app/shared/nomi_forme.h"
#include "exercises/table/form_tabella.h"
#include "support/banco.h"
#include "support/iscrizione.h"
#include "support/pulsante.h"

namespace tasti_tabella_test {

using prova::Banco;
using somme::FormTabella;

// The addition table under keys alone.
class TastiTabellaTest : public QObject {
  Q_OBJECT

  // The form with the case `a` + 1, opened from its menu by keys.
  static FormTabella& apri(Banco& banco, int a) {
    auto& menu = banco.apri<somme::FormMenuScelte>(somme::forme::kFormMenuTabella);
    prova::pulsante(menu, "Command2(0)").setFocus();
    banco.sorte.scrivi({{a, 98}});
    banco.batti(Qt::Key_Return);
    return banco.forma<FormTabella>();
  }
  // The cell with the focus; -1 where no cell has it.
  static int dove(FormTabella& forma) {
    for (int i = 0; i < forma.Numero.count(); ++i) {
      if (forma.Numero[i].hasFocus()) return i;
    }
    return -1;
  }
  // Walks from the cell with the focus to another one. How many keys it took.
  static int vai(Banco& banco, FormTabella& forma, int cella) {
    int tasti = 0;
    const auto passi = [&](int quanti, int avanti, int indietro) {
      for (int i = 0; i < std::abs(quanti); ++i, ++tasti) {
        banco.batti(quanti > 0 ? avanti : indietro);
      }
    };
    const int da = dove(forma);
    passi(cella / 10 - da / 10, Qt::Key_Down, Qt::Key_Up);
    passi(cella % 10 - da % 10, Qt::Key_Right, Qt::Key_Left);
    return tasti;
  }

 private Q_SLOTS:
  void theFirstCellHasTheFocusWhenTheTableOpens() {
    Banco banco;
    FormTabella& forma = apri(banco, 56);
    QCOMPARE(dove(forma), 0);
  }

  void arrowKeysWalkRowsAndColumnsAndStopAtTheEdges() {
    Banco banco;
    FormTabella& forma = apri(banco, 56);
    const std::vector<std::pair<int, int>> passi{
        {Qt::Key_Left, 0},   {Qt::Key_Up, 0},    {Qt::Key_Right, 1}, {Qt::Key_Down, 11},
        {Qt::Key_Down, 21},  {Qt::Key_Left, 20}, {Qt::Key_Left, 20}, {Qt::Key_End, 29},
        {Qt::Key_Right, 29}, {Qt::Key_Up, 19},   {Qt::Key_Home, 10}, {Qt::Key_Home, 10}};
    for (const auto& [tasto, cella] : passi) {
      banco.batti(tasto);
      QCOMPARE(dove(forma), cella);
    }
    forma.Numero[99].setFocus();
    banco.batti(Qt::Key_Down);
    banco.batti(Qt::Key_Right);
    QCOMPARE(dove(forma), 99);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
  }

  void theyGoOverCellsThatAreSpent() {
    Banco banco;
    FormTabella& forma = apri(banco, 56);
    for (const int spenta : {1, 2, 10, 20, 19, 0}) banco.clicca(forma.Numero[spenta]);
    forma.Numero[30].setFocus();
    banco.batti(Qt::Key_Up);
    QCOMPARE(dove(forma), 30);  // nothing is left above
    forma.Numero[3].setFocus();
    banco.batti(Qt::Key_Left);
    QCOMPARE(dove(forma), 3);
    banco.batti(Qt::Key_Home);
    QCOMPARE(dove(forma), 3);
    forma.Numero[18].setFocus();
    banco.batti(Qt::Key_Right);
    QCOMPARE(dove(forma), 18);
    banco.batti(Qt::Key_Home);
    QCOMPARE(dove(forma), 11);
    banco.clicca(forma.Numero[13]);
    forma.Numero[12].setFocus();
    banco.batti(Qt::Key_Right);
    QCOMPARE(dove(forma), 14);
    forma.Numero[23].setFocus();
    banco.batti(Qt::Key_Up);
    QCOMPARE(dove(forma), 3);
  }

  void withAModifierTheyWalkNowhere() {
    Banco banco;
    FormTabella& forma = apri(banco, 56);
    for (const auto con : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
      banco.batti(Qt::Key_Right, con);
      QCOMPARE(dove(forma), 0);
    }
    banco.batti(Qt::Key_Right, Qt::KeypadModifier);
    QCOMPARE(dove(forma), 1);
  }

  void aHeldArrowIsOneStep() {
    Banco banco;
    FormTabella& forma = apri(banco, 56);
    banco.premi(Qt::Key_Down);
    for (int i = 0; i < 10; ++i) banco.ripeti(Qt::Key_Down);
    banco.lascia(Qt::Key_Down);
    QCOMPARE(dove(forma), 10);
  }

  void tabGoesFromCellToCellAsBefore() {
    Banco banco;
    FormTabella& forma = apri(banco, 56);
    banco.batti(Qt::Key_Down);
    banco.batti(Qt::Key_Tab);
    QCOMPARE(dove(forma), 11);
    banco.batti(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(dove(forma), 10);
  }

  void aNewCaseBeginsWhereThePupilWas() {
    Banco banco;
    FormTabella& forma = apri(banco, 56);
    vai(banco, forma, 57);
    banco.batti(Qt::Key_Return);
    QVERIFY(forma.PulsanteAvanti.hasFocus());
    banco.sorte.scrivi({{30, 98}});
    banco.batti(Qt::Key_Return);
    QCOMPARE(dove(forma), 57);
    // A cell that the mouse was pressed on is no place of keys.
    banco.clicca(forma.Numero[31]);
    banco.sorte.scrivi({{30, 98}});
    banco.batti(Qt::Key_Return);
    QCOMPARE(dove(forma), 0);
  }

  void aWrongCellPassesTheFocusToTheNext() {
    Banco banco;
    FormTabella& forma = apri(banco, 56);
    vai(banco, forma, 55);
    banco.batti(Qt::Key_Space);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QCOMPARE(dove(forma), 56);
  }

  void aRightAnswerMovesTheFocusOnce() {
    Banco banco;
    FormTabella& forma = apri(banco, 56);
    vai(banco, forma, 57);
    QList<QWidget*> visitati;
    connect(qApp, &QApplication::focusChanged, this,
            [&visitati](QWidget* /*prima*/, QWidget* ora) { visitati.append(ora); });
    banco.batti(Qt::Key_Return);
    disconnect(qApp, &QApplication::focusChanged, this, nullptr);
    QCOMPARE(visitati, QList<QWidget*>{forma.PulsanteAvanti.widget()});
  }

  void whoeverAsksACellForItsStateGetsItAsItIs() {
    Banco banco;
    FormTabella& forma = apri(banco, 56);
    const auto spenta = [&forma](int cella) {
      return QAccessible::queryAccessibleInterface(forma.Numero[cella].widget())->state().disabled;
    };
    vai(banco, forma, 57);
    banco.batti(Qt::Key_Return);
    QVERIFY(spenta(3));
    QVERIFY(spenta(57));
    banco.sorte.scrivi({{30, 98}});
    banco.batti(Qt::Key_Return);
    QVERIFY(!spenta(3));
    QVERIFY(!spenta(57));
  }

  // What is spoken gives no more away than what is seen.
  void aCellSaysItsNumberOrWhatIsSeenOfItsPlace() {
    Banco banco;
    FormTabella& forma = apri(banco, 56);
    const auto detto = [&forma](int cella) {
      return QAccessible::queryAccessibleInterface(forma.Numero[cella].widget())
          ->text(QAccessible::Name);
    };
    const auto scegli = [](const platform::MenuItem& voce) {
      voce.action()->trigger();
      QCoreApplication::processEvents();
    };
    QCOMPARE(detto(7), QStringLiteral("7"));
    QCOMPARE(detto(90), QStringLiteral("90"));
    QCOMPARE(detto(97), QStringLiteral("9 decine, 7 unità"));
    QCOMPARE(detto(11), QStringLiteral("1 decina, 1 unità"));
    scegli(forma.mnuFacile);
    QCOMPARE(detto(97), QStringLiteral("97"));
    scegli(forma.mnudifficile);
    QCOMPARE(detto(97), QStringLiteral("10, 8"));
    scegli(forma.mnuMedia);
    QCOMPARE(detto(97), QStringLiteral("9 decine, 7 unità"));
  }

  void anAnswerTakesTwelveKeysAtMostOnAverage() {
    constexpr int kCasi = 100;
    Banco banco;
    std::mt19937 generatore(20261122);
    std::uniform_int_distribution<int> celle(0, 97);
    int cella = celle(generatore);
    FormTabella& forma = apri(banco, cella);
    int tasti = 0;
    for (int i = 0; i < kCasi; ++i) {
      tasti += vai(banco, forma, cella + 1);
      QCOMPARE(dove(forma), cella + 1);
      cella = celle(generatore);
      banco.sorte.scrivi({{cella, 98}});
      banco.batti(Qt::Key_Return);
      banco.batti(Qt::Key_Return);
      tasti += 2;
    }
    QCOMPARE(int(banco.ambiente->stato.ContaEsatti), kCasi);
    QCOMPARE(int(banco.ambiente->stato.ContaErrati), 0);
    qInfo("%.2f keys from a question to the next", double(tasti) / kCasi);
    QVERIFY(tasti <= 12 * kCasi);
  }
};

const prova::Iscrizione<TastiTabellaTest, QApplication> kIscritta;

}  // namespace tasti_tabella_test

#include "tasti_tabella_test.moc"
