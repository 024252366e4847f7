#include "tools/immagini/registratore.h"

#include <QPainter>
#include <QStringList>
#include <QSvgRenderer>
#include <QXmlStreamReader>

namespace somme {

namespace {

QStringList Nomi(const QByteArray& svg) {
  QStringList nomi;
  QXmlStreamReader lettore(svg);
  while (!lettore.atEnd()) {
    if (lettore.readNext() != QXmlStreamReader::StartElement) continue;
    const QString nome = lettore.attributes().value(QStringLiteral("id")).toString();
    if (!nome.isEmpty()) nomi += nome;
  }
  return nomi;
}

}  // namespace

std::optional<platform::Drawing> Registra(const QByteArray& svg) {
  QSvgRenderer disegno;
  if (!disegno.load(svg)) return std::nullopt;
  const auto registrato = [](const auto& disegna) {
    QPicture registro;
    QPainter pennello(&registro);
    disegna(&pennello);
    return registro;
  };
  platform::Drawing fatto;
  const QRectF riquadro = disegno.viewBoxF();
  fatto.setWhole(riquadro,
                 registrato([&](QPainter* pennello) { disegno.render(pennello, riquadro); }));
  for (const QString& nome : Nomi(svg)) {
    if (!disegno.elementExists(nome)) continue;
    const QRectF dove = disegno.boundsOnElement(nome);
    fatto.addPart(nome, dove,
                  registrato([&](QPainter* pennello) { disegno.render(pennello, nome, dove); }));
  }
  return fatto;
}

}  // namespace somme
