#include "printing/foglio_tastiera.h"

#include "fogli_di_prova.h"
#include "printing/form_stampa_abaco.h"
#include "printing/form_stampa_foglio1.h"
#include "printing/form_stampa_foglio4.h"
#include "printing/form_stampa_foglio_numeri.h"
#include "printing/form_stampa_foglio_numeri2.h"
#include "printing/form_stampa_lu.h"
#include "printing/form_stampa_plu.h"

using prova::Cella;
using prova::cellaDi;
using prova::DialogoDiProva;
using prova::fogli;
using prova::Foglio;
using prova::mostra;
using prova::postoDi;
using prova::puntiDi;
using somme::FoglioTastiera;
using somme::frmAvviaStampa;
using somme::Griglia;
using somme::GrigliaDi;

namespace {

// Lefts, tops and size of a sheet's frames, in units of the grid.
struct Quadro {
  std::vector<int> sinistre;
  std::vector<int> alti;
  int larghezza;
  int altezza;
};

Quadro quadroDi(std::string_view nome) {
  const std::vector<int> strette{1, 7, 13, 19};
  const std::vector<int> larghe{1, 9, 17};
  if (nome == somme::forme::kFormStampaAbaco) return {strette, {2, 9, 16}, 4, 5};
  if (nome == somme::forme::kFormStampaLU || nome == somme::forme::kFormStampaPLU) {
    return {larghe, {1, 8, 15}, 6, 6};
  }
  return {strette, {2, 7, 12, 17}, 4, 4};
}

}  // namespace

// The keyboard sheets, as a teacher asks for one.
class FogliTest : public QObject {
  Q_OBJECT

  static void ogniFoglio() {
    QTest::addColumn<int>("quale");
    for (int i = 0; i < int(fogli().size()); ++i) {
      QTest::newRow(std::string(fogli()[size_t(i)].nome).c_str()) << i;
    }
  }
  static void ogniFoglioInOgniFinestra() {
    QTest::addColumn<int>("quale");
    QTest::addColumn<QSize>("finestra");
    for (int i = 0; i < int(fogli().size()); ++i) {
      for (const QSize lato : {QSize(800, 600), QSize(1366, 768), QSize(1283, 1021)}) {
        QTest::addRow("%s %dx%d", std::string(fogli()[size_t(i)].nome).c_str(), lato.width(),
                      lato.height())
            << i << lato;
      }
    }
  }

 private Q_SLOTS:
  void theGridIsTheInnerAreaInWholeTwentyFourthsAndTwentyThirds() {
    const Griglia griglia = GrigliaDi(14400, 11500);
    QCOMPARE(griglia.X, 600);
    QCOMPARE(griglia.Y, 500);
    QCOMPARE(GrigliaDi(14423, 11522).X, 600);
    QCOMPARE(GrigliaDi(14423, 11522).Y, 500);
    QCOMPARE(somme::posti::kCifre.Posto(1, griglia).left, 4200.0);
    for (const int i : {12, 13, 14, 15}) {
      QCOMPARE(somme::posti::kCifre.Posto(i, griglia).top, 8500.0);
    }
  }

  void theFramesStandWhereTheGridSays_data() { ogniFoglio(); }
  void theFramesStandWhereTheGridSays() {
    QFETCH(int, quale);
    const Foglio& foglio = fogli()[size_t(quale)];
    DialogoDiProva prova({1366, 768});
    bool visto = false;
    mostra(prova, foglio.nome, [&](FoglioTastiera& f, frmAvviaStampa&) {
      visto = true;
      const Griglia griglia = GrigliaDi(f.width(), f.height());
      QCOMPARE(f.Shape1.count(), foglio.mappa.Posti());
      for (int i = 0; i < f.Shape1.count(); ++i) {
        const QRectF posto = postoDi(f.Shape1[i]);
        const Quadro q = quadroDi(foglio.nome);
        const int colonna = i % int(q.sinistre.size());
        const int riga = i / int(q.sinistre.size());
        const QRectF atteso(q.sinistre[size_t(colonna)] * griglia.X,
                            q.alti[size_t(riga)] * griglia.Y, q.larghezza * griglia.X,
                            q.altezza * griglia.Y);
        QVERIFY((posto.topLeft() - atteso.topLeft()).manhattanLength() < 0.01);
        QVERIFY((posto.bottomRight() - atteso.bottomRight()).manhattanLength() < 0.01);
        const bool nascosto =
            std::find(foglio.nascosti.begin(), foglio.nascosti.end(), i) != foglio.nascosti.end();
        QCOMPARE(f.Shape1[i].isVisible(), !nascosto);
      }
    });
    QVERIFY(visto);
  }

