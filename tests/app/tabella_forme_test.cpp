#include "app/tabella_forme.h"

#include <QAccessible>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QRegularExpression>
#include <functional>
#include <set>

#include "app/shared/nomi_forme.h"
#include "exercises/core/forma_esercizio.h"
#include "platform/forms/controls/button.h"
#include "platform/forms/controls/image.h"
#include "platform/forms/controls/option_button.h"
#include "platform/forms/page.h"
#include "support/banco.h"
#include "support/come_dal_menu.h"
#include "support/iscrizione.h"
#include "support/schede_di_prova.h"

namespace tabella_forme_test {

using platform::Control;
using platform::Form;
using platform::Row;
using prova::Banco;

namespace {

// The row that a control was made from: the last one of its name and index.
const Row* rigaDi(const Form& forma, const QString& nome) {
  const Row* trovata = nullptr;
  for (const auto tabella : forma.design().tables) {
    for (const Row& riga : tabella) {
      const QString semplice = QString::fromUtf8(riga.name.data(), qsizetype(riga.name.size()));
      const QString intero =
          riga.index < 0 ? semplice : QStringLiteral("%1(%2)").arg(semplice).arg(riga.index);
      if (intero == nome) trovata = &riga;
    }
  }
  return trovata;
}

}  // namespace

// What holds for every form that the program has.
class TabellaFormeTest : public QObject {
  Q_OBJECT

  static void ogniForma() {
    QTest::addColumn<QByteArray>("nome");
    for (const std::string_view nome : somme::NomiDelleForme()) {
      const QByteArray testo(nome.data(), qsizetype(nome.size()));
      QTest::newRow(testo.constData()) << testo;
    }
  }

  static somme::SchedaForma scheda(const QByteArray& nome) {
    return somme::SchedaDi(somme::LeForme(), {nome.constData(), std::size_t(nome.size())});
  }
  static bool eFoglio(const QByteArray& nome) { return somme::EFoglio(scheda(nome)); }

  // The form on the screen, as a family menu would leave the state for it. A keyboard sheet goes to
  // the print dialog at once; without a printer it stays until events run.
  static Form& apri(Banco& banco, const QByteArray& nome) {
    const std::string_view testo = scheda(nome).nome;
    prova::ComeDalMenu(*banco.ambiente, testo);
    if (eFoglio(nome)) {
      banco.stampanti.nessuna();
      banco.mostra(somme::forme::kFormAvvio);
      banco.ambiente->fondo.forms().show(testo);
    } else {
      banco.mostra(testo);
    }
    return *banco.ambiente->fondo.forms().current();
  }

