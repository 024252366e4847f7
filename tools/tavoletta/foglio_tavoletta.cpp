#include "tools/tavoletta/foglio_tavoletta.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

namespace somme::tavoletta {

namespace {

const QColor kGriglia(0xE4, 0xE4, 0xE4);
const QColor kTasto(0xFF, 0xF6, 0xC8);
const QColor kTastoVuoto(0xF4, 0xF4, 0xF4);
const QColor kBordo(0x40, 0x40, 0x40);
const QColor kDito(0x1E, 0x5A, 0xC8);

}  // namespace

FoglioTavoletta::FoglioTavoletta(QWidget* parent) : QWidget(parent) {
  setAccessibleName(QStringLiteral("Foglio della tastiera"));
  setMinimumSize(kColonneGriglia * 16, kRigheGriglia * 14);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void FoglioTavoletta::Mostra(const Foglio& foglio) {
  foglio_ = &foglio;
  update();
}

QPoint FoglioTavoletta::Cella(QPointF punto) const {
  const auto cella = [](double dove, int lato, int quante) {
    return std::clamp(static_cast<int>(dove * quante / lato), 0, quante - 1) + 1;
  };
  return {cella(punto.x(), width(), kColonneGriglia), cella(punto.y(), height(), kRigheGriglia)};
}

QRectF FoglioTavoletta::Area(const Zona& zona) const {
  const double x = width() / double(kColonneGriglia);
  const double y = height() / double(kRigheGriglia);
  return {(zona.colonne.da - 1) * x, (zona.righe.da - 1) * y, zona.colonne.lunga() * x,
          zona.righe.lunga() * y};
}

QPoint FoglioTavoletta::Centro(int posto) const {
  return Area(foglio_->tastiera.CelleDi(posto)).center().toPoint();
}

void FoglioTavoletta::DisegnaTasto(QPainter& pittore, int posto) const {
  constexpr double kAngolo = 8;
  const QString testo = Parola(*foglio_, posto);
  const QRectF zona = Area(foglio_->tastiera.CelleDi(posto)).adjusted(2, 2, -2, -2);
  pittore.setPen(testo.isEmpty() ? QPen(kGriglia.darker(115), 1, Qt::DashLine) : QPen(kBordo, 2));
  pittore.setBrush(testo.isEmpty() ? kTastoVuoto : kTasto);
  pittore.drawRoundedRect(zona, kAngolo, kAngolo);
  QFont carattere = font();
  carattere.setPixelSize(std::max(10, int(std::min(zona.height() / 2.6, zona.width() / 6))));
  carattere.setBold(true);
  pittore.setFont(carattere);
  pittore.setPen(Qt::black);
  pittore.drawText(zona, Qt::AlignCenter, testo);
}

void FoglioTavoletta::paintEvent(QPaintEvent* /*evento*/) {
  QPainter pittore(this);
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.fillRect(rect(), Qt::white);
  for (int posto = 1; posto <= foglio_->tastiera.Posti(); ++posto) DisegnaTasto(pittore, posto);
  pittore.setPen(QPen(QColor(0, 0, 0, 26), 1));
  for (int i = 1; i < kColonneGriglia; ++i) {
    const double x = double(width()) * i / kColonneGriglia;
    pittore.drawLine(QPointF(x, 0), QPointF(x, height()));
  }
  for (int i = 1; i < kRigheGriglia; ++i) {
    const double y = double(height()) * i / kRigheGriglia;
    pittore.drawLine(QPointF(0, y), QPointF(width(), y));
  }
  pittore.setPen(QPen(kBordo, 1));
  pittore.setBrush(Qt::NoBrush);
  pittore.drawRect(rect().adjusted(0, 0, -1, -1));
  if (toccata_.isNull()) return;
  pittore.setPen(Qt::NoPen);
  pittore.setBrush(kDito);
  pittore.drawRect(Area({{toccata_.x(), toccata_.x()}, {toccata_.y(), toccata_.y()}}));
}

void FoglioTavoletta::mousePressEvent(QMouseEvent* evento) {
  if (evento->button() != Qt::LeftButton) return;
  toccata_ = Cella(evento->position());
  update();
  Q_EMIT toccata(toccata_.x(), toccata_.y());
}

void FoglioTavoletta::mouseReleaseEvent(QMouseEvent* /*evento*/) {
  toccata_ = {};
  update();
}

}  // namespace somme::tavoletta
