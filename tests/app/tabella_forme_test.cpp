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
const Row* rowOf(const Form& form, const QString& name) {
  const Row* found = nullptr;
  for (const auto table : form.design().tables) {
    for (const Row& row : table) {
      const QString plain = QString::fromUtf8(row.name.data(), qsizetype(row.name.size()));
      const QString whole =
          row.index < 0 ? plain : QStringLiteral("%1(%2)").arg(plain).arg(row.index);
      if (whole == name) found = &row;
    }
  }
  return found;
}

}  // namespace

// What holds for every form that the program has.
class TabellaFormeTest : public QObject {
  Q_OBJECT

  static void forms() {
    QTest::addColumn<QByteArray>("nome");
    for (const std::string_view nome : somme::NomiDelleForme()) {
      const QByteArray text(nome.data(), qsizetype(nome.size()));
      QTest::newRow(text.constData()) << text;
    }
  }

  static somme::SchedaForma scheda(const QByteArray& nome) {
    return somme::SchedaDi(somme::LeForme(), {nome.constData(), std::size_t(nome.size())});
  }
  static bool isSheet(const QByteArray& nome) { return somme::EFoglio(scheda(nome)); }

  // The form on the screen, as a family menu would leave the state for it. A keyboard sheet goes to
  // the print dialog at once; without a printer it stays until events run.
  static Form& open(Banco& banco, const QByteArray& nome) {
    const std::string_view text = scheda(nome).nome;
    prova::ComeDalMenu(*banco.ambiente, text);
    if (isSheet(nome)) {
      banco.stampanti.nessuna();
      banco.mostra(somme::forme::kFormAvvio);
      banco.ambiente->fondo.forms().show(text);
    } else {
      banco.mostra(text);
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

  void everyNameMakesTheFormOfThatName_data() { forms(); }
  void everyNameMakesTheFormOfThatName() {
    QFETCH(QByteArray, nome);
    Banco banco;
    QCOMPARE(open(banco, nome).name().toUtf8(), nome);
    QCOMPARE(banco.messaggi.mostrati.size(), std::size_t(isSheet(nome) ? 1 : 0));
  }

  void aNameThatTheProgramDoesNotHaveMakesNothing() {
    Banco banco;
    QVERIFY(somme::CreaForma(*banco.ambiente, "FormNumeri") == nullptr);
    QVERIFY(somme::CreaForma(*banco.ambiente, "") == nullptr);
  }

  void everyMemberHasARow_data() { forms(); }
  void everyMemberHasARow() {
    QFETCH(QByteArray, nome);
    Banco banco;
    QCOMPARE(open(banco, nome).withoutRow().size(), std::size_t(0));
  }

  void everyNameIsThereOnceAndOnItsWidget_data() { forms(); }
  void everyNameIsThereOnceAndOnItsWidget() {
    QFETCH(QByteArray, nome);
    Banco banco;
    const Form& form = open(banco, nome);
    std::set<QString> names;
    for (const Control* control : form.controls()) {
      QVERIFY2(names.insert(control->name()).second, qPrintable(control->name()));
      if (control->widget() == nullptr) continue;
      QCOMPARE(control->widget()->objectName(), control->name());
    }
    QCOMPARE(form.page()->objectName().toUtf8(), nome);
  }

  void everyContainerExistsAndComesBeforeWhatItHolds_data() { forms(); }
  void everyContainerExistsAndComesBeforeWhatItHolds() {
    QFETCH(QByteArray, nome);
    Banco banco;
    const Form& form = open(banco, nome);
    std::set<std::string_view> before;
    for (const Control* control : form.controls()) {
      const Row* row = rowOf(form, control->name());
      if (row == nullptr) continue;
      if (!row->look.in.empty()) {
        QVERIFY2(before.contains(row->look.in), qPrintable(control->name()));
      }
      before.insert(row->name);
    }
  }

  void everyPlaceLiesInsideItsContainerOrIsHidden_data() { forms(); }
  void everyPlaceLiesInsideItsContainerOrIsHidden() {
    QFETCH(QByteArray, nome);
    for (const QSize size : {QSize(800, 600), QSize(1366, 768)}) {
      Banco banco(size);
      const Form& form = open(banco, nome);
      for (const Control* control : form.controls()) {
        const QWidget* widget = control->widget();
        if (widget == nullptr || !control->isVisible()) continue;
        const QRect room = widget->parentWidget()->rect().adjusted(-1, -1, 1, 1);
        QVERIFY2(widget->geometry().isEmpty() || room.contains(widget->geometry()),
                 qPrintable(control->name()));
      }
    }
  }

  void whatStandsInThePrintPanelLiesWholeInTheWindow_data() { forms(); }
  void whatStandsInThePrintPanelLiesWholeInTheWindow() {
    QFETCH(QByteArray, nome);
    for (const QSize size : {QSize(800, 600), QSize(1366, 768)}) {
      Banco banco(size);
      auto* form = dynamic_cast<somme::FormaEsercizio*>(&open(banco, nome));
      if (form == nullptr) return;
      form->mnuStampa.click();
      const QRect room = form->page()->canvas()->rect().adjusted(-1, -1, 1, 1);
      for (const Control* control : {static_cast<const Control*>(&form->TestoStampa),
                                     static_cast<const Control*>(&form->CommandStampa),
                                     static_cast<const Control*>(&form->CommandChiudi)}) {
        QVERIFY(control->widget()->isVisible());
        QVERIFY2(room.contains(control->widget()->geometry()), qPrintable(control->name()));
      }
    }
  }

  void tabGoesThroughTheFormInTheOrderOfItsRows_data() { forms(); }
  void tabGoesThroughTheFormInTheOrderOfItsRows() {
    QFETCH(QByteArray, nome);
    Banco banco;
    const Form& form = open(banco, nome);
    std::vector<const QWidget*> expected;
    for (const Control* control : form.controls()) {
      // Options of one group are one stop, at the selected one; arrows go on from there.
      const auto* option = dynamic_cast<const platform::OptionButton*>(control);
      if (option != nullptr && !option->isSelected()) continue;
      for (const QWidget* widget : control->tabStops()) {
        if (!widget->isVisible() || !widget->isEnabled()) continue;
        if ((widget->focusPolicy() & Qt::TabFocus) != 0) expected.push_back(widget);
      }
    }
    if (expected.empty()) return;
    const_cast<QWidget*>(expected.front())->setFocus();
    for (std::size_t i = 1; i <= expected.size(); ++i) {
      banco.batti(Qt::Key_Tab);
      QCOMPARE(static_cast<const QWidget*>(QApplication::focusWidget()),
               expected[i % expected.size()]);
    }
  }

  void everyControlHasItsRoleAndNoneThatMattersIsNameless_data() { forms(); }
  void everyControlHasItsRoleAndNoneThatMattersIsNameless() {
    QFETCH(QByteArray, nome);
    Banco banco;
    const Form& form = open(banco, nome);
    for (const Control* control : form.controls()) {
      QWidget* widget = control->widget();
      if (widget == nullptr) continue;
      QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
      QVERIFY2(spoken != nullptr && spoken->isValid(), qPrintable(control->name()));
      const QByteArray name = control->name().toUtf8();
      const QString text = spoken->text(QAccessible::Name);
      const QAccessible::Role role = spoken->role();
      const bool isPicture = dynamic_cast<const platform::Image*>(control) != nullptr;
      if (dynamic_cast<const platform::Button*>(control) != nullptr) {
        QVERIFY2(role == QAccessible::Button, name);
      } else if (isPicture) {
        QVERIFY2(role == QAccessible::Graphic, name);
      } else if (qobject_cast<QLabel*>(widget) != nullptr) {
        QVERIFY2(role == QAccessible::StaticText, name);
      } else {
        // What only holds others may be without a role; nothing that takes the focus is.
        QVERIFY2(role != QAccessible::NoRole, name);
        QVERIFY2(role != QAccessible::Client || widget->focusPolicy() == Qt::NoFocus, name);
      }
      // A control that never comes on the screen has nothing to say.
      const bool anchor = !control->isVisible() && control->caption().trimmed().isEmpty() &&
                          control->look().caption.empty() && !isPicture;
      const bool matters = isPicture || widget->focusPolicy() != Qt::NoFocus;
      if (matters && !anchor) QVERIFY2(!text.trimmed().isEmpty(), name);
      QVERIFY2(text != control->name() || text == control->caption(), name);
    }
  }

  void theWholeTreeCanBeWalkedAndTheWindowBearsItsTitle_data() { forms(); }
  void theWholeTreeCanBeWalkedAndTheWindowBearsItsTitle() {
    QFETCH(QByteArray, nome);
    Banco banco;
    const Form& form = open(banco, nome);
    QAccessibleInterface* root =
        QAccessible::queryAccessibleInterface(&banco.ambiente->fondo.window());
    QCOMPARE(root->text(QAccessible::Name), form.caption());
    int seen = 0;
    std::set<QString> spoken;
    const std::function<void(QAccessibleInterface*)> walk = [&](QAccessibleInterface* node) {
      if (node == nullptr) return;
      ++seen;
      spoken.insert(node->text(QAccessible::Name));
      for (int i = 0; i < node->childCount(); ++i) walk(node->child(i));
    };
    walk(root);
    QVERIFY(seen > int(form.controls().size()) / 2);
    for (const Control* control : form.controls()) {
      if (dynamic_cast<const platform::Button*>(control) == nullptr || !control->isVisible()) {
        continue;
      }
      QAccessibleInterface* node = QAccessible::queryAccessibleInterface(control->widget());
      QVERIFY2(spoken.contains(node->text(QAccessible::Name)), qPrintable(control->name()));
    }
  }

  void everyFormCanBeOpenedLeftAndFreed_data() { forms(); }
  void everyFormCanBeOpenedLeftAndFreed() {
    QFETCH(QByteArray, nome);
    Banco banco;
    const std::weak_ptr<Form> watch = open(banco, nome).weak_from_this();
    banco.mostra(nome == "FormInfo" ? somme::forme::kFormAvvio : somme::forme::kFormInfo);
    // A sheet has gone by itself.
    if (const auto form = watch.lock()) banco.ambiente->fondo.forms().unload(*form);
    QCoreApplication::processEvents();
    QVERIFY(watch.expired());
    QCOMPARE(banco.messaggi.mostrati.size(), std::size_t(isSheet(nome) ? 1 : 0));
    QVERIFY(!banco.fine.stato);
  }

  void closingTheWindowOnAnyFormEndsTheProgram_data() { forms(); }
  void closingTheWindowOnAnyFormEndsTheProgram() {
    QFETCH(QByteArray, nome);
    Banco banco;
    (void)open(banco, nome);
    banco.ambiente->fondo.window().close();
    QCOMPARE(banco.fine.stato, std::optional(0));
  }
};

const prova::Iscrizione<TabellaFormeTest, QApplication> kIscritta;

}  // namespace tabella_forme_test

#include "tabella_forme_test.moc"
