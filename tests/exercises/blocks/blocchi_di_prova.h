#pragma once

#include <QSignalSpy>

#include "app/shared/nomi_forme.h"
#include "platform/boards/board.h"
#include "platform/flash/movie_view.h"
#include "platform/forms/controls/label.h"
#include "support/banco.h"

// The pupil's hands and eyes at the blocks.
namespace prova {

// How many blocks of a kind stand on a board; -1 where they are not the first so many.
inline int blocchi(const platform::Board& tavola, const QString& clip, int da = 1) {
  int quanti = 0;
  bool finiti = false;
  for (int i = da; !Banco::proprieta(tavola, clip + QString::number(i), 7).isEmpty(); ++i) {
    const bool visto = Banco::siVede(tavola, clip + QString::number(i));
    if (visto && finiti) return -1;
    finiti = !visto;
    quanti += visto ? 1 : 0;
  }
  return quanti;
}

// The blocks of a board as "3da 4u"; kinds: "da u" or "h da u".
inline QString contenuto(const platform::Board& tavola, const QString& specie) {
  QStringList parti;
  for (const QString& clip : specie.split(u' ')) {
    parti += QString::number(blocchi(tavola, clip)) + clip;
  }
  return parti.join(u' ');
}

inline void ripeti(Banco& banco, const platform::Control& pulsante, int volte) {
  for (int i = 0; i < volte; ++i) banco.clicca(pulsante);
}

// Puts the blocks of a number on the board in use.
template <class F>
void costruisci(Banco& banco, F& forma, int numero) {
  if constexpr (requires { forma.PulsanteH; }) {
    ripeti(banco, forma.PulsanteH, numero / 100);
    ripeti(banco, forma.PulsanteDa, numero / 10 % 10);
  } else {
    ripeti(banco, forma.PulsanteDa, numero / 10);
  }
  ripeti(banco, forma.PulsanteU, numero % 10);
}

// Builds both addends and has them judged; the two seconds before the boards are joined pass.
template <class F>
void unisci(Banco& banco, F& forma) {
  costruisci(banco, forma, banco.ambiente->stato.Addendo1);
  banco.clicca(forma.PulsanteConferma);
  costruisci(banco, forma, banco.ambiente->stato.Addendo2);
  banco.clicca(forma.PulsanteConferma);
}

template <class F>
void rispondi(Banco& banco, F& forma, const QString& testo) {
  while (!forma.TestoInput.text().isEmpty()) banco.batti(Qt::Key_Backspace);
  banco.scrivi(testo);
  banco.batti(Qt::Key_Return);
}

// The frame stands around the board that the label keeps a place for, nine twips outside of it.
template <class F>
bool incorniciata(const F& forma, const platform::Label& ancora) {
  const auto vicino = [](double a, double b) { return std::abs(a - b) < 0.01; };
  return forma.Shape1.isVisible() && vicino(forma.Shape1.left(), ancora.left() - 9) &&
         vicino(forma.Shape1.top(), ancora.top() - 9) &&
         vicino(forma.Shape1.width(), ancora.width() + 18) &&
         vicino(forma.Shape1.height(), ancora.height() + 18);
}

// Counts the paints of boards on which a clip is seen that nobody has put there.
class OcchioSuiBlocchi final : public QObject {
 public:
  explicit OcchioSuiBlocchi(QString clip) : clip_(std::move(clip)) {
    qApp->installEventFilter(this);
  }
  bool eventFilter(QObject* oggetto, QEvent* evento) override {
    if (evento->type() != QEvent::Paint) return false;
    const auto* filmato = qobject_cast<platform::flash::MovieView*>(oggetto);
    if (filmato == nullptr) return false;
    ++dipinti;
    if (filmato->clipProperty(clip_, 7) == QStringLiteral("1")) ++visti;
    return false;
  }

  int dipinti = 0;
  int visti = 0;

 private:
  QString clip_;
};

}  // namespace prova
