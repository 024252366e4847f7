#pragma once

#include <QDir>
#include <QEvent>
#include <QRegularExpression>
#include <QSignalSpy>

#include "app/shared/nomi_forme.h"
#include "platform/boards/board.h"
#include "platform/flash/movie_view.h"
#include "platform/forms/controls/label.h"
#include "support/banco.h"

// The pupil's hands and eyes at the blocks.
namespace prova {

using Sorte = std::vector<SorteDiProva::Estrazione>;

// The kinds of blocks up to 99 and up to 999.
inline const QString kSpecieLU = QStringLiteral("da u");
inline const QString kSpecieHLU = QStringLiteral("h da u");

// The levels with and without carries, up to 99 and up to 999, and what they draw for a case.
inline constexpr qint16 kConESenzaCambio = 3;
inline constexpr qint16 kConESenzaCambi = 6;
inline Sorte casoLU(int addendo1, int addendo2) {
  const int totale = addendo1 + addendo2;
  return {{totale - 1, 99}, {addendo1, totale}};
}
inline Sorte casoHLU(int addendo1, int addendo2) {
  const int totale = addendo1 + addendo2;
  return {{totale - 1, 988}, {addendo1, totale}};
}

// How many blocks of a kind stand on a board; -1 where they are not the first so many.
inline int blocchi(const platform::Board& tavola, const QString& clip, int da = 1) {
  int quanti = 0;
  bool finiti = false;
  const auto ce = [&](int i) {
    return !Banco::proprieta(tavola, clip + QString::number(i), platform::Board::Property::Visible)
                .isEmpty();
  };
  for (int i = da; ce(i); ++i) {
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
  const bool piatti = static_cast<bool>(forma.pulsanti.PulsanteH);
  if (piatti) ripeti(banco, *forma.pulsanti.PulsanteH, numero / 100);
  ripeti(banco, forma.pulsanti.PulsanteDa, piatti ? numero / 10 % 10 : numero / 10);
  ripeti(banco, forma.pulsanti.PulsanteU, numero % 10);
}

// Builds both addends and has them judged; the two seconds before the boards are joined pass.
template <class F>
void unisci(Banco& banco, F& forma) {
  costruisci(banco, forma, banco.ambiente->stato.Addendo1);
  banco.clicca(forma.pulsanti.PulsanteConferma);
  costruisci(banco, forma, banco.ambiente->stato.Addendo2);
  banco.clicca(forma.pulsanti.PulsanteConferma);
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
    if (filmato->clipProperty(clip_, platform::Board::Property::Visible) == QStringLiteral("1")) {
      ++visti;
    }
    return false;
  }

  int dipinti = 0;
  int visti = 0;

 private:
  QString clip_;
};

// Does something when a control comes on the screen.
class AlMostrarsi final : public QObject {
 public:
  AlMostrarsi(const platform::Control& controllo, std::function<void()> allora)
      : allora_(std::move(allora)) {
    controllo.widget()->installEventFilter(this);
  }
  bool eventFilter(QObject* /*oggetto*/, QEvent* evento) override {
    if (evento->type() == QEvent::Show) allora_();
    return false;
  }

 private:
  std::function<void()> allora_;
};

inline double adesso(const Banco& banco) {
  return banco.tempo.secondsSinceMidnight();
}

// Leaves a program folder without movies; each of the three boards of the form says so.
inline void togliFilmati(const Banco& banco) {
  QDir(banco.percorso(QStringLiteral("swf"))).removeRecursively();
  for (int i = 0; i < 3; ++i) {
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("cannot be shown")));
  }
}

// The levels of a form: the row of each is named after its number and tells what it draws, the
// question that comes of it, and the level's name in the record.
inline void colonneDeiLivelli() {
  QTest::addColumn<Sorte>("sorte");
  QTest::addColumn<QString>("operazione");
  QTest::addColumn<QString>("nome");
}
inline void livello(const char* tipo, const Sorte& sorte, const char* operazione,
                    const char* nome) {
  QTest::newRow(tipo) << sorte << QString::fromUtf8(operazione) << QString::fromUtf8(nome);
}
// gruppo: the words of the record before the level's name.
template <class F>
void provaLivello(std::string_view nomeForma, const char* gruppo) {
  QFETCH(Sorte, sorte);
  QFETCH(QString, operazione);
  QFETCH(QString, nome);
  Banco banco;
  banco.ambiente->stato.TipoEsercizio = qint16(QByteArray(QTest::currentDataTag()).toInt());
  banco.sorte.scrivi(sorte);
  banco.sorte.finisci();
  const F& forma = banco.apri<F>(nomeForma);
  QCOMPARE(banco.sorte.rimaste(), std::size_t(0));
  QCOMPARE(forma.EtOperazione.caption(), operazione);
  QCOMPARE(forma.TestoStampa.text(),
           QStringLiteral("\r\n     %1 - %2\r\n\r\n").arg(QString::fromUtf8(gruppo), nome));
}
// A level that the form does not have leaves it the case and the record that it had.
template <class F>
void provaLivelloIgnoto(Banco& banco, const F& forma, qint16 tipo) {
  const QString domanda = forma.EtOperazione.caption();
  const QString elenco = forma.TestoStampa.text();
  banco.ambiente->stato.TipoEsercizio = tipo;
  banco.riattiva();
  QCOMPARE(forma.EtOperazione.caption(), domanda);
  QCOMPARE(forma.TestoStampa.text(), elenco);
}

}  // namespace prova
