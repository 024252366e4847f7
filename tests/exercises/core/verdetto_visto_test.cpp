#include <QApplication>
#include <QImage>
#include <QWidget>

#include "app/shared/nomi_forme.h"
#include "app/tabella_forme.h"
#include "exercises/bars/forma_barre_pulsanti.h"
#include "exercises/numbers/forma_numeri_tastiera.h"
#include "exercises/table/form_tabella.h"
#include "support/banco.h"
#include "support/iscrizione.h"
#include "support/risposta_giusta.h"

namespace verdetto_visto_test {

using prova::Banco;
using somme::FormaBarrePulsanti;
using somme::FormaEsercizio;
using somme::FormaNumeriTastiera;
using somme::FormTabella;

namespace {

constexpr QSize kSchermo(1366, 768);
// Pixels of the whole form that a second wrong answer changed when nothing moved but a digit, and
// how many times as many are wanted.
constexpr int kUnaCifra = 115;
constexpr int kVolte = 20;

QImage ritratto(Banco& banco) {
  return banco.ambiente->fondo.window().grab().toImage();
}

int diversi(const QImage& a, const QImage& b) {
  int quanti = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) quanti += a.pixel(x, y) == b.pixel(x, y) ? 0 : 1;
  }
  return quanti;
}

FormaEsercizio& esercizio(Banco& banco) {
  return banco.forma<FormaEsercizio>();
}

// How a form is opened, and how it is answered wrongly for the first and the second time.
struct Sbagli {
  const char* nome;
  void (*apri)(Banco& banco);
  void (*sbaglia)(Banco& banco, int volta);
};

void scriviNovantanove(Banco& banco, int volta) {
  if (volta == 0) banco.scrivi(QStringLiteral("99"));
  if (volta > 0) banco.batti(Qt::Key_Space);  // the closed box opens again, with what it held
  banco.batti(Qt::Key_Return);
}

constexpr Sbagli kForme[] = {
    {"numbers",
     [](Banco& banco) {
       banco.ambiente->stato.TipoEsercizio = 1;
       banco.sorte.scrivi({{6, 10}, {3, 7}});
       banco.mostra(somme::forme::kFormNumeriTotale);
     },
     scriviNovantanove},
    {"bars",
     [](Banco& banco) {
       banco.ambiente->stato.LimiteEsercizio = 10;
       banco.sorte.scrivi({{6, 10}, {3, 7}});
       banco.mostra(somme::forme::kFormBarre10);
     },
     [](Banco& banco, int volta) {
       banco.clicca(banco.forma<FormaBarrePulsanti>().PulsanteNumero[1 + volta]);
     }},
    {"table",
     [](Banco& banco) {
       banco.sorte.scrivi({{56, 98}});
       banco.mostra(somme::forme::kFormTabella);
     },
     [](Banco& banco, int volta) { banco.clicca(banco.forma<FormTabella>().Numero[80 + volta]); }},
};

const Sbagli& riga() {
  QFETCH(int, quale);
  return kForme[quale];
}

}  // namespace

// Whether an answer was right is seen each time, also when it is judged as the one before.
class VerdettoVistoTest : public QObject {
  Q_OBJECT

  static void perForma() {
    QTest::addColumn<int>("quale");
    for (int i = 0; i < int(std::size(kForme)); ++i) QTest::newRow(kForme[i].nome) << i;
  }
  // After a wrong answer, at rest.
  static std::unique_ptr<Banco> dopoUnoSbaglio(const Sbagli& forma, bool conMoto) {
    auto banco = std::make_unique<Banco>(kSchermo);
    banco->moto.voluto = conMoto;
    forma.apri(*banco);
    forma.sbaglia(*banco, 0);
    banco->tempo.advance(1);
    return banco;
  }

 private Q_SLOTS:
  void aSecondWrongAnswerIsSeenAsWellAsTheFirst_data() { perForma(); }
  void aSecondWrongAnswerIsSeenAsWellAsTheFirst() {
    const auto banco = dopoUnoSbaglio(riga(), true);
    riga().sbaglia(*banco, 1);
    const QImage subito = ritratto(*banco);
    banco->tempo.advance(0.1);
    const QImage prima = ritratto(*banco);
    banco->tempo.advance(0.1);
    const QImage poi = ritratto(*banco);
    banco->tempo.advance(1);
    const QImage allaFine = ritratto(*banco);
    QCOMPARE(banco->ambiente->stato.ContaErrati, qint16(2));
    const int quanti[] = {diversi(subito, allaFine), diversi(prima, allaFine),
                          diversi(poi, allaFine)};
    qInfo("of %d pixels move: at once %d, after 100 ms %d, after 200 ms %d",
          int(allaFine.width() * allaFine.height()), quanti[0], quanti[1], quanti[2]);
    for (const int uno : quanti) QVERIFY(uno >= kVolte * kUnaCifra);
  }

