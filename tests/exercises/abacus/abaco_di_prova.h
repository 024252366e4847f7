#pragma once

#include <QAccessible>

#include "app/shared/nomi_forme.h"
#include "exercises/abacus/forma_abaco_tastiera.h"
#include "support/banco.h"

// What the tests of the abacus have in common.
namespace prova {

inline constexpr const char* kTutti = "0 1 2 3 4 5 6 7 8 9";

// The places of the abacus from the left, with the names of the movie's clips, which have a bead's
// number behind them.
struct Ferro {
  somme::Posto posto;
  const char* sulFerro;
  const char* inAttesa;
};
inline constexpr Ferro kFerri[] = {{somme::Posto::Migliaia, "k", "ka"},
                                   {somme::Posto::Centinaia, "h", "ha"},
                                   {somme::Posto::Decine, "da", "daa"},
                                   {somme::Posto::Unita, "u", "ua"}};

// The two cross-fades of a carry, with the clock in the test's hand.
inline constexpr double kPassoDelCambio = 0.03;  // seconds
inline constexpr int kPassiDelCambio = 100;      // of each cross-fade
inline constexpr double kDurataDelCambio = 2 * kPassiDelCambio * kPassoDelCambio;

// A moment inside a wait of a carry: in the middle of step `passo`, counted from 0 over both
// cross-fades.
constexpr double nelPasso(int passo) {
  return (passo + 0.5) * kPassoDelCambio;
}

// A window in which a board is drawn quickly, and its beads can still be hit: a carry draws it
// hundreds of times.
inline constexpr QSize kFinestraPiccola{380, 270};

// The program on a form of the abacus, at a level of the family.
template <class F>
struct BancoDellAbaco : Banco {
  using Caso = std::vector<SorteDiProva::Estrazione>;

  BancoDellAbaco(std::string_view nome, qint16 tipo, const Caso& caso, qint16 modo,
                 QSize lato = {760, 540})
      : Banco(lato), forma(prepara(nome, tipo, caso, modo)) {}

  // The case `totale` = `addendo1` + rest, of the levels that split a sum anywhere.
  static Caso caso(qint16 tipo, int totale, int addendo1) {
    const int limite = tipo == 3 ? 99 : tipo == 11 ? 988 : 9888;
    return {{totale - 1, limite}, {addendo1, totale}};
  }

  // A case for any level: those that draw digit by digit may draw for ever.
  static Caso casoDelLivello(int tipo) {
    if (tipo == 1) return caso(3, 82, 47);
    if (tipo == 6) return {{7, 9}, {8, 10}, {6, 10}, {4, 8}, {4, 8}, {3, 6}};
    if (tipo == 15) return {{7, 10}, {8, 10}, {6, 10}, {5, 10}, {4, 8}, {4, 8}, {3, 6}, {2, 5}};
    return {};
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
    return qRound(
        proprieta(forma.ShockwaveFlash1, clip(nome, numero), platform::Board::Property::Alpha)
            .toDouble());
  }
  // A click on a bead.
  void tocca(const char* nome, int numero) {
    cliccaClip(forma.ShockwaveFlash1, clip(nome, numero));
  }
  // What assistive technology is told of the abacus.
  [[nodiscard]] QString detto() const {
    return forma.ShockwaveFlash1.widget()->accessibleDescription();
  }
  [[nodiscard]] double adesso() const { return tempo.secondsSinceMidnight(); }
  [[nodiscard]] QString fileDelSuono(const char* nome) const {
    return percorso(QStringLiteral("suoni/%1.wav").arg(QLatin1String(nome)));
  }

  F& forma;

 private:
  F& prepara(std::string_view nome, qint16 tipo, const Caso& caso, qint16 modo) {
    tempo.setNow(64);  // early in the day a wait of 0.03 seconds is just that
    ambiente->stato.TipoEsercizio = tipo;
    ambiente->stato.ModalitaInput = modo;
    ambiente->stato.TitoloEsercizio = QStringLiteral("Abaco. Entro 99: prova");
    sorte.scrivi(caso);
    return apri<F>(nome);
  }
};

// The same with mouse and keyboard.
struct BancoAbaco : BancoDellAbaco<somme::FormaAbacoTastiera> {
  explicit BancoAbaco(qint16 tipo, const Caso& caso = {}, QSize lato = {760, 540})
      : BancoDellAbaco(somme::forme::kFormAbaco, tipo, caso, 0, lato) {}

  // Puts so many of the waiting beads onto their spike, from bead `primo` on.
  void metti(const char* inAttesa, int quante, int primo = 0) {
    for (int i = primo; i < primo + quante; ++i) tocca(inAttesa, i);
  }
  // Assistive technology presses the first bead that is there by that name; false without one.
  static bool premiPallina(const somme::FormaAbacoTastiera& forma, const QString& nome) {
    QAccessibleInterface* abaco =
        QAccessible::queryAccessibleInterface(forma.ShockwaveFlash1.widget());
    for (int i = 0; i < abaco->childCount(); ++i) {
      QAccessibleInterface* pallina = abaco->child(i);
      if (pallina->text(QAccessible::Name) != nome || pallina->state().invisible) continue;
      pallina->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
      QCoreApplication::processEvents();
      return true;
    }
    return false;
  }
  void rispondi(const QString& numero) {
    scrivi(numero);
    batti(Qt::Key_Return);
  }
};

}  // namespace prova
