#include "support/banco.h"

#include <QDir>
#include <QFile>
#include <QWindow>

#include "app/shared/modulo_ini.h"
#include "app/shared/nomi_forme.h"
#include "immagini/immagini.h"
#include "platform/forms/appearance.h"

namespace prova {

namespace {}  // namespace

Banco::Banco(QSize lato, Forme forme, somme::TabellaForme tabella) {
  somme::PreparaImmagini();
  platform::applyAppearance();
  const QDir lingue(QStringLiteral(SOMME_LINGUE));
  for (const QString& nome : lingue.entryList({QStringLiteral("*.ini")})) {
    QFile::copy(lingue.filePath(nome), percorso(nome));
    QFile::setPermissions(percorso(nome), QFile::ReadOwner | QFile::WriteOwner);
  }
  // What the program only reads lies elsewhere: a copy has just changed, and is read at each look.
  const QDir filmati(QStringLiteral(SOMME_FILMATI));
  QDir(cartella.path()).mkdir(QStringLiteral("swf"));
  for (const QString& nome : lingue.entryList({QStringLiteral("*.lng")})) {
    QFile::link(lingue.filePath(nome), percorso(nome));
  }
  for (const QString& nome : filmati.entryList({QStringLiteral("*.swf")})) {
    QFile::link(filmati.filePath(nome), percorso(QStringLiteral("swf/") + nome));
  }
  ambiente = std::make_unique<somme::Ambiente>(
      somme::Servizi{tempo, sorte, suono, messaggi, annunci, disegni(), documenti, fine, istanza,
                     stampanti, pagina, rete, cartella.path(),
                     utente.filePath(QStringLiteral("config/somme")), &moto},
      tabella, [this, forme = std::move(forme)](std::string_view nome) {
        return forme ? forme(*ambiente, nome) : somme::CreaForma(*ambiente, nome);
      });
  ambiente->fondo.window().setMinimumSize(1, 1);
  ambiente->fondo.window().resize(lato);
  ambiente->fondo.window().showNormal();
  somme::ImpostaDefault(ambiente->stato);
  somme::CaricaStringhe(*ambiente);
}

Banco::~Banco() = default;

void Banco::mostra(std::string_view nome) {
  ambiente->fondo.forms().show(nome);
  QCoreApplication::processEvents();
}

void Banco::riattiva() {
  platform::Forms& forme = ambiente->fondo.forms();
  forme.current()->run([&forme] {
    forme.show(somme::forme::kFormAvvio);
    forme.closeCurrent();
  });
  QCoreApplication::processEvents();
}

QString Banco::nomeForma() const {
  const platform::Form* forma = ambiente->fondo.forms().current();
  return forma == nullptr ? QString() : forma->name();
}

void Banco::ridimensiona(QSize lato) {
  ambiente->fondo.window().resize(lato);
  QCoreApplication::processEvents();
}

QPoint Banco::centro(const platform::Control& controllo) const {
  const QWidget* widget = controllo.widget();
  return widget->mapTo(&ambiente->fondo.window(), widget->rect().center());
}

void Banco::clicca(const platform::Control& controllo) {
  cliccaIn(centro(controllo));
}

void Banco::cliccaIn(QPoint punto) {
  QTest::mouseClick(finestra(), Qt::LeftButton, {}, punto);
  QCoreApplication::processEvents();
}

QString Banco::proprieta(const platform::Board& tavola, const QString& clip,
                         platform::Board::Property quale) {
  return filmato(tavola).clipProperty(clip, quale);
}

bool Banco::siVede(const platform::Board& tavola, const QString& clip) {
  return proprieta(tavola, clip, platform::Board::Property::Visible) == QStringLiteral("1");
}

void Banco::cliccaClip(const platform::Board& tavola, const QString& clip) {
  const QRectF posto = filmato(tavola).clipPlace(clip);
  if (posto.isEmpty()) throw std::logic_error("the movie has no clip of that name");
  cliccaIn(tavola.widget()->mapTo(&ambiente->fondo.window(), posto.center().toPoint()));
}

platform::flash::MovieView& Banco::filmato(const platform::Board& tavola) {
  return *qobject_cast<platform::flash::MovieView*>(tavola.widget());
}

void Banco::doppioClic(const platform::Control& controllo) {
  QTest::mouseDClick(finestra(), Qt::LeftButton, {}, centro(controllo));
  QCoreApplication::processEvents();
}

void Banco::premi(int tasto, Qt::KeyboardModifiers con) {
  QTest::keyPress(finestra(), Qt::Key(tasto), con);
}

void Banco::ripeti(int tasto, Qt::KeyboardModifiers con) {
  qt_handleKeyEvent(finestra(), QEvent::KeyPress, tasto, con, QString(), true);
}

void Banco::lascia(int tasto, Qt::KeyboardModifiers con) {
  QTest::keyRelease(finestra(), Qt::Key(tasto), con);
}

void Banco::batti(int tasto, Qt::KeyboardModifiers con) {
  premi(tasto, con);
  lascia(tasto, con);
  QCoreApplication::processEvents();
}

void Banco::scrivi(const QString& testo) {
  for (const QChar carattere : testo) {
    QTest::keyClick(finestra(), carattere.toLatin1());
    QCoreApplication::processEvents();
  }
}

void Banco::metti(const QString& nome, const QByteArray& contenuto) const {
  QFile file(percorso(nome));
  // A link is replaced, never what it leads to.
  file.remove();
  if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
    throw std::runtime_error("the test cannot write its own folder");
  }
  file.write(contenuto);
}

}  // namespace prova
