#pragma once

#include <functional>
#include <optional>

#include "platform/forms/controls/text_box.h"

namespace somme {

// Lets a plain text box take digits and Backspace alone, and calls `conferma` at each release of
// Enter in it, locked or not.
void RaccogliCifre(platform::TextBox& casella, std::function<void()> conferma);

// The number that a text box holds; none for blanks alone, which are no answer.
[[nodiscard]] std::optional<double> NumeroScritto(const platform::TextBox& casella);

}  // namespace somme