 private Q_SLOTS:
  void whatTestsCallAFormIsItsNameInTheTable() {
    QFile file(QStringLiteral(SORGENTI "/tests/support/nomi_esercizi.h"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    static const QRegularExpression kDetto(QStringLiteral(R"nome(= "(\w+)";)nome"));
    auto nomi = kDetto.globalMatch(QString::fromUtf8(file.readAll()));
    QVERIFY(nomi.hasNext());
    while (nomi.hasNext()) {
      const QByteArray nome = nomi.next().captured(1).toLatin1();
      QVERIFY2(scheda(nome).crea != nullptr, nome.constData());
    }
  }

  void everyNameMakesTheFormOfThatName_data() { ogniForma(); }
  void everyNameMakesTheFormOfThatName() {
    QFETCH(QByteArray, nome);
    Banco banco;
    QCOMPARE(apri(banco, nome).name().toUtf8(), nome);
    QCOMPARE(banco.messaggi.mostrati.size(), std::size_t(eFoglio(nome) ? 1 : 0));
  }

  void aNameThatTheProgramDoesNotHaveMakesNothing() {
    Banco banco;
    QVERIFY(somme::CreaForma(*banco.ambiente, "FormNumeri") == nullptr);
    QVERIFY(somme::CreaForma(*banco.ambiente, "") == nullptr);
  }

  void everyMemberHasARow_data() { ogniForma(); }
  void everyMemberHasARow() {
    QFETCH(QByteArray, nome);
    Banco banco;
    QCOMPARE(apri(banco, nome).withoutRow().size(), std::size_t(0));
  }

  void everyNameIsThereOnceAndOnItsWidget_data() { ogniForma(); }
  void everyNameIsThereOnceAndOnItsWidget() {
    QFETCH(QByteArray, nome);
    Banco banco;
    const Form& forma = apri(banco, nome);
    std::set<QString> nomi;
    for (const Control* controllo : forma.controls()) {
      QVERIFY2(nomi.insert(controllo->name()).second, qPrintable(controllo->name()));
      if (controllo->widget() == nullptr) continue;
      QCOMPARE(controllo->widget()->objectName(), controllo->name());
    }
    QCOMPARE(forma.page()->objectName().toUtf8(), nome);
  }

  void everyContainerExistsAndComesBeforeWhatItHolds_data() { ogniForma(); }
  void everyContainerExistsAndComesBeforeWhatItHolds() {
    QFETCH(QByteArray, nome);
    Banco banco;
    const Form& forma = apri(banco, nome);
    std::set<std::string_view> prima;
    for (const Control* controllo : forma.controls()) {
      const Row* riga = rigaDi(forma, controllo->name());
      if (riga == nullptr) continue;
      if (!riga->look.in.empty()) {
        QVERIFY2(prima.contains(riga->look.in), qPrintable(controllo->name()));
      }
      prima.insert(riga->name);
    }
  }

  void everyPlaceLiesInsideItsContainerOrIsHidden_data() { ogniForma(); }
  void everyPlaceLiesInsideItsContainerOrIsHidden() {
    QFETCH(QByteArray, nome);
    for (const QSize lato : {QSize(800, 600), QSize(1366, 768)}) {
      Banco banco(lato);
      const Form& forma = apri(banco, nome);
      for (const Control* controllo : forma.controls()) {
        const QWidget* widget = controllo->widget();
        if (widget == nullptr || !controllo->isVisible()) continue;
        const QRect spazio = widget->parentWidget()->rect().adjusted(-1, -1, 1, 1);
        QVERIFY2(widget->geometry().isEmpty() || spazio.contains(widget->geometry()),
                 qPrintable(controllo->name()));
      }
    }
  }

  void whatStandsInThePrintPanelLiesWholeInTheWindow_data() { ogniForma(); }
  void whatStandsInThePrintPanelLiesWholeInTheWindow() {
    QFETCH(QByteArray, nome);
    for (const QSize lato : {QSize(800, 600), QSize(1366, 768)}) {
      Banco banco(lato);
      auto* forma = dynamic_cast<somme::FormaEsercizio*>(&apri(banco, nome));
      if (forma == nullptr) return;
      forma->mnuStampa.click();
      const QRect spazio = forma->page()->canvas()->rect().adjusted(-1, -1, 1, 1);
      for (const Control* controllo : {static_cast<const Control*>(&forma->TestoStampa),
                                       static_cast<const Control*>(&forma->CommandStampa),
                                       static_cast<const Control*>(&forma->CommandChiudi)}) {
        QVERIFY(controllo->widget()->isVisible());
        QVERIFY2(spazio.contains(controllo->widget()->geometry()), qPrintable(controllo->name()));
      }
    }
  }

  void tabGoesThroughTheFormInTheOrderOfItsRows_data() { ogniForma(); }
  void tabGoesThroughTheFormInTheOrderOfItsRows() {
    QFETCH(QByteArray, nome);
    Banco banco;
    const Form& forma = apri(banco, nome);
    std::vector<const QWidget*> attesi;
    for (const Control* controllo : forma.controls()) {
      // Options of one group are one stop, at the selected one; arrows go on from there.
      const auto* scelta = dynamic_cast<const platform::OptionButton*>(controllo);
      if (scelta != nullptr && !scelta->isSelected()) continue;
      for (const QWidget* widget : controllo->tabStops()) {
        if (!widget->isVisible() || !widget->isEnabled()) continue;
        if ((widget->focusPolicy() & Qt::TabFocus) != 0) attesi.push_back(widget);
      }
    }
    if (attesi.empty()) return;
    const_cast<QWidget*>(attesi.front())->setFocus();
    for (std::size_t i = 1; i <= attesi.size(); ++i) {
      banco.batti(Qt::Key_Tab);
      QCOMPARE(static_cast<const QWidget*>(QApplication::focusWidget()), attesi[i % attesi.size()]);
    }
  }

  void everyControlHasItsRoleAndNoneThatMattersIsNameless_data() { ogniForma(); }
  void everyControlHasItsRoleAndNoneThatMattersIsNameless() {
    QFETCH(QByteArray, nome);
    Banco banco;
    const Form& forma = apri(banco, nome);
    for (const Control* controllo : forma.controls()) {
      QWidget* widget = controllo->widget();
      if (widget == nullptr) continue;
      QAccessibleInterface* detto = QAccessible::queryAccessibleInterface(widget);
      QVERIFY2(detto != nullptr && detto->isValid(), qPrintable(controllo->name()));
      const QByteArray suoNome = controllo->name().toUtf8();
      const QString testo = detto->text(QAccessible::Name);
      const QAccessible::Role ruolo = detto->role();
      const bool eImmagine = dynamic_cast<const platform::Image*>(controllo) != nullptr;
      if (dynamic_cast<const platform::Button*>(controllo) != nullptr) {
        QVERIFY2(ruolo == QAccessible::Button, suoNome);
      } else if (eImmagine) {
        QVERIFY2(ruolo == QAccessible::Graphic, suoNome);
      } else if (qobject_cast<QLabel*>(widget) != nullptr) {
        QVERIFY2(ruolo == QAccessible::StaticText, suoNome);
      } else {
        // What only holds others may be without a role; nothing that takes the focus is.
        QVERIFY2(ruolo != QAccessible::NoRole, suoNome);
        QVERIFY2(ruolo != QAccessible::Client || widget->focusPolicy() == Qt::NoFocus, suoNome);
      }
      // A control that never comes on the screen has nothing to say.
      const bool ancora = !controllo->isVisible() && controllo->caption().trimmed().isEmpty() &&
                          controllo->look().caption.empty() && !eImmagine;
      const bool conta = eImmagine || widget->focusPolicy() != Qt::NoFocus;
      if (conta && !ancora) QVERIFY2(!testo.trimmed().isEmpty(), suoNome);
      QVERIFY2(testo != controllo->name() || testo == controllo->caption(), suoNome);
    }
  }

  void theWholeTreeCanBeWalkedAndTheWindowBearsItsTitle_data() { ogniForma(); }
  void theWholeTreeCanBeWalkedAndTheWindowBearsItsTitle() {
    QFETCH(QByteArray, nome);
    Banco banco;
    const Form& forma = apri(banco, nome);
    QAccessibleInterface* radice =
        QAccessible::queryAccessibleInterface(&banco.ambiente->fondo.window());
    QCOMPARE(radice->text(QAccessible::Name), forma.caption());
    int visti = 0;
    std::set<QString> detto;
    const std::function<void(QAccessibleInterface*)> visita = [&](QAccessibleInterface* nodo) {
      if (nodo == nullptr) return;
      ++visti;
      detto.insert(nodo->text(QAccessible::Name));
      for (int i = 0; i < nodo->childCount(); ++i) visita(nodo->child(i));
    };
    visita(radice);
    QVERIFY(visti > int(forma.controls().size()) / 2);
    for (const Control* controllo : forma.controls()) {
      if (dynamic_cast<const platform::Button*>(controllo) == nullptr || !controllo->isVisible()) {
        continue;
      }
      QAccessibleInterface* nodo = QAccessible::queryAccessibleInterface(controllo->widget());
      QVERIFY2(detto.contains(nodo->text(QAccessible::Name)), qPrintable(controllo->name()));
    }
  }

  void everyFormCanBeOpenedLeftAndFreed_data() { ogniForma(); }
  void everyFormCanBeOpenedLeftAndFreed() {
    QFETCH(QByteArray, nome);
    Banco banco;
    const std::weak_ptr<Form> viva = apri(banco, nome).weak_from_this();
    banco.mostra(nome == "FormInfo" ? somme::forme::kFormAvvio : somme::forme::kFormInfo);
    // A sheet has gone by itself.
    if (const auto forma = viva.lock()) banco.ambiente->fondo.forms().unload(*forma);
    QCoreApplication::processEvents();
    QVERIFY(viva.expired());
    QCOMPARE(banco.messaggi.mostrati.size(), std::size_t(eFoglio(nome) ? 1 : 0));
    QVERIFY(!banco.fine.stato);
  }

  void closingTheWindowOnAnyFormEndsTheProgram_data() { ogniForma(); }
  void closingTheWindowOnAnyFormEndsTheProgram() {
    QFETCH(QByteArray, nome);
    Banco banco;
    (void)apri(banco, nome);
    banco.ambiente->fondo.window().close();
    QCOMPARE(banco.fine.stato, std::optional(0));
  }
};

const prova::Iscrizione<TabellaFormeTest, QApplication> kIscritta;

}  // namespace tabella_forme_test

#include "tabella_forme_test.moc"
