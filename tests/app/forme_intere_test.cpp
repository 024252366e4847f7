#include <QApplication>
#include <QEvent>
#include <QTest>
#include <QWidget>

#include "app/shared/nomi_forme.h"
#include "app/tabella_forme.h"
#include "support/banco.h"
#include "support/come_dal_menu.h"
#include "support/iscrizione.h"

namespace forme_intere_test {

using prova::Banco;

namespace {

// Counts how often anything on the page of a form is painted.
class Dipinta final : public QObject {
 public:
  explicit Dipinta(QString forma) : forma_(std::move(forma)) { qApp->installEventFilter(this); }

  bool eventFilter(QObject* chi, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    for (const QObject* sopra = chi; sopra != nullptr; sopra = sopra->parent()) {
      if (sopra->objectName() == forma_) ++volte;
    }
    return false;
  }

  int volte = 0;

 private:
  QString forma_;
};

}  // namespace

// A form comes up whole: nobody sees it before all of it stands in its place.
class FormeIntereTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void underTheBoxThatHelpiKeysIsReadyStandsNoFormHalfBuilt_data() {
    QTest::addColumn<QString>("nome");
    for (const somme::SchedaForma& scheda : somme::LeForme()) {
      if (scheda.modo != somme::Modo::Tocco) continue;
      const QString nome = QString::fromUtf8(scheda.nome.data(), qsizetype(scheda.nome.size()));
      QTest::newRow(qPrintable(nome)) << nome;
    }
  }
  // The surface answers at once, in the yield of the activation.
  void underTheBoxThatHelpiKeysIsReadyStandsNoFormHalfBuilt() {
    QFETCH(QString, nome);
    Banco banco({1024, 768});
    banco.mostra(somme::forme::kFormMenu);
    QCoreApplication::processEvents();
    prova::ComeDalMenu(*banco.ambiente, nome.toStdString());
    banco.rete.aOgniRichiesta = "OK";
    Dipinta dipinta(nome);
    int sottoIlMessaggio = -1;
    banco.messaggi.mentreAperto = [&] {
      // A window is painted some milliseconds after it was asked to.
      QTest::qWait(60);
      sottoIlMessaggio = dipinta.volte;
    };
    banco.mostra(nome.toStdString());
    QCOMPARE(sottoIlMessaggio, 0);
    QTRY_VERIFY(dipinta.volte > 0);
  }
};

const prova::Iscrizione<FormeIntereTest, QApplication> kIscritta;

}  // namespace forme_intere_test

#include "forme_intere_test.moc"
