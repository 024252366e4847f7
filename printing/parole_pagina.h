#pragma once

namespace platform::inline forms {
struct PageSetupWords;
}
namespace somme::inline condiviso {
class Ambiente;
}

namespace somme::inline stampa {

// The words of the page set-up: from section "PageSetup" of the language file, or the Italian ones.
[[nodiscard]] platform::PageSetupWords ParolePagina(Ambiente& ambiente);

}  // namespace somme::inline stampa
