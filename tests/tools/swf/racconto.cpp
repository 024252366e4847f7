#include "tests/tools/swf/racconto.h"

#include <cmath>

namespace prove {

namespace {

using namespace platform::flash;

QString colore(QRgb c) {
  return QString::number(c, 16);
}

QString tinta(const Paint& paint) {
  if (paint.kind == Paint::Kind::Solid) return QStringLiteral("tinta ") + colore(paint.color);
  if (paint.kind == Paint::Kind::Nothing) return QStringLiteral("niente");
  QString testo = paint.gradient.radial ? QStringLiteral("radiale") : QStringLiteral("lineare");
  for (const Gradient::Stop& stop : paint.gradient.stops) {
    testo += QStringLiteral(" %1:%2").arg(stop.ratio).arg(colore(stop.color));
  }
  return testo;
}

// A fill is what its edges enclose, wherever each contour is begun and in whatever order they come;
// a line goes from piece to piece.
QString segni(const Outline& contorno, bool linea) {
  QStringList pezzi;
  for (const Outline::Segment& s : contorno.segments()) {
    using Kind = Outline::Segment::Kind;
    if (!linea && s.kind == Kind::Move) continue;
    pezzi += pezzo(s.kind == Kind::Move   ? 'v'
                   : s.kind == Kind::Line ? 'l'
                                          : 'c',
                   QPoint(int(s.controlX), int(s.controlY)), QPoint(int(s.x), int(s.y)));
  }
  if (!linea) pezzi.sort();
  return pezzi.join(u' ');
}

QString raccontoDi(const PlaceCommand& posa) {
  QString testo = QStringLiteral("%1 %2")
                      .arg(posa.mode == PlaceCommand::Mode::Move    ? u"muovi"
                           : posa.mode == PlaceCommand::Mode::Place ? u"poni"
                                                                    : u"cambia")
                      .arg(posa.depth);
  if (posa.mode != PlaceCommand::Mode::Move) testo += QStringLiteral(" che %1").arg(posa.character);
  if (posa.matrix) testo += u' ' + matrice(*posa.matrix);
  if (posa.color) {
    testo += QStringLiteral(" colore");
    for (std::size_t i = 0; i < 4; ++i) {
      testo += QStringLiteral(" %1/%2").arg(posa.color->multiply[i] * 256).arg(posa.color->add[i]);
    }
  }
  if (posa.name) testo += QStringLiteral(" nome ") + *posa.name;
  return testo;
}

QStringList raccontoDi(const Timeline& linea) {
  QStringList righe;
  for (int i = 0; i < linea.frameCount(); ++i) {
    QStringList nomi = linea.labels.keys(i);
    nomi.sort();
    righe += QStringLiteral("fotogramma %1 %2").arg(i + 1).arg(nomi.join(u' '));
    for (const Command& comando : linea.frames[std::size_t(i)].commands) {
      if (const auto* posa = std::get_if<PlaceCommand>(&comando)) {
        righe += raccontoDi(*posa);
      } else if (const auto* toglie = std::get_if<RemoveCommand>(&comando)) {
        righe += QStringLiteral("togli %1").arg(toglie->depth);
      } else if (const auto* azioni = std::get_if<DoActionCommand>(&comando)) {
        righe += QStringLiteral("esegui ") + byteInCifre(azioni->actions);
      }
    }
  }
  return righe;
}

QStringList raccontoDi(const Button& pulsante) {
  QStringList righe;
  for (const ButtonRecord& aspetto : pulsante.records) {
    PlaceCommand posa;
    posa.depth = aspetto.depth;
    posa.character = aspetto.character;
    posa.matrix = aspetto.matrix;
    posa.color = aspetto.color;
    righe += QStringLiteral("stati %1 ").arg(aspetto.states) + raccontoDi(posa);
  }
  for (const ButtonHandler& azioni : pulsante.handlers) {
    righe += QStringLiteral("su %1 ").arg(azioni.events) + byteInCifre(azioni.actions);
  }
  return righe;
}

QStringList raccontoDi(const Shape& forma) {
  QStringList righe;
  for (const ShapePart& parte : forma.parts) {
    righe += (parte.isLine ? QStringLiteral("penna %1 ").arg(parte.lineWidth)
                           : QStringLiteral("pieno ")) +
             tinta(parte.paint) + u' ' + segni(parte.outline, parte.isLine);
  }
  return righe;
}

QStringList raccontoDi(const Character& che) {
  if (const auto* forma = che.as<Shape>()) return raccontoDi(*forma);
  if (const auto* clip = che.as<Sprite>()) return raccontoDi(clip->timeline);
  if (const auto* pulsante = che.as<Button>()) return raccontoDi(*pulsante);
  return {QStringLiteral("altro")};
}

}  // namespace

QString pezzo(char tipo, QPoint controllo, QPoint fine) {
  QString testo = QStringLiteral("%1%2,%3").arg(QLatin1Char(tipo)).arg(fine.x()).arg(fine.y());
  if (tipo == 'c') testo += QStringLiteral("(%1,%2)").arg(controllo.x()).arg(controllo.y());
  return testo;
}

QString matrice(const QTransform& m) {
  QString testo = QStringLiteral("matrice");
  for (const double fattore : {m.m11(), m.m12(), m.m21(), m.m22()}) {
    testo += QStringLiteral(" %1").arg(std::llround(fattore * 65536));
  }
  return testo + QStringLiteral(" %1 %2").arg(m.dx()).arg(m.dy());
}

QString byteInCifre(std::span<const std::uint8_t> byte) {
  return QString::fromLatin1(
      QByteArray(reinterpret_cast<const char*>(byte.data()), qsizetype(byte.size())).toHex());
}

QStringList raccontoDi(const Movie& filmato) {
  QStringList righe{QStringLiteral("palco %1 %2 cadenza %3 fotogrammi %4 sfondo %5 guasti %6")
                        .arg(filmato.stage.width())
                        .arg(filmato.stage.height())
                        .arg(filmato.frameRate)
                        .arg(filmato.announcedFrames)
                        .arg(colore(filmato.background))
                        .arg(filmato.faults.size())};
  for (std::size_t numero = 1; numero <= filmato.characters.size(); ++numero) {
    righe += QStringLiteral("carattere %1").arg(numero);
    if (const Character* che = filmato.character(CharacterId(numero))) righe += raccontoDi(*che);
  }
  righe += QStringLiteral("scena");
  return righe + raccontoDi(filmato.timeline);
}

}  // namespace prove
