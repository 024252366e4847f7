#pragma once

#include <QLineEdit>
#include <functional>

#include "platform/forms/controls/button.h"
#include "platform/forms/controls/label.h"
#include "platform/forms/controls/text_box.h"
#include "platform/forms/proportional_layout.h"
#include "support/fondo_di_prova.h"

// Text boxes on a form of the tests' own.
namespace casella {

// A form with a box for four digits and a label in its row, a locked box, and a button beside them.
class Prova : public platform::Form {
 public:
  explicit Prova(platform::Runtime& runtime);

  platform::TextBox Casella{*this};
  platform::Label Scritta{*this};
  platform::TextBox Bloccata{*this};
  platform::Button Bottone{*this};

  std::function<void(int&)> filtro;
  QList<int> rilasciati;
  QStringList cambiamenti;

 protected:
  void onLoad() override { layout_.start(); }
  void onResize() override { layout_.resize(); }

 private:
  platform::ProportionalLayout layout_{*this};
};

inline constexpr auto kRighe = std::to_array<platform::Row>({
    platform::row<&Prova::Casella>(
        {1000, 1000, 3000, 900},
        {.toolTip = "Il numero", .font = {platform::Face::Tahoma, 24}, .maxLength = 4}),
    platform::row<&Prova::Scritta>({5000, 1000, 3000, 900},
                                   {.caption = "1082", .font = {platform::Face::Tahoma, 24}}),
    platform::row<&Prova::Bloccata>({1000, 3000, 3000, 900},
                                    {.caption = "fermo", .border = true, .locked = true}),
    platform::row<&Prova::Bottone>({1000, 5000, 3000, 900}, {.caption = "vai"}),
});
inline constexpr std::array<std::span<const platform::Row>, 1> kTavole{kRighe};
inline constexpr platform::FormDesign kDisegno{
    .name = "Prova", .caption = "Prova", .width = 15000, .height = 10500, .tables = kTavole};

inline Prova::Prova(platform::Runtime& runtime) : Form(runtime, kDisegno) {
  Casella.onKeyPress([this](int& tasto) {
    if (filtro) filtro(tasto);
  });
  Casella.onKeyUp([this](int tasto) { rilasciati.append(tasto); });
  Casella.onChange([this] { cambiamenti.append(Casella.text()); });
}

using Fondo = prova::FondoDiProva<Prova>;

inline QLineEdit& rigaDi(platform::TextBox& casella) {
  return *qobject_cast<QLineEdit*>(casella.widget());
}

}  // namespace casella
