#include "app/shared/modulo_navigate.h"

#include <QApplication>

#include "support/banco.h"
#include "support/iscrizione.h"

namespace modulo_navigate_test {

using prova::Banco;

// Documents handed to the desktop.
class ModuloNavigateTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aDocumentIsHandedOverAsItIsAndNothingIsSaid() {
    Banco banco;
    somme::ApriDocumento(*banco.ambiente, banco.percorso(QStringLiteral("somme.pdf")));
    somme::ApriDocumento(*banco.ambiente, QStringLiteral("/nowhere/at all.pdf"));
    QCOMPARE(banco.documenti.aperti, (QStringList{banco.percorso(QStringLiteral("somme.pdf")),
                                                  QStringLiteral("/nowhere/at all.pdf")}));
    QVERIFY(banco.messaggi.mostrati.empty());
    QVERIFY(!banco.fine.stato);
  }
};

const prova::Iscrizione<ModuloNavigateTest, QApplication> kIscritta;

}  // namespace modulo_navigate_test

#include "modulo_navigate_test.moc"