  // The answer's picture, the count's light: nothing of it is left.
  void atItsEndTheFormIsAsWithoutIt_data() { perForma(); }
  void atItsEndTheFormIsAsWithoutIt() {
    const auto ritratti = [](bool conMoto) {
      const auto banco = dopoUnoSbaglio(riga(), conMoto);
      const QImage prima = ritratto(*banco);
      riga().sbaglia(*banco, 1);
      banco->tempo.advance(0.52);
      return std::array{prima, ritratto(*banco)};
    };
    QCOMPARE(ritratti(true), ritratti(false));
  }

  void halfASecondAfterAVerdictNoTimerRuns_data() { perForma(); }
  void halfASecondAfterAVerdictNoTimerRuns() {
    const auto banco = dopoUnoSbaglio(riga(), true);
    QVERIFY(!banco->tempo.anyTicker());
    riga().sbaglia(*banco, 1);
    QVERIFY(banco->tempo.anyTicker());
    banco->tempo.advance(0.52);
    QVERIFY(!banco->tempo.anyTicker());
  }

  void whereTheDesktopWantsNoAnimationsNothingMoves_data() { perForma(); }
  void whereTheDesktopWantsNoAnimationsNothingMoves() {
    const auto banco = dopoUnoSbaglio(riga(), false);
    riga().sbaglia(*banco, 1);
    QVERIFY(!banco->tempo.anyTicker());
    const QImage subito = ritratto(*banco);
    banco->tempo.advance(1);
    QCOMPARE(ritratto(*banco), subito);
  }

  void aRightAnswerMovesTheTickAndLightsTheCountOfRightOnes_data() {
    QTest::addColumn<QByteArray>("nome");
    for (const somme::SchedaForma& scheda : somme::LeForme()) {
      if (scheda.genere != somme::Genere::Esercizio) continue;
      const QByteArray nome(scheda.nome.data(), qsizetype(scheda.nome.size()));
      QTest::newRow(nome.constData()) << nome;
    }
  }
  void aRightAnswerMovesTheTickAndLightsTheCountOfRightOnes() {
    QFETCH(QByteArray, nome);
    Banco banco;
    banco.moto.voluto = true;
    const auto ultimo = prova::FinoAllUltimoGesto(banco, nome.toStdString());
    FormaEsercizio& forma = esercizio(banco);
    QVERIFY(forma.ImgSi.isVisible());
    const auto ritratti = [&forma] {
      return std::array{forma.ImgSi.widget()->grab().toImage(),
                        forma.EtichettaEsatti.widget()->grab().toImage(),
                        forma.EtichettaErrati.widget()->grab().toImage()};
    };
    std::array<QImage, 3> durante;
    banco.suono.suonati.clear();
    bool giudicato = false;
    // Where boards are joined first the verdict comes within the wait.
    const auto guarda = [&] {
      if (giudicato || banco.suono.suonati.isEmpty()) return;
      giudicato = true;
      durante = ritratti();
    };
    for (int i = 1; i < 400; ++i) banco.tempo.after(i * 0.05, guarda);
    ultimo();
    guarda();
    banco.tempo.advance(20);
    guarda();
    QVERIFY(giudicato);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    const std::array<QImage, 3> dopo = ritratti();
    QVERIFY(durante[0] != dopo[0]);
    QVERIFY(durante[1] != dopo[1]);
    QCOMPARE(durante[2], dopo[2]);
  }

  void aKeyPressedInTheMiddleOfItActsAtOnce() {
    Banco banco;
    banco.moto.voluto = true;
    kForme[0].apri(banco);
    banco.scrivi(QStringLiteral("7"));
    banco.batti(Qt::Key_Return);
    banco.tempo.advance(0.05);
    auto& forma = banco.forma<FormaNumeriTastiera>();
    QVERIFY(forma.PulsanteAvanti.hasFocus());
    const double ora = banco.tempo.secondsSinceMidnight();
    banco.sorte.scrivi({{4, 10}, {2, 5}});
    banco.batti(Qt::Key_Return);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 2 +  3 = "));
    QVERIFY(forma.TestoInput.TestoInput.hasFocus());
    QCOMPARE(banco.tempo.secondsSinceMidnight(), ora);
    QVERIFY(banco.tempo.anyTicker());
  }

  void itEndsWithItsForm_data() { perForma(); }
  void itEndsWithItsForm() {
    const auto banco = dopoUnoSbaglio(riga(), true);
    riga().sbaglia(*banco, 1);
    banco->tempo.advance(0.1);
    esercizio(*banco).mnuEsci.click();
    QVERIFY(dynamic_cast<FormaEsercizio*>(banco->ambiente->fondo.forms().current()) == nullptr);
    QVERIFY(!banco->tempo.anyTicker());
  }
};

const prova::Iscrizione<VerdettoVistoTest, QApplication> kIscritta;

}  // namespace verdetto_visto_test

#include "verdetto_visto_test.moc"
