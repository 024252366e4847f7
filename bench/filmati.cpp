// The movie player, measured: a whole picture of each board at 1920x1080 against a bare QPainter
// with the same paths, and against the time that a frame of the movie lasts; the loading of a
// movie; one clip's change against the whole board.
//
//   bench_filmati FOLDER-OF-THE-PROGRAM
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <vector>

#include "figura.h"
#include "platform/flash/movie_error.h"
#include "platform/flash/movie_file.h"
#include "platform/flash/player.h"
#include "platform/flash/renderer.h"

using platform::flash::Player;
using platform::flash::Property;
using platform::flash::Renderer;
using platform::flash::Scene;
using platform::flash::SceneItem;

namespace {

constexpr QSize kSchermo(1920, 1080);

// Milliseconds of the processor's time, so that what else the machine does is not measured.
double millisecondi(const std::function<void()>& lavoro) {
  const auto adesso = [] {
    timespec tempo{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &tempo);
    return static_cast<double>(tempo.tv_sec) * 1e3 + static_cast<double>(tempo.tv_nsec) / 1e6;
  };
  const double inizio = adesso();
  lavoro();
  return adesso() - inizio;
}

// The same things as the renderer paints, as one who has only a QPainter would.
struct Tratto {
  QPainterPath percorso;
  QTransform matrice;
  QBrush pennello;
  QPen penna;
};

QGradientStops tappe(const platform::flash::Gradient& sfumatura,
                     const platform::flash::ColorTransform& colore) {
  QGradientStops tutte;
  for (const auto& tappa : sfumatura.stops) {
    tutte.append({tappa.ratio / 255.0, QColor::fromRgba(colore.apply(tappa.color))});
  }
  return tutte;
}

QBrush pennello(const SceneItem& cosa) {
  if (cosa.gradient == nullptr) return QColor::fromRgba(cosa.color);
  constexpr double kMeta = 16384;
  QLinearGradient lineare(-kMeta, 0, kMeta, 0);
  QRadialGradient radiale(0, 0, kMeta);
  QGradient& sfumatura = cosa.gradient->radial ? static_cast<QGradient&>(radiale) : lineare;
  sfumatura.setStops(tappe(*cosa.gradient, cosa.gradientColor));
  QBrush fatto(sfumatura);
  fatto.setTransform(cosa.gradient->matrix);
  return fatto;
}

std::vector<Tratto> tratti(const Scene& scena) {
  std::vector<Tratto> tutti;
  for (const SceneItem& cosa : scena.items) {
    Tratto tratto{cosa.outline->toPainterPath(), cosa.matrix, Qt::NoBrush, Qt::NoPen};
    if (cosa.isLine) {
      tratto.penna =
          QPen(pennello(cosa), cosa.lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    } else {
      tratto.pennello = pennello(cosa);
    }
    tutti.push_back(std::move(tratto));
  }
  return tutti;
}

void dipingi(const std::vector<Tratto>& tutti, const QTransform& aPixel, QRgb sfondo,
             QImage& immagine) {
  immagine.fill(sfondo);
  QPainter pittore(&immagine);
  pittore.setRenderHint(QPainter::Antialiasing);
  for (const Tratto& tratto : tutti) {
    pittore.setTransform(tratto.matrice * aPixel);
    pittore.setBrush(tratto.pennello);
    pittore.setPen(tratto.penna);
    pittore.drawPath(tratto.percorso);
  }
}

void misura(const QString& file) {
  // What is compared takes turns in each.
  const int giri = bench::quanti(21, 5);
  std::shared_ptr<const platform::flash::Movie> filmato;
  std::vector<double> carichi;
  carichi.reserve(std::size_t(giri));
  for (int i = 0; i < giri; ++i) {
    carichi.push_back(millisecondi([&] { filmato = platform::flash::loadMovie(file); }));
  }
  Player lettore(filmato, [](const QString&, const QString&) {});
  const Scene scena = lettore.scene();
  const QRectF palco = filmato->stage;
  const double scala =
      std::min(kSchermo.width() / palco.width(), kSchermo.height() / palco.height());
  const QTransform aPixel = QTransform::fromScale(scala, scala);
  QImage immagine((palco.size() * scala).toSize(), QImage::Format_RGB32);
  QImage nuda = immagine;
  const std::vector<Tratto> stessi = tratti(scena);

  Renderer pittore;
  std::vector<double> nostri;
  std::vector<double> nudi;
  for (int i = 0; i < giri; ++i) {
    nostri.push_back(millisecondi(
        [&] { pittore.paint(lettore.scene(), aPixel, filmato->background, immagine); }));
    nudi.push_back(millisecondi([&] { dipingi(stessi, aPixel, filmato->background, nuda); }));
  }
  const double nostro = bench::mediana(nostri);
  const double nudo = bench::mediana(nudi);
  const double fotogramma = 1000 / filmato->frameRate;

  // One clip hidden: what has to be painted anew, against the board.
  QString nome;
  for (const char* prova : {"u1", "u0"}) {
    if (!lettore.property(QString::fromLatin1(prova), Property::Name).isEmpty()) {
      nome = QString::fromLatin1(prova);
    }
  }
  lettore.setProperty(nome, Property::Visible, QStringLiteral("0"));
  QRectF posto;
  for (const QRectF& diverso : platform::flash::differences(scena, lettore.scene())) {
    posto |= diverso;
  }
  std::printf("%s: %zu parts, loaded in %.2f ms (first %.2f)\n", qUtf8Printable(file),
              scena.items.size(), bench::mediana(carichi), carichi.front());
  std::printf("  picture of %dx%d: %.2f ms of the frame's %.1f, bare QPainter %.2f ms\n",
              immagine.width(), immagine.height(), nostro, fotogramma, nudo);
  std::printf("  hiding %s repaints %.4f of the board\n", qUtf8Printable(nome),
              posto.width() * posto.height() / (palco.width() * palco.height()));
  const std::string quale = QFileInfo(file).fileName().toStdString();
  bench::stampa(
      {"picture of a board", quale, nostro / nudo, "times a bare QPainter's", bench::alPiu(1.5)});
  bench::stampa({"picture of a board, of its frame", quale, nostro / fotogramma, "of its time",
                 bench::alPiu(0.25)});
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: bench_filmati FOLDER-OF-THE-PROGRAM\n");
    return 2;
  }
  try {
    const QDir cartella(QString::fromLocal8Bit(argv[1]) + QStringLiteral("/swf"));
    for (const QFileInfo& file : cartella.entryInfoList({QStringLiteral("*.swf")}, QDir::Files)) {
      misura(file.filePath());
    }
  } catch (const platform::flash::MovieError& errore) {
    std::fprintf(stderr, "%s\n", errore.what());
    return 1;
  }
  return 0;
}
