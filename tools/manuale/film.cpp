#include "tools/manuale/film.h"

#include "tools/manuale/scene.h"
#include "tools/manuale/scene_esercizi.h"

namespace manuale {

using prova::Banco;

namespace {

constexpr double kPasso = 1.0 / 12;  // seconds between two pictures
constexpr int kDurata = 54;          // pictures from the press until the result is asked for

}  // namespace

std::vector<QImage> FilmDelCambio(Banco& banco) {
  auto& forma = BlocchiUniti(banco);
  std::vector<QImage> film{Ritratto(banco)};
  // The press does not come back before the movie has ended.
  for (int i = 1; i <= kDurata; ++i) {
    banco.tempo.after(i * kPasso, [&] { film.push_back(Ritratto(banco)); });
  }
  banco.clicca(*forma.PulsanteCambio);
  banco.tempo.advance(kDurata * kPasso);
  banco.scrivi(QStringLiteral("52"));
  film.push_back(Ritratto(banco));
  banco.batti(Qt::Key_Return);
  film.push_back(Ritratto(banco));
  return film;
}

}  // namespace manuale
