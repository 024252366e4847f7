#include "tools/manuale/scene_scansione.h"

#include "app/shared/nomi_forme.h"
#include "exercises/abacus/forma_abaco_scansione.h"
#include "exercises/blocks/forma_blocchi_scansione.h"
#include "support/scansione_di_prova.h"

namespace manuale {

using namespace somme;
using prova::Banco;

namespace {

// Chooses a key of a scanning keyboard `volte` times, as a pupil with two switches does.
void Scegli(Banco& banco, const TastieraScansione& tastiera, int tasto, int volte = 1) {
  for (int i = 0; i < volte; ++i) {
    if (!prova::scegliAMano(banco, tastiera, tasto)) throw std::logic_error("the key is not lit");
  }
}
FormaBlocchiScansione& LUScansione(Banco& banco) {
  banco.ambiente->stato.ModalitaInput = kScansioneManuale;
  banco.ambiente->stato.TipoEsercizio = 3;
  banco.sorte.scrivi({{37 - 1, 99}, {23, 37}});
  return banco.apri<FormaBlocchiScansione>(forme::kFormLUScansione);
}

}  // namespace

void BarreScansione(Banco& banco) {
  banco.ambiente->stato.ModalitaInput = kScansioneAutomatica;
  banco.ambiente->stato.LimiteEsercizio = 10;
  banco.sorte.scrivi({{7 - 1, 10}, {3, 7}});
  banco.mostra(forme::kFormBarre10Scansione);
  banco.tempo.advance(3.2);
}

void BlocchiScansione(Banco& banco) {
  auto& forma = LUScansione(banco);
  Scegli(banco, forma.TastieraHDUScansione1, TastieraHDUScansione::kDecine, 2);
  Scegli(banco, forma.TastieraHDUScansione1, TastieraHDUScansione::kUnita, 3);
}
void BlocchiScansioneCifre(Banco& banco) {
  auto& forma = LUScansione(banco);
  for (const int addendo : {23, 14}) {
    Scegli(banco, forma.TastieraHDUScansione1, TastieraHDUScansione::kDecine, addendo / 10);
    Scegli(banco, forma.TastieraHDUScansione1, TastieraHDUScansione::kUnita, addendo % 10);
    Scegli(banco, forma.TastieraHDUScansione1, TastieraHDUScansione::kConferma);
  }
  banco.tempo.advance(3);
  Scegli(banco, forma.TastieraNumericaScansione1, 3);
}
void AbacoScansione(Banco& banco) {
  banco.ambiente->stato.ModalitaInput = kScansioneManuale;
  banco.ambiente->stato.TipoEsercizio = 3;
  banco.sorte.scrivi({{43 - 1, 99}, {28, 43}});
  auto& forma = banco.apri<FormaAbacoScansione>(forme::kFormAbacoScansione);
  Scegli(banco, forma.TastieraHDUScansione1, TastieraHDUScansione::kDecine, 2);
  Scegli(banco, forma.TastieraHDUScansione1, TastieraHDUScansione::kUnita, 6);
}
void NumeriScansione(Banco& banco) {
  banco.ambiente->stato.ModalitaInput = kScansioneAutomatica;
  banco.ambiente->stato.TipoEsercizio = 7;
  banco.sorte.scrivi({{74, 99}, {47, 75}});
  banco.mostra(forme::kFormNumeriTotaleScansione);
  banco.tempo.advance(4.2);
}

}  // namespace manuale