  void everyVisibleFrameFallsOnItsKey_data() { ogniFoglioInOgniFinestra(); }
  void everyVisibleFrameFallsOnItsKey() {
    QFETCH(int, quale);
    QFETCH(QSize, finestra);
    const Foglio& foglio = fogli()[size_t(quale)];
    DialogoDiProva prova(finestra);
    int provati = 0;
    mostra(prova, foglio.nome, [&](FoglioTastiera& f, frmAvviaStampa&) {
      for (int i = 0; i < f.Shape1.count(); ++i) {
        if (!f.Shape1[i].isVisible()) continue;
        ++provati;
        const QSizeF cella(f.width() / somme::kColonneGriglia, f.height() / somme::kRigheGriglia);
        for (const QPointF& punto : puntiDi(postoDi(f.Shape1[i]), cella)) {
          const Cella c = cellaDi(punto.x() / f.width(), punto.y() / f.height());
          QCOMPARE(foglio.mappa.Posto(c.colonna, c.riga), i + 1);
        }
      }
    });
    QCOMPARE(provati, foglio.mappa.Posti() - int(foglio.nascosti.size()));
  }

  void theDigitsStandInTheMiddleOfTheFirstTenFrames() {
    DialogoDiProva prova({1366, 768});
    for (const auto nome :
         {somme::forme::kFormStampaFoglioNumeri, somme::forme::kFormStampaFoglioNumeri2}) {
      bool visto = false;
      mostra<somme::FoglioCifre>(prova, nome, [&](somme::FoglioCifre& f, frmAvviaStampa&) {
        visto = true;
        QCOMPARE(f.Label1.count(), 10);
        for (int i = 0; i < 10; ++i) {
          QCOMPARE(f.Label1[i].caption(), QString::number(i));
          QCOMPARE(f.Label1[i].look().font.size, 36.0);
          const QPointF scarto = postoDi(f.Label1[i]).center() - postoDi(f.Shape1[i]).center();
          QVERIFY(std::abs(scarto.x()) < 0.5 && std::abs(scarto.y()) < 0.5);
        }
      });
      QVERIFY(visto);
    }
  }

