#include <QApplication>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <vector>

#include "app/shared/nomi_forme.h"
#include "app/tabella_forme.h"
#include "immagini/immagini.h"
#include "platform/forms/pictures.h"
#include "printing/fogli_di_prova.h"
#include "support/banco.h"
#include "support/come_dal_menu.h"
#include "support/iscrizione.h"

namespace faccia_del_cambio_test {

using prova::Banco;
using somme::FoglioTastiera;
using somme::frmAvviaStampa;
namespace forme = somme::forme;

namespace {

constexpr QColor kUnita(74, 151, 245);
constexpr QColor kDecine(255, 90, 82);
constexpr QColor kCentinaia(93, 220, 90);
constexpr QColor kMigliaia(181, 123, 238);
constexpr QColor kFreccia(255, 176, 46);

// What is exchanged: ten of a colour become one of another.
struct Cambio {
  const char* disegno;
  QColor dieci;
  QColor uno;
};
constexpr Cambio kCambi[] = {{"cambio_u_da", kUnita, kDecine},
                             {"cambio_da_h", kDecine, kCentinaia},
                             {"palline_u_da", kUnita, kDecine},
                             {"palline_da_h", kDecine, kCentinaia},
                             {"palline_h_k", kCentinaia, kMigliaia},
                             {"foglio_palline_u_da", kUnita, kDecine},
                             {"foglio_palline_da_h", kDecine, kCentinaia},
                             {"foglio_palline_h_k", kCentinaia, kMigliaia}};

const Cambio& CambioDi(std::string_view disegno) {
  return *std::ranges::find(kCambi, disegno,
                            [](const Cambio& uno) { return std::string_view(uno.disegno); });
}

// Small shapes are smoothed by the lines round them.
bool Simili(const QColor& a, const QColor& b) {
  constexpr int kSfumatura = 60;  // of 255
  return std::abs(a.red() - b.red()) < kSfumatura && std::abs(a.green() - b.green()) < kSfumatura &&
         std::abs(a.blue() - b.blue()) < kSfumatura;
}

int Quanti(const QImage& immagine, const QRect& dove, const QColor& colore) {
  int quanti = 0;
  for (int y = dove.top(); y <= dove.bottom(); ++y) {
    for (int x = dove.left(); x <= dove.right(); ++x) {
      quanti += int(Simili(immagine.pixelColor(x, y), colore));
    }
  }
  return quanti;
}

// The pieces of a picture on white that do not touch one another, by their places.
std::vector<QRect> Pezzi(QImage immagine) {
  std::vector<QRect> pezzi;
  for (int y = 0; y < immagine.height(); ++y) {
    for (int x = 0; x < immagine.width(); ++x) {
      if (immagine.pixelColor(x, y) == QColor(Qt::white)) continue;
      QRect posto;
      std::vector<QPoint> aperti{{x, y}};
      while (!aperti.empty()) {
        const QPoint punto = aperti.back();
        aperti.pop_back();
        if (!immagine.rect().contains(punto)) continue;
        if (immagine.pixelColor(punto) == QColor(Qt::white)) continue;
        immagine.setPixelColor(punto, Qt::white);
        posto |= QRect(punto, QSize(1, 1));
        for (const QPoint passo : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)}) {
          aperti.push_back(punto + passo);
        }
      }
      pezzi.push_back(posto);
    }
  }
  return pezzi;
}

int Area(const QRect& posto) {
  return posto.width() * posto.height();
}

}  // namespace

// The exchange as a pupil meets it, on the screen and on paper, with blocks and with beads.
class FacciaDelCambioTest : public QObject {
  Q_OBJECT

  static platform::Control* controllo(const platform::Form& forma, const QString& nome) {
    for (platform::Control* uno : forma.controls()) {
      if (uno->name() == nome) return uno;
    }
    return nullptr;
  }
  // The picture of a control, and whether both colours of what it shows are painted.
  static void haIlDisegno(const platform::Control* chi, const QByteArray& disegno) {
    QVERIFY(chi != nullptr);
    QCOMPARE(QByteArray(std::string(chi->look().picture).c_str()), disegno);
    const QImage dipinto = chi->widget()->grab().toImage();
    const Cambio& cambio = CambioDi(disegno.toStdString());
    QVERIFY(Quanti(dipinto, dipinto.rect(), cambio.dieci) >= 10);
    QVERIFY(Quanti(dipinto, dipinto.rect(), cambio.uno) >= 10);
    QVERIFY(Quanti(dipinto, dipinto.rect(), kFreccia) >= 10);
  }

 private Q_SLOTS:
  void initTestCase() { somme::PreparaImmagini(); }

