#include <QApplication>

#include "platform/forms/accessible.h"
#include "support/desktop_di_prova.h"
#include "support/iscrizione.h"
#include "support/risposta_giusta.h"

Q_DECLARE_METATYPE(prova::Risposta)

namespace eventi_al_verdetto_test {

using prova::Banco;
using prova::DesktopDiProva;

namespace {

// Events of the accessibility bus at a verdict. Whoever sends more drowns what is to be heard.
constexpr int kAlPiu = 12;
// What the desktop's announcer, in whose place the tests have their own, sends for all that it
// tells at once.
constexpr int kAnnuncio = 2;

}  // namespace

// What assistive technology is told at an answer, beside the words.
class EventiAlVerdettoTest : public QObject {
  Q_OBJECT

  // The pictures as they are after the other verdict: this one then changes both.
  static void dopoUnAltra(platform::Form& forma, prova::Risposta quale) {
    const bool giusta = quale == prova::Risposta::Giusta;
    for (platform::Control* controllo : forma.controls()) {
      if (controllo->name() == QStringLiteral("ImgSi")) controllo->setVisible(!giusta);
      if (controllo->name() == QStringLiteral("ImgNo")) controllo->setVisible(giusta);
    }
    QCoreApplication::processEvents();
  }

 private Q_SLOTS:
  void init() { platform::installAccessibility(); }

  void anAnswerMakesFewEvents_data() {
    QTest::addColumn<QByteArray>("nome");
    QTest::addColumn<prova::Risposta>("quale");
    int forme = 0;
    for (const somme::SchedaForma& scheda : somme::LeForme()) {
      if (scheda.genere != somme::Genere::Esercizio) continue;
      const QByteArray nome(scheda.nome.data(), qsizetype(scheda.nome.size()));
      QTest::newRow(nome.constData()) << nome << prova::Risposta::Giusta;
      QTest::newRow((nome + ", wrong").constData()) << nome << prova::Risposta::Sbagliata;
      ++forme;
    }
    QCOMPARE(forme, 23);
  }
  void anAnswerMakesFewEvents() {
    QFETCH(QByteArray, nome);
    QFETCH(prova::Risposta, quale);
    DesktopDiProva desktop;
    Banco banco;
    const auto ultimo = prova::FinoAllUltimoGesto(banco, nome.toStdString(), quale);
    dopoUnAltra(*banco.ambiente->fondo.forms().current(), quale);
    (void)desktop.nuovi();
    (void)banco.annunci.nuovi();
    // Where boards are joined first, that takes its time, and has been told before the verdict.
    banco.tempo.after(1, [&desktop] {
      QCoreApplication::processEvents();
      (void)desktop.nuovi();
    });
    ultimo();
    QCoreApplication::processEvents();
    QVERIFY(banco.annunci.nuovi().contains(
        quale == prova::Risposta::Giusta ? QStringLiteral("Giusto. Esatti 1")
                                         : QStringLiteral("Sbagliato: prova ancora. Errati 1")));
    std::vector<prova::Udito> uditi = desktop.nuovi();
    // The board that shows both addends together comes with the verdict, and is none.
    std::erase_if(uditi, [](const prova::Udito& udito) {
      return qobject_cast<platform::flash::MovieView*>(udito.oggetto) != nullptr;
    });
    const int eventi = kAnnuncio + Messaggi(uditi);
    qInfo("%d events: %s", eventi, qPrintable(InUnaRiga(uditi)));
    QVERIFY2(eventi > kAnnuncio && eventi <= kAlPiu, qPrintable(InUnaRiga(uditi)));
  }
};

const prova::Iscrizione<EventiAlVerdettoTest, QApplication> kIscritta;

}  // namespace eventi_al_verdetto_test

#include "eventi_al_verdetto_test.moc"
