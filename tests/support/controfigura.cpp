#include "support/controfigura.h"

#include "app/shared/nomi_forme.h"
#include "app/tabella_forme.h"

namespace prova {

namespace {

bool ePagina(std::string_view nome) {
  return nome == somme::forme::kFormAvvio || nome == somme::forme::kFormInfo ||
         nome.starts_with(somme::forme::kFormMenu);
}

}  // namespace

std::shared_ptr<platform::Form> SenzaEsercizi(somme::Ambiente& ambiente, std::string_view nome) {
  if (ePagina(nome)) return somme::CreaForma(ambiente, nome);
  return std::make_shared<Controfigura>(ambiente, nome);
}

}  // namespace prova