  void theExchangeShowsTenSmallOnesThatBecomeOneLargeOne_data() {
    QTest::addColumn<QByteArray>("disegno");
    for (const Cambio& cambio : kCambi) QTest::newRow(cambio.disegno) << QByteArray(cambio.disegno);
  }
  void theExchangeShowsTenSmallOnesThatBecomeOneLargeOne() {
    QFETCH(QByteArray, disegno);
    platform::Pictures immagini(QStringLiteral(":/immagini"));
    QImage carta(1350, 990, QImage::Format_RGB32);
    carta.fill(Qt::white);
    QPainter pittore(&carta);
    immagini.paint(pittore, QString::fromLatin1(disegno), carta.rect());
    pittore.end();
    const Cambio& cambio = CambioDi(disegno.toStdString());
    std::vector<QRect> dieci;
    std::vector<QRect> uno;
    std::vector<QRect> frecce;
    for (const QRect& pezzo : Pezzi(carta)) {
      const int soglia = Area(pezzo) / 6;
      if (Quanti(carta, pezzo, cambio.dieci) > soglia) dieci.push_back(pezzo);
      if (Quanti(carta, pezzo, cambio.uno) > soglia) uno.push_back(pezzo);
      if (Quanti(carta, pezzo, kFreccia) > soglia) frecce.push_back(pezzo);
    }
    QCOMPARE(int(dieci.size()), 10);
    QCOMPARE(int(uno.size()), 1);
    QCOMPARE(int(frecce.size()), 1);
    for (const QRect& piccolo : dieci) {
      QVERIFY(Area(uno[0]) > 2 * Area(piccolo));
      // From right to left, as units become tens.
      QVERIFY(piccolo.left() > frecce[0].right() && uno[0].right() < frecce[0].left());
    }
  }

  void theExchangeHasOneFaceOnEveryForm_data() {
    QTest::addColumn<QByteArray>("forma");
    QTest::addColumn<QByteArray>("pulsante");
    QTest::addColumn<QByteArray>("disegno");
    const auto riga = [](std::string_view forma, const char* pulsante, const char* disegno) {
      const QByteArray nome(forma.data(), qsizetype(forma.size()));
      QTest::addRow("%s %s", nome.constData(), pulsante)
          << nome << QByteArray(pulsante) << QByteArray(disegno);
    };
    for (const auto forma : {forme::kFormLU, forme::kFormLUScansione, forme::kFormLUHK}) {
      riga(forma, "PulsanteCambio", "cambio_u_da");
    }
    for (const auto forma : {forme::kFormHLU, forme::kFormHLUScansione, forme::kFormHLUHK}) {
      riga(forma, "PulsanteCambioUDa", "cambio_u_da");
      riga(forma, "PulsanteCambioDaH", "cambio_da_h");
    }
    riga(forme::kFormAbaco, "PulsanteCambioUDa", "palline_u_da");
    riga(forme::kFormAbaco, "PulsanteCambioDaH", "palline_da_h");
    riga(forme::kFormAbaco, "PulsanteCambioHK", "palline_h_k");
  }
  void theExchangeHasOneFaceOnEveryForm() {
    QFETCH(QByteArray, forma);
    QFETCH(QByteArray, pulsante);
    QFETCH(QByteArray, disegno);
    Banco banco({1366, 768});
    prova::ComeDalMenu(*banco.ambiente, forma.toStdString());
    banco.mostra(forma.toStdString());
    const platform::Form& aperta = *banco.ambiente->fondo.forms().current();
    auto* cambio = const_cast<platform::Control*>(controllo(aperta, QString::fromLatin1(pulsante)));
    QVERIFY(cambio != nullptr);
    cambio->setEnabled(true);
    haIlDisegno(cambio, disegno);
    QVERIFY(cambio->caption().isEmpty());
  }

  void theExchangeHasTheFormsFaceOnTheirSheets_data() {
    QTest::addColumn<QByteArray>("disegni");
    // Image4, Image5 and Image6, where a sheet has them.
    QTest::newRow("FormStampaLU") << QByteArray("cambio_u_da");
    QTest::newRow("FormStampaPLU") << QByteArray("cambio_u_da cambio_da_h");
    QTest::newRow("FormStampaAbaco")
        << QByteArray("foglio_palline_u_da foglio_palline_da_h foglio_palline_h_k");
  }
  void theExchangeHasTheFormsFaceOnTheirSheets() {
    QFETCH(QByteArray, disegni);
    prova::DialogoDiProva prova({1366, 768});
    int visti = 0;
    prova::mostra(prova, QTest::currentDataTag(), [&](FoglioTastiera& f, frmAvviaStampa&) {
      for (const QByteArray& disegno : disegni.split(' ')) {
        haIlDisegno(controllo(f, QStringLiteral("Image%1").arg(4 + visti++)), disegno);
      }
    });
    QCOMPARE(visti, int(disegni.split(' ').size()));
  }
};

const prova::Iscrizione<FacciaDelCambioTest, QApplication> kIscritta;

}  // namespace faccia_del_cambio_test

#include "faccia_del_cambio_test.moc"
