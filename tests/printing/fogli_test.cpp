#include "printing/foglio_tastiera.h"

#include <QApplication>

#include "fogli_di_prova.h"
#include "printing/foglio_calibrazione.h"
#include "support/iscrizione.h"

namespace fogli_test {

using prova::Cella;
using prova::cellaDi;
using prova::controlloDi;
using prova::DialogoDiProva;
using prova::fogli;
using prova::mostra;
using prova::ogniFoglio;
using prova::postoDi;
using prova::puntiDi;
using somme::FoglioTasti;
using somme::FoglioTastiera;
using somme::frmAvviaStampa;
using somme::Griglia;
using somme::GrigliaDi;

namespace {

// Lefts, tops and size of a sheet's frames, in units of the grid, and those that no key is in.
struct Quadro {
  std::vector<int> sinistre;
  std::vector<int> alti;
  int larghezza;
  int altezza;
  std::vector<int> nascoste;
};

Quadro quadroDi(std::string_view nome) {
  const std::vector<int> strette{1, 7, 13, 19};
  const std::vector<int> larghe{1, 9, 17};
  if (nome == somme::forme::kFormStampaAbaco) return {strette, {2, 9, 16}, 4, 5, {4, 8}};
  if (nome == somme::forme::kFormStampaLU) return {larghe, {1, 8, 15}, 6, 6, {0, 3, 4}};
  if (nome == somme::forme::kFormStampaPLU) return {larghe, {1, 8, 15}, 6, 6, {3}};
  Quadro cifre{strette, {2, 7, 12, 17}, 4, 4, {10, 11}};
  if (nome == somme::forme::kFormStampaFoglioNumeri) return cifre;
  return {strette, cifre.alti, 4, 4, {10, 11, 13}};
}

}  // namespace

// The keyboard sheets, as a teacher asks for one.
class FogliTest : public QObject {
  Q_OBJECT

