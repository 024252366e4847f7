#include "exercises/core/scansione.h"

#include <array>

#include "app/shared/mod_language_support.h"

namespace somme::inline nucleo {

namespace {

struct NomeTasto {
  int tasto;
  const char* chiave;
  const char16_t* italiano;
};

constexpr auto kNomiNumerica = std::to_array<NomeTasto>({
    {TastieraNumericaScansione::kCestino, "PulsanteNumero(10).ToolTipText", u"Cancella"},
    {TastieraNumericaScansione::kAiuto, "PulsanteNumero(11).ToolTipText", u"Aiuto"},
    {TastieraNumericaScansione::kConferma, "PulsanteNumero(12).ToolTipText", u"Conferma"},
    {TastieraNumericaScansione::kAvanti, "PulsanteNumero(13).ToolTipText", u"Avanti"},
});
constexpr auto kNomiHDU = std::to_array<NomeTasto>({
    {TastieraHDUScansione::kCestino, "Pulsante(4).ToolTipText", u"Cestino"},
    {TastieraHDUScansione::kConferma, "Pulsante(5).ToolTipText", u"Conferma"},
});

void Nomina(Ambiente& ambiente, const QString& sezione, std::span<const NomeTasto> nomi,
            TastieraScansione& tastiera) {
  for (const NomeTasto& nome : nomi) {
    tastiera.DaiNome(nome.tasto, ParolaLingua(ambiente, sezione, nome.chiave,
                                              QString::fromUtf16(nome.italiano)));
  }
}

}  // namespace

void PosaTastiera(TastieraScansione& tastiera, const platform::Control& etichetta) {
  tastiera.setWidth(etichetta.width());
  tastiera.setTop(etichetta.top());
  tastiera.setLeft(etichetta.left());
}

void NominaTasti(Ambiente& ambiente, TastieraNumericaScansione& tastiera) {
  Nomina(ambiente, QStringLiteral("TastieraNumericaScansione"), kNomiNumerica, tastiera);
}

void NominaTasti(Ambiente& ambiente, TastieraHDUScansione& tastiera) {
  Nomina(ambiente, QStringLiteral("TastieraHDUScansione"), kNomiHDU, tastiera);
}

}  // namespace somme::inline nucleo
