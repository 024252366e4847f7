#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QFile>

#include "support/banco.h"
#include "support/iscrizione.h"

namespace scelta_della_lingua_test {

using prova::Banco;

namespace {

// While it lives, the program's folder cannot be written; not for root either, to whom every folder
// is open: the kernel answers the question for the real user, and works for the effective one.
class CartellaChiusa {
 public:
  explicit CartellaChiusa(const Banco& banco) : cartella_(banco.cartella.path()) {
    QFile::setPermissions(cartella_, QFile::ReadOwner | QFile::ExeOwner);
    if (::geteuid() == 0) serve(::setresuid(65534, uid_t(-1), uid_t(-1)));
  }
  ~CartellaChiusa() {
    if (::geteuid() == 0) serve(::setresuid(0, uid_t(-1), uid_t(-1)));
    QFile::setPermissions(cartella_, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  }
  CartellaChiusa(const CartellaChiusa&) = delete;
  CartellaChiusa& operator=(const CartellaChiusa&) = delete;

 private:
  static void serve(int esito) {
    if (esito != 0) qFatal("root cannot become another user here");
  }

  QString cartella_;
};

QString fileUtente(const Banco& banco) {
  return banco.ambiente->servizi.cartellaUtente + QStringLiteral("/LangSetting.ini");
}

QByteArray contenuto(const QString& percorso) {
  QFile file(percorso);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no such file)");
}

void scriviFileUtente(const Banco& banco, const QByteArray& testo) {
  QVERIFY(QDir().mkpath(banco.ambiente->servizi.cartellaUtente));
  QFile file(fileUtente(banco));
  QVERIFY(file.open(QIODevice::WriteOnly));
  QCOMPARE(file.write(testo), testo.size());
}

QString scelta(Banco& banco) {
  return somme::LinguaScelta(*banco.ambiente);
}

}  // namespace

// Where the choice of language is kept: beside the program, or for one user alone.
class SceltaDellaLinguaTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void whereTheProgramsFolderCannotBeWrittenTheChoiceIsKeptForTheUser() {
    Banco banco;
    const CartellaChiusa chiusa(banco);
    QCOMPARE(scelta(banco), QStringLiteral("Italiano"));
    somme::ScriviLinguaScelta(*banco.ambiente, QStringLiteral("Due parole"));
    QCOMPARE(contenuto(fileUtente(banco)), QByteArray("[Language]\nCurrentLanguage=Due parole\n"));
    QCOMPARE(contenuto(banco.percorso(QStringLiteral("LangSetting.ini"))).simplified(),
             QByteArray("[Language] CurrentLanguage=\"Italiano\""));
    QCOMPARE(scelta(banco), QStringLiteral("Due parole"));
  }

  void theNextRunStartsInTheLanguageKeptForTheUser() {
    Banco banco;
    scriviFileUtente(banco, "[Language]\nCurrentLanguage=English\n");
    const CartellaChiusa chiusa(banco);
    banco.ambiente->stato.LinguaCorrente.clear();
    somme::CaricaStringhe(*banco.ambiente);
    QCOMPARE(banco.ambiente->stato.LinguaCorrente, QStringLiteral("English"));
    QCOMPARE(banco.ambiente->stringhe.TestoEsatti, QStringLiteral("Right"));
  }

  void theUsersChoiceComesFirstOnlyWhereTheProgramsFolderCannotBeWritten() {
    Banco banco;
    scriviFileUtente(banco, "[Language]\nCurrentLanguage=Mia\n");
    QCOMPARE(scelta(banco), QStringLiteral("Italiano"));
    const CartellaChiusa chiusa(banco);
    QCOMPARE(scelta(banco), QStringLiteral("Mia"));
  }

  void aUsersFileThatNamesNoLanguageLeavesTheProgramsChoice() {
    Banco banco;
    scriviFileUtente(banco, "[Language]\n[Other]\nx=1\n");
    const CartellaChiusa chiusa(banco);
    QCOMPARE(scelta(banco), QStringLiteral("Italiano"));
  }

  void theUsersChoiceServesWhereTheProgramsFileIsMissing() {
    Banco banco;
    QVERIFY(QFile::remove(banco.percorso(QStringLiteral("LangSetting.ini"))));
    scriviFileUtente(banco, "[Language]\nCurrentLanguage=English\n");
    const CartellaChiusa chiusa(banco);
    QCOMPARE(scelta(banco), QStringLiteral("English"));
  }

  void aFolderThatCanBeWrittenLeavesTheUsersFolderAlone() {
    Banco banco;
    somme::ScriviLinguaScelta(*banco.ambiente, QStringLiteral("English"));
    QCOMPARE(scelta(banco), QStringLiteral("English"));
    QVERIFY(!QFile::exists(banco.ambiente->servizi.cartellaUtente));
  }

  void withoutAFolderOfTheUserTheChoiceIsGoneAtTheNextReading() {
    Banco banco;
    banco.ambiente->servizi.cartellaUtente = QStringLiteral("/proc/nobody/somme");
    const CartellaChiusa chiusa(banco);
    somme::ScriviLinguaScelta(*banco.ambiente, QStringLiteral("English"));
    QCOMPARE(scelta(banco), QStringLiteral("Italiano"));
    QVERIFY(banco.messaggi.mostrati.empty());
  }
};

const prova::Iscrizione<SceltaDellaLinguaTest, QApplication> kIscritta;

}  // namespace scelta_della_lingua_test

#include "scelta_della_lingua_test.moc"