  static void ogniFoglioInOgniFinestra() {
    QTest::addColumn<int>("quale");
    QTest::addColumn<QSize>("finestra");
    for (int i = 0; i < int(fogli().size()); ++i) {
      for (const QSize lato : {QSize(800, 600), QSize(1366, 768), QSize(1283, 1021)}) {
        QTest::addRow("%s %dx%d", std::string(fogli()[size_t(i)]->nome).c_str(), lato.width(),
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
    QCOMPARE(somme::PostoDi(somme::kTastieraCifre.CorniceDi(2), griglia).left, 4200.0);
    for (const int posto : {13, 14, 15, 16}) {
      QCOMPARE(somme::PostoDi(somme::kTastieraCifre.CorniceDi(posto), griglia).top, 8500.0);
    }
  }

  void theFramesStandWhereTheGridSays_data() { ogniFoglio(); }
  void theFramesStandWhereTheGridSays() {
    QFETCH(int, quale);
    const FoglioTasti& foglio = *fogli()[size_t(quale)];
    DialogoDiProva prova({1366, 768});
    bool visto = false;
    mostra(prova, foglio.nome, [&](FoglioTastiera& f, frmAvviaStampa&) {
      visto = true;
      const Griglia griglia = GrigliaDi(f.width(), f.height());
      QCOMPARE(f.Shape1.count(), foglio.tastiera.Posti());
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
            std::find(q.nascoste.begin(), q.nascoste.end(), i) != q.nascoste.end();
        QCOMPARE(f.Shape1[i].isVisible(), !nascosto);
      }
    });
    QVERIFY(visto);
  }

  void everyVisibleFrameFallsOnItsKey_data() { ogniFoglioInOgniFinestra(); }
  void everyVisibleFrameFallsOnItsKey() {
    QFETCH(int, quale);
    QFETCH(QSize, finestra);
    const FoglioTasti& foglio = *fogli()[size_t(quale)];
    DialogoDiProva prova(finestra);
    int provati = 0;
    mostra(prova, foglio.nome, [&](FoglioTastiera& f, frmAvviaStampa&) {
      for (int i = 0; i < f.Shape1.count(); ++i) {
        if (!f.Shape1[i].isVisible()) continue;
        ++provati;
        const QSizeF cella(f.width() / somme::kColonneGriglia, f.height() / somme::kRigheGriglia);
        for (const QPointF& punto : puntiDi(postoDi(f.Shape1[i]), cella)) {
          const Cella c = cellaDi(punto.x() / f.width(), punto.y() / f.height());
          QCOMPARE(foglio.tastiera.Posto(c.colonna, c.riga), i + 1);
        }
      }
    });
    QCOMPARE(provati, foglio.tastiera.Posti() - int(quadroDi(foglio.nome).nascoste.size()));
  }

  void theDigitsStandInTheMiddleOfTheFirstTenFrames() {
    DialogoDiProva prova({1366, 768});
    for (const auto nome :
         {somme::forme::kFormStampaFoglioNumeri, somme::forme::kFormStampaFoglioNumeri2}) {
      bool visto = false;
      mostra(prova, nome, [&](FoglioTastiera& f, frmAvviaStampa&) {
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

  void thePicturesAndWordsHaveThePlacesOfTheirFrames_data() {
    QTest::addColumn<int>("prima");
    QTest::addColumn<QByteArray>("controlli");
    // Frame by frame from one on, what stands over it; a word with its caption, "-" for nothing.
    const auto riga = [](const char* foglio, int prima, const char* controlli) {
      QTest::newRow(foglio) << prima << QByteArray(controlli);
    };
    riga("FormStampaFoglioNumeri", 10, "- - Image4 Image1 Image2 Image3");
    riga("FormStampaFoglioNumeri2", 10, "- - Image4 - Image2 Image3");
    riga("FormStampaLU", 0, "- Label3(1)=da Label3(2)=u - - Image4 Image1 Image2 Image3");
    riga("FormStampaPLU", 0,
         "Label3(0)=h Label3(1)=da Label3(2)=u - Image5 Image4 Image1 Image2 Image3");
    riga("FormStampaAbaco", 0,
         "Label3(0)=k Label3(1)=h Label3(2)=da Label3(3)=u - Image6 Image5 Image4 - Image1 Image2 "
         "Image3");
  }
  void thePicturesAndWordsHaveThePlacesOfTheirFrames() {
    QFETCH(int, prima);
    QFETCH(QByteArray, controlli);
    DialogoDiProva prova({1366, 768});
    int visti = 0;
    mostra(prova, QTest::currentDataTag(), [&](FoglioTastiera& f, frmAvviaStampa&) {
      QCOMPARE(f.Shape1.count(), prima + int(controlli.split(' ').size()));
      for (const QByteArray& scritto : controlli.split(' ')) {
        const int cornice = prima + visti++;
        if (scritto == "-") continue;
        const QByteArrayList parti = scritto.split('=');
        const platform::Control& controllo = controlloDi(f, QString::fromLatin1(parti[0]));
        QVERIFY2(controllo.isVisible(), scritto);
        if (parti.size() > 1) QCOMPARE(controllo.caption(), QString::fromLatin1(parti[1]));
        const QRectF a = postoDi(controllo);
        const QRectF b = postoDi(f.Shape1[cornice]);
        QVERIFY2((a.topLeft() - b.topLeft()).manhattanLength() < 0.1 &&
                     std::abs(a.width() - b.width()) < 0.1 &&
                     std::abs(a.height() - b.height()) < 0.1,
                 scritto);
      }
    });
    QVERIFY(visti > 0);
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
    mostra(prova, fogli()[size_t(quale)]->nome, [&](FoglioTastiera& f, frmAvviaStampa& d) {
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
    const somme::Tastiera& sei = somme::kSeiPosti;
    QCOMPARE(sei.Posti(), 6);
    QVERIFY((somme::PostoDi(sei.CorniceDi(1), griglia) == platform::TwipsRect{100, 200, 600, 800}));
    QVERIFY(
        (somme::PostoDi(sei.CorniceDi(6), griglia) == platform::TwipsRect{1700, 1300, 600, 800}));
  }
};

const prova::Iscrizione<FogliTest, QApplication> kIscritta;

}  // namespace fogli_test

#include "fogli_test.moc"
