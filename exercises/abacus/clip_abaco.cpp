#include "exercises/abacus/clip_abaco.h"

#include <array>

namespace somme::inline abaco {

namespace {

// The clips' names without their number.
struct Clip {
  QLatin1String sulFerro;
  QLatin1String inAttesa;
};
constexpr std::array<Clip, kPosti> kClip{{{QLatin1String("u"), QLatin1String("ua")},
                                          {QLatin1String("da"), QLatin1String("daa")},
                                          {QLatin1String("h"), QLatin1String("ha")},
                                          {QLatin1String("k"), QLatin1String("ka")}}};

constexpr const Clip& ClipDi(Posto posto) {
  return kClip[static_cast<std::size_t>(posto)];
}

}  // namespace

QString ClipSulFerro(Posto posto, int numero) {
  return ClipDi(posto).sulFerro + QString::number(numero);
}

QString ClipInAttesa(Posto posto, int numero) {
  return ClipDi(posto).inAttesa + QString::number(numero);
}

}  // namespace somme::inline abaco
