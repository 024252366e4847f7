#pragma once

#include "app/shared/nomi_forme.h"
#include "exercises/abacus/form_abaco.h"
#include "support/banco.h"

// What the tests of the abacus have in common.
namespace prova {

inline constexpr int kAlfa = 6;

// The program on the abacus, at a level of the family.
struct BancoAbaco : Banco {
  explicit BancoAbaco(qint16 tipo, const std::vector<SorteDiProva::Estrazione>& caso = {})
      : Banco({760, 540}), forma(prepara(tipo, caso)) {}

  // The case `totale` = `addendo1` + rest, of the levels that split a sum anywhere.
  static std::vector<SorteDiProva::Estrazione> caso(qint16 tipo, int totale, int addendo1) {
    const int limite = tipo == 3 ? 99 : tipo == 11 ? 988 : 9888;
    return {{totale - 1, limite}, {addendo1, totale}};
  }

  static QString clip(const char* nome, int numero) {
    return QString::fromLatin1(nome) + QString::number(numero);
  }
  [[nodiscard]] bool vede(const char* nome, int numero) const {
    return siVede(forma.ShockwaveFlash1, clip(nome, numero));
  }
  // The numbers of a kind's clips that are shown: "0 1 2".
  [[nodiscard]] QString visti(const char* nome) const {
    QStringList numeri;
    for (int i = 0; i < 10; ++i) {
      if (vede(nome, i)) numeri += QString::number(i);
    }
    return numeri.join(u' ');
  }
  [[nodiscard]] int alfa(const char* nome, int numero) const {
    return qRound(proprieta(forma.ShockwaveFlash1, clip(nome, numero), kAlfa).toDouble());
  }
  void tocca(const char* nome, int numero) {
    cliccaClip(forma.ShockwaveFlash1, clip(nome, numero));
  }
  // Puts so many of the waiting beads onto their spike, from bead `primo` on.
  void metti(const char* inAttesa, int quante, int primo = 0) {
    for (int i = primo; i < primo + quante; ++i) tocca(inAttesa, i);
  }
  void rispondi(const QString& numero) {
    scrivi(numero);
    batti(Qt::Key_Return);
  }
  [[nodiscard]] QString detto() const {
    return forma.ShockwaveFlash1.widget()->accessibleDescription();
  }

  somme::FormAbaco& forma;

 private:
  somme::FormAbaco& prepara(qint16 tipo, const std::vector<SorteDiProva::Estrazione>& caso) {
    tempo.setNow(64);  // early in the day a wait of 0.03 seconds is just that
    ambiente->stato.TipoEsercizio = tipo;
    ambiente->stato.TitoloEsercizio = QStringLiteral("Abaco. Entro 99: prova");
    sorte.scrivi(caso);
    return apri<somme::FormAbaco>(somme::forme::kFormAbaco);
  }
};

inline constexpr const char* kTutti = "0 1 2 3 4 5 6 7 8 9";

}  // namespace prova
