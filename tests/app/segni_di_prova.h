#pragma once

#include <QImage>
#include <algorithm>
#include <functional>
#include <map>
#include <vector>

#include "platform/forms/control.h"
#include "platform/forms/text_block.h"

// How marks are measured, on what is painted.
namespace prova {

inline QImage Ritratto(const platform::Control& controllo) {
  return controllo.widget()->grab().toImage();
}

// The colour that most of a picture has.
inline QRgb Fondo(const QImage& immagine) {
  std::map<QRgb, int> quante;
  for (int y = 0; y < immagine.height(); ++y) {
    for (int x = 0; x < immagine.width(); ++x) ++quante[immagine.pixel(x, y)];
  }
  return std::ranges::max_element(quante, {}, [](const auto& una) { return una.second; })->first;
}

// A picture with the mark and one without it. Without any of its own, the ground is the colour that
// most of the picture has. `tra`: the grounds that a mark lies between; it must stand out of each.
// Else it is held against what it covers, which may be an outline that it only replaces.
struct Coppia {
  QImage con;
  QImage senza = {};
  std::vector<QColor> tra = {};
};

// A ring round a control, and what lies `intorno` pixels round it: `spoglia` takes the ring off. It
// lies between the ground round the control and the control's own.
[[nodiscard]] inline Coppia Anello(const QWidget& controllo, int intorno,
                                   const std::function<void()>& spoglia) {
  QWidget* finestra = controllo.window();
  const QRect posto(controllo.mapTo(finestra, QPoint()), controllo.size());
  const auto ritratto = [finestra](const QRect& parte) { return finestra->grab(parte).toImage(); };
  const QRect tutto = posto.adjusted(-intorno, -intorno, intorno, intorno);
  const QImage con = ritratto(tutto);
  spoglia();
  const QRect sopra(tutto.topLeft(), QSize(tutto.width(), intorno));
  return {con, ritratto(tutto), {QColor(Fondo(ritratto(sopra))), QColor(Fondo(ritratto(posto)))}};
}

// The contrast that the core of a mark reaches: a third of the pixels by which the pictures differ.
// Edges are smoothed, and what an outline encloses may be pale. 1 for no mark at all.
[[nodiscard]] inline double Spicca(const Coppia& coppia) {
  constexpr int kVisibile = 12;  // of 255
  const QColor fondo(Fondo(coppia.con));
  std::vector<std::vector<double>> contrasti(std::max<std::size_t>(1, coppia.tra.size()));
  for (int y = 0; y < coppia.con.height(); ++y) {
    for (int x = 0; x < coppia.con.width(); ++x) {
      const QColor segno = coppia.con.pixelColor(x, y);
      const QColor sotto = coppia.senza.isNull() ? fondo : coppia.senza.pixelColor(x, y);
      const int scarto =
          std::max({std::abs(segno.red() - sotto.red()), std::abs(segno.green() - sotto.green()),
                    std::abs(segno.blue() - sotto.blue())});
      if (scarto <= kVisibile) continue;
      for (std::size_t i = 0; i < contrasti.size(); ++i) {
        contrasti[i].push_back(
            platform::contrast(segno, coppia.tra.empty() ? sotto : coppia.tra[i]));
      }
    }
  }
  constexpr std::size_t kFewest = 6;  // pixels of the smallest mark
  if (contrasti.front().size() < kFewest) return 1;
  double minimo = 21;
  for (std::vector<double>& uno : contrasti) {
    std::ranges::sort(uno, std::greater());
    minimo = std::min(minimo, uno[uno.size() / 3]);
  }
  return minimo;
}

// The part of a picture from so many hundredths of its width and height on, to others.
[[nodiscard]] inline QImage Parte(const QImage& immagine, int sinistra, int alto, int destra,
                                  int basso) {
  const int w = immagine.width();
  const int h = immagine.height();
  return immagine.copy(QRect(QPoint(w * sinistra / 100, h * alto / 100),
                             QPoint(w * destra / 100 - 1, h * basso / 100 - 1)));
}

}  // namespace prova
