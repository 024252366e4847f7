#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "app/shared/nomi_forme.h"
#include "app/tabella_forme.h"
#include "exercises/core/disegno_comune.h"
#include "exercises/core/forma_esercizio.h"
#include "exercises/core/input_tocco.h"
#include "support/banco.h"
#include "support/controfigura.h"

// A touch form of the tests' own, in the program.
namespace prova {

inline constexpr std::string_view kNome = "FormDiProva";
inline constexpr std::string_view kFoglio = somme::forme::kFormStampaPLU;

// A touch form of the test's own: it writes down its life and its keys.
class FormDiProva final : public somme::FormaEsercizio {
 public:
  explicit FormDiProva(somme::Ambiente& ambiente);

  platform::ControlArray<platform::Socket> ControlloConnessione{*this};
  platform::MenuItem mnuStampaHK{*this};

  [[nodiscard]] bool HelpiKeysConnesso() const { return tocco_.HelpiKeysConnesso(); }
  [[nodiscard]] int DecodificaSegnali(int colonna, int riga) const {
    return tocco_.DecodificaSegnali(colonna, riga);
  }
  using Form::newCase;

  std::vector<somme::Tasto> tasti;
  std::function<void()> alTasto;
  int attivazioni = 0;
  int casi = 0;
  bool HelpiKeysAllAttivazione = false;

 protected:
  void IniziaAttivazione() override {
    ++attivazioni;
    HelpiKeysAllAttivazione = HelpiKeysConnesso();
  }
  void NuovoCaso() override {
    newCase();
    ++casi;
  }

 private:
  somme::InputTocco tocco_{*this, ControlloConnessione, mnuStampaHK, [this](somme::Tasto tasto) {
                             tasti.push_back(tasto);
                             if (alTasto) alTasto();
                           }};
};

inline constexpr auto kRighe = std::to_array<platform::Row>({
    somme::nucleo::disegno::Connessione<FormDiProva>(),
    platform::item<&FormDiProva::mnuStampaHK>({.caption = "Foglio"}),
    platform::item<&FormDiProva::mnuEsci>({.caption = "Esci"}),
});
inline constexpr std::array<std::span<const platform::Row>, 1> kTavole{kRighe};
inline constexpr platform::FormDesign kDisegno{
    .name = kNome, .caption = "", .width = 9000, .height = 6000, .tables = kTavole};

inline FormDiProva::FormDiProva(somme::Ambiente& ambiente) : FormaEsercizio(ambiente, kDisegno) {
  Usa(tocco_);
}

// The program with the touch form of the test, and a stand-in for its keyboard sheet.
inline somme::TabellaForme conFormDiProva() {
  static const std::vector<somme::SchedaForma> forme = [] {
    const somme::TabellaForme vere = somme::LeForme();
    std::vector<somme::SchedaForma> tutte(vere.begin(), vere.end());
    for (somme::SchedaForma& scheda : tutte) {
      if (scheda.nome != kFoglio) continue;
      scheda.crea = [](somme::Ambiente& ambiente,
                       std::string_view) -> std::shared_ptr<platform::Form> {
        return std::make_shared<Controfigura>(ambiente, kFoglio);
      };
    }
    tutte.push_back({.nome = kNome,
                     .crea = [](somme::Ambiente& ambiente,
                                std::string_view) -> std::shared_ptr<platform::Form> {
                       return std::make_shared<FormDiProva>(ambiente);
                     },
                     .genere = somme::Genere::Esercizio,
                     .menu = somme::forme::kFormMenuPLU,
                     .foglio = kFoglio});
    return tutte;
  }();
  return forme;
}

struct Scena : Banco {
  Scena() : Banco({800, 600}, {}, conFormDiProva()) {}
  FormDiProva& apri() { return Banco::apri<FormDiProva>(kNome); }
  // The form after HelpiKeys has answered.
  FormDiProva& apriPronta() {
    FormDiProva& forma = apri();
    rete.manda("OK");
    messaggi.mostrati.clear();
    return forma;
  }
  [[nodiscard]] QString errore() const {
    return messaggi.mostrati.empty() ? QString() : messaggi.mostrati.back().text;
  }
};

}  // namespace prova
