#include "fogli_di_prova.h"

#include <QApplication>
#include <map>

#include "support/iscrizione.h"
#include "support/pdf_letto.h"

namespace fogli_stampati_test {

using prova::Cella;
using prova::cellaDi;
using prova::DialogoDiProva;
using prova::fogli;
using prova::mostra;
using prova::ogniFoglio;
using prova::PdfLetto;
using prova::postoDi;
using prova::puntiDi;
using prova::vuota;
using somme::FoglioTasti;
using somme::FoglioTastiera;
using somme::frmAvviaStampa;

// The keyboard sheets on paper, where the frames are found by their ink.
class FogliStampatiTest : public QObject {
  Q_OBJECT

  static constexpr int kPunti = 200;  // to the inch

  struct Stampa {
    std::vector<QRectF> cornici;  // as they stood on the screen, in millimetres of the print
    size_t lavori = 0;
    int pagine = 0;
    QImage pagina;  // the first one
  };
  // Each sheet is printed once.
  static const Stampa& stampata(const FoglioTasti& foglio) {
    static std::map<std::string_view, Stampa> stampe;
    const auto [nota, nuova] = stampe.try_emplace(foglio.nome);
    if (nuova) nota->second = stampa(foglio);
    return nota->second;
  }
  static Stampa stampa(const FoglioTasti& foglio) {
    DialogoDiProva prova({1366, 768});
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    Stampa stampa;
    mostra(prova, foglio.nome, [&stampa](FoglioTastiera& f, frmAvviaStampa& d) {
      for (int i = 0; i < f.Shape1.count(); ++i) {
        const QRectF posto = postoDi(f.Shape1[i]);
        stampa.cornici.emplace_back(posto.x() / f.width() * 400, posto.y() / f.height() * 280,
                                    posto.width() / f.width() * 400,
                                    posto.height() / f.height() * 280);
      }
      d.cmdStampa.click();
    });
    stampa.lavori = prova.banco.stampanti.lavori.size();
    if (stampa.lavori == 0) return stampa;
    const PdfLetto letto(prova.banco.stampanti.lavori[0].pages);
    stampa.pagine = letto.pagine();
    stampa.pagina = letto.immagine(1, kPunti);
    return stampa;
  }
  // Of a frame on the 400 by 280 mm of the print, in millimetres.
  static QRectF suCarta(const FoglioTasti& foglio, int cornice) {
    const QSizeF cella(400.0 / 24, 280.0 / 23);
    const platform::TwipsRect celle =
        somme::PostoDi(foglio.tastiera.CorniceDi(cornice + 1), {1, 1});
    return {celle.left * cella.width(), celle.top * cella.height(), celle.width * cella.width(),
            celle.height * cella.height()};
  }
  static QRect pixelDi(const QRectF& stanza) {
    constexpr double kMillimetro = kPunti / 25.4;
    return {qRound(stanza.x() * kMillimetro), qRound(stanza.y() * kMillimetro),
            qRound(stanza.width() * kMillimetro), qRound(stanza.height() * kMillimetro)};
  }
  static QRectF inchiostroIn(const QImage& pagina, const QRectF& stanza) {
    return prova::inchiostro(pagina.copy(pixelDi(stanza)), kPunti)
        .translated(stanza.x(), stanza.y());
  }

 private Q_SLOTS:
  void everyPrintedFrameStandsInItsPlaceOnEveryScreen_data() {
    QTest::addColumn<int>("quale");
    QTest::addColumn<QSize>("finestra");
    for (int i = 0; i < int(fogli().size()); ++i) {
      for (const QSize lato : {QSize(640, 480), QSize(1280, 1024), QSize(3840, 2160)}) {
        QTest::addRow("%s %dx%d", std::string(fogli()[size_t(i)]->nome).c_str(), lato.width(),
                      lato.height())
            << i << lato;
      }
    }
  }
  void everyPrintedFrameStandsInItsPlaceOnEveryScreen() {
    QFETCH(int, quale);
    QFETCH(QSize, finestra);
    const FoglioTasti& foglio = *fogli()[size_t(quale)];
    DialogoDiProva prova(finestra);
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    mostra(prova, foglio.nome, [](FoglioTastiera&, frmAvviaStampa& d) { d.cmdStampa.click(); });
    QCOMPARE(prova.banco.stampanti.lavori.size(), size_t(1));
    const PdfLetto letto(prova.banco.stampanti.lavori[0].pages);
    constexpr int kFini = 200;
    const QImage pagina = letto.inGrigio(1, kFini);
    const double mm = 25.4 / kFini;
    double lontano = 0;
    for (int i = 0; i < foglio.tastiera.Posti(); ++i) {
      if (vuota(foglio, i)) continue;
      const QRectF posto = suCarta(foglio, i);
      // The frame and half a cell around it, which is less than the gaps.
      const QRectF stanza = posto.adjusted(-8, -6, 8, 6);
      const QRect ritaglio(qRound(stanza.x() / mm), qRound(stanza.y() / mm),
                           qRound(stanza.width() / mm), qRound(stanza.height() / mm));
      // The line of the edge, two of the design's 640 pixels wide, stands half outside.
      constexpr double kMezzo = 400.0 / 640;
      const QRectF linea = prova::inchiostro(pagina.copy(ritaglio), kFini)
                               .translated(ritaglio.x() * mm, ritaglio.y() * mm)
                               .adjusted(kMezzo, kMezzo, -kMezzo, -kMezzo);
      for (const double scarto : {linea.left() - posto.left(), linea.top() - posto.top(),
                                  linea.right() - posto.right(), linea.bottom() - posto.bottom()}) {
        lontano = std::max(lontano, std::abs(scarto));
      }
    }
    QVERIFY2(lontano < 0.3, qPrintable(QStringLiteral("%1 mm").arg(lontano)));
  }

