#pragma once

#include <functional>
#include <optional>

#include "platform/forms/control_array.h"
#include "platform/forms/controls/label.h"
#include "platform/forms/controls/text_box.h"

namespace somme::inline nucleo {

// Lets a plain text box take digits and Backspace alone, and calls `conferma` at each release of
// Enter in it, locked or not.
void RaccogliCifre(platform::TextBox& casella, std::function<void()> conferma);

// The number that a text box holds; none for blanks alone, which are no answer.
[[nodiscard]] std::optional<double> NumeroScritto(const platform::TextBox& casella);

// A number that is shown digit by digit, on labels from its highest place to the units, is one
// number for whoever listens: the label of its first digit says it. Called while none of them is
// shown. numero: not negative.
void LeggiInsieme(platform::ControlArray<platform::Label>& cifre, int numero);

}  // namespace somme::inline nucleo
