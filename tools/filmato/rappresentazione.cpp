#include "tools/filmato/rappresentazione.h"

#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <cmath>
#include <cstdio>
#include <utility>

#include "platform/flash/properties.h"
#include "platform/flash/units.h"

namespace somme::filmato {

using platform::Twips;
using platform::flash::kPixel;
using platform::flash::Movie;
using platform::flash::Player;

namespace {

// Only what is safe in a file's name on any system.
QString nomeDiFile(const QString& nome) {
  QString sicuro;
  for (const QChar c : nome) {
    sicuro += c.isLetterOrNumber() || c == u'-' || c == u'_' || c == u'.' ? c : u'_';
  }
  return sicuro;
}

QSize misure(const Movie& filmato) {
  return {static_cast<int>(std::ceil(Twips(filmato.stage.width()) / kPixel)),
          static_cast<int>(std::ceil(Twips(filmato.stage.height()) / kPixel))};
}

}  // namespace

bool Rappresentazione::esegui(std::shared_ptr<const Movie> filmato, const Copione& copione) {
  raccontaFilmato(*filmato);
  lettore_ = std::make_unique<Player>(
      std::move(filmato), [this](const QString& command, const QString& args) {
        racconta_({{QStringLiteral("ev"), QStringLiteral("fscommand")},
                   {QStringLiteral("command"), command},
                   {QStringLiteral("args"), args},
                   {QStringLiteral("step"), passo_}});
      });
  for (const Passo& passo : copione) {
    ++passo_;
    std::visit([this](const auto& operazione) { compi(operazione); }, passo.operazione);
    raccontaDopo(passo);
  }
  if (lettore_->wasCutOff()) {
    std::fprintf(stderr,
                 "The movie takes too much time or memory; it is played as far as it came\n");
  }
  return riuscita_;
}

void Rappresentazione::raccontaFilmato(const Movie& filmato) {
  const QSize pixel = misure(filmato);
  const QString sfondo =
      QStringLiteral("#%1").arg(filmato.background & 0xFFFFFFU, 6, 16, QChar(u'0'));
  racconta_({{QStringLiteral("ev"), QStringLiteral("meta")},
             {QStringLiteral("version"), filmato.version},
             {QStringLiteral("compressed"), filmato.compressed},
             {QStringLiteral("frames"), filmato.announcedFrames},
             {QStringLiteral("width"), pixel.width()},
             {QStringLiteral("height"), pixel.height()},
             {QStringLiteral("rate"), filmato.frameRate},
             {QStringLiteral("background"), sfondo.toUpper()}});
}

void Rappresentazione::raccontaDopo(const Passo& passo) {
  if (passo.diFotogramma) {
    racconta_({{QStringLiteral("ev"), QStringLiteral("frame")},
               {QStringLiteral("step"), passo_},
               {QStringLiteral("value"), lettore_->currentFrame()}});
  }
  if (passo.diCursore) {
    const QString freccia = QStringLiteral("arrow");
    racconta_(
        {{QStringLiteral("ev"), QStringLiteral("cursor")},
         {QStringLiteral("step"), passo_},
         {QStringLiteral("value"), lettore_->showsHand() ? QStringLiteral("hand") : freccia}});
  }
}

void Rappresentazione::compi(const Attesa& attesa) {
  for (int i = 0; i < attesa.scatti; ++i) {
    lettore_->tick();
  }
}

void Rappresentazione::compi(const VaiA& vai) {
  lettore_->gotoFrame(vai.fotogramma);
}
void Rappresentazione::compi(const Avvia&) {
  lettore_->play();
}
void Rappresentazione::compi(const Ferma&) {
  lettore_->stop();
}

void Rappresentazione::compi(const Imposta& imposta) {
  if (const auto quale = platform::flash::propertyOfNumber(imposta.proprieta)) {
    lettore_->setProperty(imposta.bersaglio, *quale, imposta.valore);
  }
}

void Rappresentazione::compi(const Leggi& leggi) {
  const auto quale = platform::flash::propertyOfNumber(leggi.proprieta);
  racconta_(
      {{QStringLiteral("ev"), QStringLiteral("get")},
       {QStringLiteral("step"), passo_},
       {QStringLiteral("value"), quale ? lettore_->property(leggi.bersaglio, *quale) : QString()}});
}

void Rappresentazione::compi(const Mouse& mouse) {
  const bool clic = mouse.gesto == Mouse::Gesto::Clic;
  if (clic || mouse.gesto == Mouse::Gesto::Sposta) {
    lettore_->mouseMove(mouse.punto);
  }
  if (clic || mouse.gesto == Mouse::Gesto::Premi) {
    lettore_->mousePress(mouse.punto);
  }
  if (clic || mouse.gesto == Mouse::Gesto::Rilascia) {
    lettore_->mouseRelease(mouse.punto);
  }
}

void Rappresentazione::compi(const Scatto& scatto) {
  const Movie& filmato = lettore_->movie();
  QImage immagine(misure(filmato), QImage::Format_RGB32);
  const QPointF angolo = -filmato.stage.topLeft();
  const bool intera =
      pittore_.paint(lettore_->scene(),
                     QTransform::fromTranslate(angolo.x(), angolo.y()) *
                         QTransform::fromScale(1 / kPixel.count(), 1 / kPixel.count()),
                     filmato.background, immagine);
  if (!intera) {
    lettore_->halt();
  }
  const QString file = QDir(cartella_).filePath(
      QStringLiteral("%1-%2.png").arg(nomeDiFile(nome_), nomeDiFile(scatto.nome)));
  riuscita_ = immagine.save(file, "PNG") && riuscita_;
  racconta_({{QStringLiteral("ev"), QStringLiteral("shot")},
             {QStringLiteral("step"), passo_},
             {QStringLiteral("shot"), scatto.nome},
             {QStringLiteral("file"), file},
             {QStringLiteral("size"), QJsonArray{immagine.width(), immagine.height()}}});
}

}  // namespace somme::filmato
