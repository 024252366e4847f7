#include <QCoreApplication>
#include <QTest>

#include "platform/flash/movie_reader.h"
#include "platform/flash/player.h"
#include "support/iscrizione.h"
#include "tests/tools/swf/filmato_a_caso.h"
#include "tests/tools/swf/racconto.h"

namespace letto_come_scritto_test {

using namespace platform::flash;
using prove::FilmatoACaso;
using somme::swf::Filmato;

namespace {

constexpr unsigned kSemi = 200;

std::shared_ptr<const Movie> letto(const FilmatoACaso& scritto, Filmato::Compressione come) {
  return readMovie(scritto.filmato().byte(come));
}

// The two ends of each gradient on its shape, as the format's square is laid on it.
std::vector<std::pair<QPointF, QPointF>> sfumature(const Movie& filmato) {
  constexpr double kOrlo = 16384;
  std::vector<std::pair<QPointF, QPointF>> esito;
  for (std::size_t numero = 1; numero <= filmato.characters.size(); ++numero) {
    const Shape* forma = filmato.character(CharacterId(numero))->as<Shape>();
    if (forma == nullptr) continue;
    for (const ShapePart& parte : forma->parts) {
      if (parte.paint.kind != Paint::Kind::Gradient) continue;
      const Gradient& g = parte.paint.gradient;
      esito.push_back({g.matrix.map(g.radial ? QPointF() : QPointF(-kOrlo, 0)),
                       g.matrix.map(g.radial ? QPointF(kOrlo, kOrlo) : QPointF(kOrlo, 0))});
    }
  }
  return esito;
}

// Half a twip of rounding, and a factor's last place over the whole square.
bool vicini(QPointF a, QPointF b) {
  return std::abs(a.x() - b.x()) <= 1 && std::abs(a.y() - b.y()) <= 1;
}

}  // namespace

// The writer of the boards and the player's reader know the format each by itself; on movies made
// by chance they agree.
class LettoComeScrittoTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theReaderFindsInAMovieWhatTheWriterWasTold() {
    for (unsigned seme = 1; seme <= kSemi; ++seme) {
      const FilmatoACaso scritto(seme);
      for (const auto come : {Filmato::Compressione::Nessuna, Filmato::Compressione::Zlib}) {
        const auto filmato = letto(scritto, come);
        QCOMPARE(filmato->version, 6);
        QCOMPARE(filmato->compressed, come == Filmato::Compressione::Zlib);
        const QStringList trovato = prove::raccontoDi(*filmato);
        const QStringList inteso = scritto.racconto();
        for (qsizetype riga = 0; riga < std::max(trovato.size(), inteso.size()); ++riga) {
          if (trovato.value(riga) == inteso.value(riga)) continue;
          QFAIL(qPrintable(QStringLiteral("seed %1, line %2:\n found %3\n meant %4")
                               .arg(seme)
                               .arg(riga + 1)
                               .arg(trovato.value(riga), inteso.value(riga))));
        }
      }
    }
  }

  void gradientsLieBetweenTheEndsThatTheWriterWasTold() {
    std::size_t viste = 0;
    for (unsigned seme = 1; seme <= kSemi; ++seme) {
      const FilmatoACaso scritto(seme);
      const auto trovate = sfumature(*letto(scritto, Filmato::Compressione::Nessuna));
      QCOMPARE(trovate.size(), scritto.sfumature().size());
      for (std::size_t i = 0; i < trovate.size(); ++i) {
        QVERIFY2(vicini(trovate[i].first, scritto.sfumature()[i].first) &&
                     vicini(trovate[i].second, scritto.sfumature()[i].second),
                 qPrintable(QStringLiteral("seed %1, gradient %2").arg(seme).arg(i)));
      }
      viste += trovate.size();
    }
    QVERIFY(viste > 100);
  }

  void thePlayerTellsWhatTheWriterHadTheSceneTell() {
    for (unsigned seme = 1; seme <= kSemi; ++seme) {
      const FilmatoACaso scritto(seme);
      QStringList uditi;
      Player player(letto(scritto, Filmato::Compressione::Zlib),
                    [&](const QString& comando, const QString& argomenti) {
                      uditi += comando + u'=' + argomenti;
                    });
      while (player.currentFrame() < player.movie().timeline.frameCount()) player.tick();
      QVERIFY2(uditi == scritto.comandi(),
               qPrintable(QStringLiteral("seed %1:\n heard %2\n meant %3")
                              .arg(seme)
                              .arg(uditi.join(u' '), scritto.comandi().join(u' '))));
      (void)player.scene();
    }
  }
};

const prova::Iscrizione<LettoComeScrittoTest, QCoreApplication> kIscritta;

}  // namespace letto_come_scritto_test

#include "letto_come_scritto_test.moc"
