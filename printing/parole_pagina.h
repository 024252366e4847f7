#pragma once

namespace platform {
struct PageSetupWords;
}

namespace somme {

class Ambiente;

// The words of the page set-up: from section "PageSetup" of the language file, or the Italian ones.
[[nodiscard]] platform::PageSetupWords ParolePagina(Ambiente& ambiente);

}  // namespace somme
