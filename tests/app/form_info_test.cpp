#include "app/form_info.h"

#include <QApplication>

#include "app/shared/nomi_forme.h"
#include "app/tabella_forme.h"
#include "support/banco.h"
#include "support/iscrizione.h"

namespace form_info_test {

using prova::Banco;
using somme::FormInfo;
using somme::forme::kFormInfo;
using somme::forme::kFormMenu;

// The credits.
class FormInfoTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void itSaysWhoseItIsAndThatItIsFree() {
    Banco banco;
    const FormInfo& forma = banco.apri<FormInfo>(kFormInfo);
    QVERIFY(forma.Label1.caption().startsWith(QStringLiteral("Software di\n")));
    QVERIFY(forma.Label1.caption().endsWith(u'\n'));
    QCOMPARE(forma.Label1.caption().count(u'\n'), 2);
    QCOMPARE(forma.Label3.caption().count(u'\n'), 2);
    QVERIFY(forma.Label3.caption().endsWith(u'\n'));
    QCOMPARE(forma.Label4.caption(), QString());
    QCOMPARE(forma.Command1.caption(), QStringLiteral("Chiudi"));
  }

  void theLanguageCannotChangeItsThreeLabels() {
    Banco banco;
    banco.metti(QStringLiteral("Prova.lng"),
                "[FormInfo]\nLabel1.Caption=\"mio\"\nLabel3.Caption=\"mio\"\n"
                "Label4.Caption=\"mio\"\nCommand1.Caption=\"Close\"\n");
    banco.ambiente->stato.LinguaCorrente = QStringLiteral("Prova");
    const FormInfo& forma = banco.apri<FormInfo>(kFormInfo);
    QVERIFY(forma.Label1.caption().startsWith(QStringLiteral("Software di")));
    QVERIFY(forma.Label3.caption() != QStringLiteral("mio"));
    QCOMPARE(forma.Label4.caption(), QString());
    QCOMPARE(forma.Command1.caption(), QStringLiteral("Close"));
  }

  void closingGoesToTheMenu() {
    Banco banco;
    FormInfo& forma = banco.apri<FormInfo>(kFormInfo);
    const std::weak_ptr<platform::Form> watch = forma.weak_from_this();
    banco.clicca(forma.Command1);
    QCoreApplication::processEvents();
    QCOMPARE(banco.nomeForma(), somme::CreaForma(*banco.ambiente, kFormMenu)->name());
    QVERIFY(watch.expired());
  }
};

const prova::Iscrizione<FormInfoTest, QApplication> kIscritta;

}  // namespace form_info_test

#include "form_info_test.moc"
