#include "support/controfigura.h"

#include "app/tabella_forme.h"

namespace prova {

namespace {

bool ePagina(std::string_view nome) {
  const somme::SchedaForma scheda = somme::SchedaDi(somme::LeForme(), nome);
  return scheda.crea != nullptr &&
         (scheda.genere == somme::Genere::Pagina || scheda.genere == somme::Genere::Menu);
}

}  // namespace

std::shared_ptr<platform::Form> SenzaEsercizi(somme::Ambiente& ambiente, std::string_view nome) {
  if (ePagina(nome)) return somme::CreaForma(ambiente, nome);
  return std::make_shared<Controfigura>(ambiente, nome);
}

}  // namespace prova
