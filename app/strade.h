#pragma once

#include <QtGlobal>
#include <string_view>

namespace somme {

// What the family menus lead to.
enum class Famiglia {
  NumeriTotale,
  NumeriAddendo,
  Abaco,
  BlocchiDecine,
  BlocchiCentinaia,
  Barre10,
  Barre20,
  Tabella,
};

// The form of a family that fits the way in which the pupil answers. The table has one form alone,
// whatever the mode: it is offered with mouse and keyboard only. ModalitaInput: 0 to 3.
[[nodiscard]] std::string_view Strada(Famiglia famiglia, qint16 ModalitaInput);

}  // namespace somme
