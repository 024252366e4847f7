#pragma once

#include <QTemporaryDir>
#include <QTest>
#include <functional>

#include "app/shared/ambiente.h"
#include "app/shared/mod_language_support.h"
#include "app/tabella_forme.h"
#include "platform/boards/board.h"
#include "platform/flash/movie_view.h"
#include "platform/forms/control.h"
#include "platform/forms/form.h"
#include "support/nomi_esercizi.h"
#include "support/rete_di_prova.h"
#include "support/scripted_time.h"
#include "support/servizi_di_prova.h"
#include "support/stampanti_di_prova.h"

// Where forms are tried: the whole program over scripted services, with a folder of its own and a
// window of a known size, and the pupil's hands.
namespace prova {

class Banco {
 public:
  using Forme = std::function<std::shared_ptr<platform::Form>(somme::Ambiente& ambiente,
                                                              std::string_view nome)>;
  // lato: the size of the window. The folder holds the program's language files and its movies; the
  // language is Italian.
  // forme: makes the forms in the place of the program's own table.
  // tabella: what the program knows of its forms.
  explicit Banco(QSize lato = {1024, 768}, Forme forme = {},
                 somme::TabellaForme tabella = somme::LeForme());
  ~Banco();

  // Shows a form.
  void mostra(std::string_view nome);
  // The form on the screen.
  template <class F>
  [[nodiscard]] F& forma() {
    auto* forma = dynamic_cast<F*>(ambiente->fondo.forms().current());
    if (forma == nullptr) throw std::logic_error("another form is on the screen");
    return *forma;
  }
  [[nodiscard]] QString nomeForma() const;
  template <class F>
  F& apri(std::string_view nome) {
    mostra(nome);
    return forma<F>();
  }
  // Another activation of the form on the screen, as after the print dialog: from a handler of its
  // own, so that it comes also in the middle of a wait of another handler.
  void riattiva();
  void ridimensiona(QSize lato);

  // The pupil's hands: real events at the window.
  void clicca(const platform::Control& controllo);
  void cliccaIn(QPoint punto);
  // Into the middle of a clip of a board's movie, by its name.
  void cliccaClip(const platform::Board& tavola, const QString& clip);
  void doppioClic(const platform::Control& controllo);
  void premi(int tasto, Qt::KeyboardModifiers con = {});
  // A repeat of a key that is held, as the desktop flags it.
  void ripeti(int tasto, Qt::KeyboardModifiers con = {});
  void lascia(int tasto, Qt::KeyboardModifiers con = {});
  void batti(int tasto, Qt::KeyboardModifiers con = {});
  void scrivi(const QString& testo);
  [[nodiscard]] QPoint centro(const platform::Control& controllo) const;
  [[nodiscard]] QWindow* finestra() const { return ambiente->fondo.window().windowHandle(); }

  // What a board's movie shows: a property of a clip, "" for a clip that the movie does not
  // have.
  [[nodiscard]] static QString proprieta(const platform::Board& tavola, const QString& clip,
                                         platform::Board::Property quale);
  [[nodiscard]] static bool siVede(const platform::Board& tavola, const QString& clip);
  [[nodiscard]] static platform::flash::MovieView& filmato(const platform::Board& tavola);

  [[nodiscard]] QString percorso(const QString& nome) const { return cartella.filePath(nome); }
  // Replaces a file of the program's folder.
  void metti(const QString& nome, const QByteArray& contenuto) const;

  QTemporaryDir cartella;
  QTemporaryDir utente;  // the user's home; the folder for settings in it is not yet there
  ScriptedTime tempo;
  SorteDiProva sorte;
  SuonoDiProva suono;
  MessaggiDiProva messaggi;
  AnnunciDiProva annunci;
  MotoDiProva moto;
  DocumentiDiProva documenti;
  FineDiProva fine;
  IstanzaDiProva istanza;
  StampantiDiProva stampanti;
  PaginaDiProva pagina;
  ReteDiProva rete;
  std::unique_ptr<somme::Ambiente> ambiente;
};

}  // namespace prova
