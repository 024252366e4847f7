#include "app/shared/nomi_forme.h"

#include <QApplication>
#include "exercises/table/form_tabella.h"
#include "support/banco.h"
#include "support/iscrizione.h"

namespace annunci_tabella_test {

using prova::Banco;
using somme::FormTabella;

// What a screen reader is told on the table, sentence by sentence.
class AnnunciTabellaTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void questionVerdictsAndTheSolvedSumAreTold() {
    Banco banco;
    banco.ambiente->stato.TipoEsercizio = 0;
    banco.sorte.scrivi({{41, 98}, {57, 98}});
    auto& forma = banco.apri<FormTabella>(somme::forme::kFormTabella);
    QCOMPARE(banco.annunci.nuovi(), QStringList{QStringLiteral("41 + 1 =")});
    banco.clicca(forma.Numero[40]);
    QCOMPARE(banco.annunci.nuovi(),
             QStringList{QStringLiteral("Sbagliato: prova ancora. Errati 1")});
    banco.clicca(forma.Numero[42]);
    QCOMPARE(banco.annunci.nuovi(),
             (QStringList{QStringLiteral("Giusto. Esatti 1"), QStringLiteral("41 + 1 = 42")}));
    banco.batti(Qt::Key_Space);
    QCOMPARE(banco.annunci.nuovi(), QStringList{QStringLiteral("57 + 1 =")});
  }
};

const prova::Iscrizione<AnnunciTabellaTest, QApplication> kIscritta;

}  // namespace annunci_tabella_test

#include "annunci_tabella_test.moc"