  void thePicturesAndWordsHaveThePlacesOfTheirFrames() {
    DialogoDiProva prova({1366, 768});
    int visti = 0;
    const auto sta = [](const platform::Control& controllo, const FoglioTastiera& f, int tasto) {
      QVERIFY2(controllo.isVisible(), qPrintable(controllo.name()));
      const QRectF a = postoDi(controllo);
      const QRectF b = postoDi(f.Shape1[tasto]);
      QVERIFY2((a.topLeft() - b.topLeft()).manhattanLength() < 0.1 &&
                   std::abs(a.width() - b.width()) < 0.1 && std::abs(a.height() - b.height()) < 0.1,
               qPrintable(controllo.name()));
    };
    mostra<somme::FormStampaFoglioNumeri>(prova, somme::forme::kFormStampaFoglioNumeri,
                                          [&](auto& f, frmAvviaStampa&) {
                                            ++visti;
                                            sta(f.Image4, f, 12);
                                            sta(f.Image1, f, 13);
                                            sta(f.Image2, f, 14);
                                            sta(f.Image3, f, 15);
                                          });
    mostra<somme::FormStampaFoglioNumeri2>(prova, somme::forme::kFormStampaFoglioNumeri2,
                                           [&](auto& f, frmAvviaStampa&) {
                                             ++visti;
                                             sta(f.Image4, f, 12);
                                             sta(f.Image2, f, 14);
                                             sta(f.Image3, f, 15);
                                           });
    mostra<somme::FormStampaLU>(prova, somme::forme::kFormStampaLU, [&](auto& f, frmAvviaStampa&) {
      ++visti;
      QCOMPARE(f.Label3[1].caption(), QStringLiteral("da"));
      QCOMPARE(f.Label3[2].caption(), QStringLiteral("u"));
      for (const int i : {1, 2}) sta(f.Label3[i], f, i);
      sta(f.Image4, f, 5);
      sta(f.Image1, f, 6);
      sta(f.Image2, f, 7);
      sta(f.Image3, f, 8);
    });
    mostra<somme::FormStampaPLU>(prova, somme::forme::kFormStampaPLU,
                                 [&](auto& f, frmAvviaStampa&) {
                                   ++visti;
                                   QCOMPARE(f.Label3[0].caption(), QStringLiteral("h"));
                                   for (const int i : {0, 1, 2}) sta(f.Label3[i], f, i);
                                   sta(f.Image5, f, 4);
                                   sta(f.Image4, f, 5);
                                   sta(f.Image1, f, 6);
                                   sta(f.Image2, f, 7);
                                   sta(f.Image3, f, 8);
                                 });
    mostra<somme::FormStampaAbaco>(
        prova, somme::forme::kFormStampaAbaco, [&](auto& f, frmAvviaStampa&) {
          ++visti;
          const QStringList parole{QStringLiteral("k"), QStringLiteral("h"), QStringLiteral("da"),
                                   QStringLiteral("u")};
          for (int i = 0; i < 4; ++i) {
            QCOMPARE(f.Label3[i].caption(), parole[i]);
            sta(f.Label3[i], f, i);
          }
          sta(f.Image6, f, 5);
          sta(f.Image5, f, 6);
          sta(f.Image4, f, 7);
          sta(f.Image1, f, 9);
          sta(f.Image2, f, 10);
          sta(f.Image3, f, 11);
        });
    QCOMPARE(visti, 5);
  }

  void theSheetGoesToTheDialogAcrossWithTheSizeOfThePaperAndItsTitle() {
    DialogoDiProva prova;
    bool visto = false;
    mostra(prova, somme::forme::kFormStampaLU, [&](FoglioTastiera& f, frmAvviaStampa& d) {
      visto = true;
      QVERIFY(!f.FoglioStampato());
      QCOMPARE(d.caption(),
               QStringLiteral("Stampa foglio 'Esercitazioni sulle somme' tastiera HelpiKeys"));
      QCOMPARE(d.fraFoglio.caption(), QStringLiteral(" Dimensioni foglio: A4,  Orizzontale"));
      QCOMPARE(d.posto().sinistra, 0);
      QCOMPARE(d.posto().alto, 0);
      // The aspect is that of the paper, 297 by 210.
      d.Command1.click();
      d.txtPrW.setText(QStringLiteral("297"));
      d.chkProporzioni.widget()->setFocus();
      prova.batti(Qt::Key_Space);
      prova.batti(Qt::Key_Space);
      QCOMPARE(d.posto().altezza, 210);
      // What is printed is the sheet, and nothing around it.
      const QSize lato = f.page()->canvas()->size();
      QVERIFY(lato.width() * 280 / lato.height() > 398 && lato.width() * 280 / lato.height() < 402);
      QCOMPARE(d.immagine().punti().width() % lato.width(), 0);
      QVERIFY(d.immagine().punti().width() >= 2480);
    });
    QVERIFY(visto);
  }