  void drawingsKeepClearOfTheirFrames_data() { ogniFoglio(); }
  void drawingsKeepClearOfTheirFrames() {
    QFETCH(int, quale);
    const FoglioTasti& foglio = *fogli()[size_t(quale)];
    const QImage& pagina = stampata(foglio).pagina;
    int disegni = 0;
    for (int i = 0; i < foglio.tastiera.Posti(); ++i) {
      const somme::TastoPosato tasto = foglio.TastoDi(i + 1);
      if (vuota(foglio, i) || somme::ComeSiMostra(tasto.tasto) != somme::Mostra::Disegno) continue;
      ++disegni;
      // Inside of the line.
      const QRectF stanza = suCarta(foglio, i).adjusted(1, 1, -1, -1);
      const QRectF ink = inchiostroIn(pagina, stanza);
      constexpr double kLargo = 2.5;  // millimetres
      QVERIFY2(ink.left() >= stanza.left() + kLargo && ink.top() >= stanza.top() + kLargo &&
                   ink.right() <= stanza.right() - kLargo &&
                   ink.bottom() <= stanza.bottom() - kLargo,
               qPrintable(QString::number(i)));
      QVERIFY(ink.width() > stanza.width() / 3);
    }
    QVERIFY(disegni >= 3);
  }

  void thePlaceValuesHaveTheColorsOfTheirBlocksAndBeads_data() { ogniFoglio(); }
  void thePlaceValuesHaveTheColorsOfTheirBlocksAndBeads() {
    QFETCH(int, quale);
    const FoglioTasti& foglio = *fogli()[size_t(quale)];
    const std::map<somme::Tasto, QColor> tinte{{somme::Tasto::Migliaia, QColor(181, 123, 238)},
                                               {somme::Tasto::Centinaia, QColor(93, 220, 90)},
                                               {somme::Tasto::Decine, QColor(255, 90, 82)},
                                               {somme::Tasto::Unita, QColor(74, 151, 245)}};
    const QImage& pagina = stampata(foglio).pagina;
    for (int i = 0; i < foglio.tastiera.Posti(); ++i) {
      const auto tinta = tinte.find(foglio.TastoDi(i + 1).tasto);
      if (vuota(foglio, i) || tinta == tinte.end()) continue;
      const QRect dove = pixelDi(suCarta(foglio, i).adjusted(1, 1, -1, -1));
      int quanti = 0;
      int neri = 0;
      for (int y = dove.top(); y < dove.bottom(); ++y) {
        for (int x = dove.left(); x < dove.right(); ++x) {
          quanti += int(pagina.pixelColor(x, y) == tinta->second);
          neri += int(pagina.pixelColor(x, y) == QColor(Qt::black));
        }
      }
      // The letter, and the line round it by which it is read on white.
      QVERIFY2(quanti > 500, qPrintable(QString::number(quanti)));
      QVERIFY2(neri > 200, qPrintable(QString::number(neri)));
    }
  }

  void everyPrintedFrameFallsOnItsKey_data() { ogniFoglio(); }
  void everyPrintedFrameFallsOnItsKey() {
    QFETCH(int, quale);
    const FoglioTasti& foglio = *fogli()[size_t(quale)];
    const auto& [attesi, lavori, pagine, pagina] = stampata(foglio);
    QCOMPARE(attesi.size(), size_t(foglio.tastiera.Posti()));
    QCOMPARE(lavori, size_t(1));
    QCOMPARE(pagine, 1);
    const double mm = 25.4 / kPunti;
    for (size_t i = 0; i < attesi.size(); ++i) {
      // The frame and half a cell around it, which is less than the gaps.
      const QRectF stanza = attesi[i].adjusted(-8, -6, 8, 6);
      const QRect ritaglio(qRound(stanza.x() / mm), qRound(stanza.y() / mm),
                           qRound(stanza.width() / mm), qRound(stanza.height() / mm));
      const QImage pezzo = pagina.copy(ritaglio);
      if (vuota(foglio, int(i))) {
        QVERIFY2(prova::inchiostro(pezzo, kPunti).width() <= 0, qPrintable(QString::number(i)));
        continue;
      }
      const QRectF ink =
          prova::inchiostro(pezzo, kPunti).translated(ritaglio.x() * mm, ritaglio.y() * mm);
      // The edge is drawn half outside of the frame.
      constexpr double kBordo = 1.3;
      QVERIFY2(std::abs(ink.left() - attesi[i].left()) < kBordo, qPrintable(QString::number(i)));
      QVERIFY2(std::abs(ink.top() - attesi[i].top()) < kBordo, qPrintable(QString::number(i)));
      QVERIFY2(std::abs(ink.right() - attesi[i].right()) < kBordo, qPrintable(QString::number(i)));
      QVERIFY2(std::abs(ink.bottom() - attesi[i].bottom()) < kBordo,
               qPrintable(QString::number(i)));
      for (const QPointF& punto : puntiDi(ink, {400.0 / 24, 280.0 / 23})) {
        const Cella c = cellaDi(punto.x() / 400, punto.y() / 280);
        QCOMPARE(foglio.tastiera.Posto(c.colonna, c.riga), int(i) + 1);
      }
    }
  }
};

const prova::Iscrizione<FogliStampatiTest, QApplication> kIscritta;

}  // namespace fogli_stampati_test

#include "fogli_stampati_test.moc"