  void closingTheDialogEndsTheSheetToo_data() { ogniFoglio(); }
  void closingTheDialogEndsTheSheetToo() {
    QFETCH(int, quale);
    DialogoDiProva prova;
    std::weak_ptr<platform::Form> foglio;
    prova.forma.TestoStampa.append(QStringLiteral("una riga"));
    mostra(prova, fogli()[size_t(quale)].nome, [&](FoglioTastiera& f, frmAvviaStampa& d) {
      foglio = f.weak_from_this();
      prova.clicca(d.cmdChiudi);
    });
    QCoreApplication::processEvents();
    QVERIFY(foglio.expired());
    QCOMPARE(prova.banco.nomeForma(), QStringLiteral("FormBarre10"));
    QVERIFY(prova.banco.stampanti.lavori.empty());
    QVERIFY(prova.messaggi().empty());
    // The exercise that asked for it has been activated in turn: its record is fresh.
    QVERIFY(!prova.forma.TestoStampa.text().contains(QStringLiteral("una riga")));
  }

  void printingEndsTheSheetAndItCanBeAskedForAgain() {
    DialogoDiProva prova;
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    for (size_t volta = 1; volta <= 2; ++volta) {
      mostra(prova, somme::forme::kFormStampaFoglioNumeri,
             [&](FoglioTastiera&, frmAvviaStampa& d) { prova.clicca(d.cmdStampa); });
      QCoreApplication::processEvents();
      QCOMPARE(prova.banco.stampanti.lavori.size(), volta);
      QCOMPARE(prova.banco.nomeForma(), QStringLiteral("FormBarre10"));
    }
    QVERIFY(prova.messaggi().empty());
  }

  void withoutAPrinterTheSheetTellsItOnceAndGoes() {
    DialogoDiProva prova;
    prova.banco.stampanti.nessuna();
    prova.forma.run(
        [&] { prova.banco.ambiente->fondo.forms().show(somme::forme::kFormStampaAbaco); });
    QCoreApplication::processEvents();
    QCOMPARE(prova.messaggi().size(), size_t(1));
    QVERIFY(prova.messaggi()[0].text.contains(QStringLiteral("richieste devono essere > 0.")));
    QCOMPARE(prova.messaggi()[0].title, QStringLiteral(" Errore nella stampa del documento."));
    QCOMPARE(prova.banco.nomeForma(), QStringLiteral("FormBarre10"));
  }

  void theSheetsForAdjustingShowEveryLineOfTheGridWithItsNumber() {
    DialogoDiProva prova({1366, 768});
    for (const auto nome : {somme::forme::kFormStampaFoglio4, somme::forme::kFormStampaFoglio1}) {
      bool visto = false;
      mostra<somme::FoglioCalibrazione>(
          prova, nome, [&](somme::FoglioCalibrazione& f, frmAvviaStampa&) {
            visto = true;
            const Griglia griglia = GrigliaDi(f.width(), f.height());
            QCOMPARE(f.Shape1.count(), nome == somme::forme::kFormStampaFoglio4 ? 16 : 6);
            QCOMPARE(f.Line1.count(), 24);
            QCOMPARE(f.Line2.count(), 24);
            for (int i = 1; i <= 23; ++i) {
              QVERIFY(f.Line1[i].isVisible() && f.Line2[i].isVisible());
              QVERIFY(std::abs(f.Line1[i].x1() - i * griglia.X) < 0.01);
              QVERIFY(std::abs(f.Line1[i].y2() - f.height()) < 0.01);
              QVERIFY(std::abs(f.Line2[i].y1() - i * griglia.Y) < 0.01);
              QVERIFY(std::abs(f.Line2[i].x2() - f.width()) < 0.01);
              QCOMPARE(f.Label1[i].caption(), QString::number(i));
              QCOMPARE(f.Label2[i].caption(), QString::number(i));
              QVERIFY(f.Label1[i].isVisible() && f.Label2[i].isVisible());
            }
          });
      QVERIFY(visto);
    }
  }

  void theSixLargeFramesForAdjustingAreSixByEightCells() {
    const Griglia griglia{100, 100};
    const somme::PostiTasti& sei = somme::posti::kSei;
    QCOMPARE(sei.quanti(), 6);
    QVERIFY((sei.Posto(0, griglia) == platform::TwipsRect{100, 200, 600, 800}));
    QVERIFY((sei.Posto(5, griglia) == platform::TwipsRect{1700, 1300, 600, 800}));
  }
};

QTEST_MAIN(FogliTest)
#include "fogli_test.moc"
