#include "platform/forms/controls/menu_item.h"
#include "platform/forms/menu_bar.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QWindow>

#include "stage.h"
#include "support/iscrizione.h"

namespace menu_item_test {

using trial::kOne;
using trial::kTwo;
using trial::Stage;
using trial::TrialForm;

namespace {

struct Menus {
  explicit Menus(Stage& stage) : form(stage.show(kOne)) {
    form.MenuAct.onClick([this] { ++acted; });
    form.MenuPlain.onClick([this] { ++plain; });
    form.MenuKeyed.onClick([this] { ++keyed; });
  }

  TrialForm& form;
  int acted = 0;
  int plain = 0;
  int keyed = 0;
};

// Clicks an item of the menu bar, or of the menu that is open, with the mouse.
void clickItem(const platform::MenuItem& item, QWidget& owner) {
  const auto& menu = dynamic_cast<QMenu*>(&owner);
  const QRect place = menu != nullptr ? menu->actionGeometry(item.action())
                                      : static_cast<QMenuBar&>(owner).actionGeometry(item.action());
  QTest::mouseClick(owner.window()->windowHandle(), Qt::LeftButton, {},
                    owner.mapTo(owner.window(), place.center()));
}

}  // namespace

// The items of menus.
class MenuItemTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void anItemWithoutChildrenOnTheBarActsOnAClick() {
    Stage stage;
    const Menus menus(stage);
    clickItem(menus.form.MenuAct, *menus.form.page()->menuBar());
    QCOMPARE(menus.acted, 1);
    QVERIFY(QApplication::activePopupWidget() == nullptr);
  }

  void anItemWithChildrenOpensItsMenu() {
    Stage stage;
    const Menus menus(stage);
    clickItem(menus.form.MenuMore, *menus.form.page()->menuBar());
    QWidget* menu = QApplication::activePopupWidget();
    QVERIFY(menu != nullptr);
    QCOMPARE(menu->actions(),
             (QList<QAction*>{menus.form.MenuPlain.action(), menus.form.MenuKeyed.action()}));
    clickItem(menus.form.MenuPlain, *menu);
    QTRY_COMPARE(menus.plain, 1);
    QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
  }

  void assistiveTechnologysPressClosesTheMenusAsAClickDoes() {
    Stage stage;
    const Menus menus(stage);
    const auto acts = [](QWidget& owner, int item, const QString& action) {
      QAccessible::queryAccessibleInterface(&owner)->child(item)->actionInterface()->doAction(
          action);
    };
    QMenuBar* bar = menus.form.page()->menuBar();
    const auto more = int(bar->actions().indexOf(menus.form.MenuMore.action()));
    acts(*bar, more, QAccessibleActionInterface::showMenuAction());
    QWidget* menu = QApplication::activePopupWidget();
    QVERIFY(menu != nullptr);
    acts(*menu, 0, QAccessibleActionInterface::pressAction());
    QCOMPARE(menus.plain, 1);
    QVERIFY(QApplication::activePopupWidget() == nullptr);
    QVERIFY(bar->activeAction() == nullptr);
  }

  void aCheckMarkIsSetByTheFormAlone() {
    Stage stage;
    const Menus menus(stage);
    QVERIFY(menus.form.MenuKeyed.isChecked());
    menus.form.MenuKeyed.action()->trigger();
    QCOMPARE(menus.keyed, 1);
    QVERIFY(menus.form.MenuKeyed.isChecked());
    QVERIFY(menus.form.MenuKeyed.action()->isChecked());
    menus.form.MenuPlain.action()->trigger();
    QVERIFY(!menus.form.MenuPlain.action()->isChecked());
    menus.form.MenuKeyed.setChecked(false);
    QVERIFY(!menus.form.MenuKeyed.action()->isChecked());
    menus.form.MenuKeyed.action()->trigger();
    QVERIFY(!menus.form.MenuKeyed.action()->isChecked());
    menus.form.MenuPlain.setChecked(true);
    QVERIFY(menus.form.MenuPlain.action()->isChecked());
  }

  void anItemIsNamedLikeItsMember() {
    Stage stage;
    const Menus menus(stage);
    QCOMPARE(menus.form.MenuPlain.name(), QStringLiteral("MenuPlain"));
    QCOMPARE(menus.form.MenuPlain.action()->objectName(), QStringLiteral("MenuPlain"));
  }

  void aShortcutActsOnceAHold() {
    Stage stage;
    const Menus menus(stage);
    stage.press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(menus.keyed, 1);
    for (int i = 0; i < 30; ++i) stage.repeat(Qt::Key_S, Qt::ControlModifier);
    stage.release(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(menus.keyed, 1);
    stage.tap(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(menus.keyed, 2);
    // Other modifiers, or none, make another key of it.
    stage.tap(Qt::Key_S);
    stage.tap(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(menus.keyed, 2);
  }

  void anAccessKeyActsOnceAHold() {
    Stage stage;
    const Menus menus(stage);
    stage.press(Qt::Key_A, Qt::AltModifier, QStringLiteral("a"));
    for (int i = 0; i < 30; ++i) stage.repeat(Qt::Key_A, Qt::AltModifier, QStringLiteral("a"));
    stage.release(Qt::Key_A, Qt::AltModifier);
    QCOMPARE(menus.acted, 1);
  }

  void anAccessKeyOpensTheMenuOfItsItem() {
    Stage stage;
    const Menus menus(stage);
    stage.tap(Qt::Key_M, Qt::AltModifier, QStringLiteral("m"));
    QVERIFY(QApplication::activePopupWidget() != nullptr);
    QApplication::activePopupWidget()->close();
  }

  void aDisabledOrHiddenItemDoesNotAct() {
    Stage stage;
    const Menus menus(stage);
    const auto tryAll = [&] {
      stage.tap(Qt::Key_S, Qt::ControlModifier);
      menus.form.MenuKeyed.action()->trigger();
      menus.form.MenuKeyed.click();
      stage.tap(Qt::Key_A, Qt::AltModifier, QStringLiteral("a"));
      menus.form.MenuAct.click();
    };
    menus.form.MenuKeyed.setEnabled(false);
    menus.form.MenuAct.setEnabled(false);
    tryAll();
    menus.form.MenuKeyed.setEnabled(true);
    menus.form.MenuAct.setEnabled(true);
    menus.form.MenuKeyed.setVisible(false);
    menus.form.MenuAct.setVisible(false);
    tryAll();
    QCOMPARE(menus.keyed, 0);
    QCOMPARE(menus.acted, 0);
  }

  void shortcutsWorkOnlyWhileTheirFormIsOnTheScreen() {
    Stage stage;
    const Menus menus(stage);
    TrialForm& two = stage.show(kTwo);
    int other = 0;
    two.MenuKeyed.onClick([&other] { ++other; });
    stage.tap(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(menus.keyed, 0);
    QCOMPARE(other, 1);
    stage.runtime->forms().unload(two);
    stage.tap(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(menus.keyed, 1);
  }

  void theShortcutIsShownBesideItsCaptionAlsoAfterAChangeOfWords() {
    Stage stage;
    const Menus menus(stage);
    QVERIFY(menus.form.MenuKeyed.action()->text().startsWith(QStringLiteral("Keyed\t")));
    menus.form.MenuKeyed.setCaption(QStringLiteral("Altro"));
    QVERIFY(menus.form.MenuKeyed.action()->text().startsWith(QStringLiteral("Altro\t")));
    QVERIFY(menus.form.MenuKeyed.action()->text().endsWith(QStringLiteral("+S")));
    QCOMPARE(menus.form.MenuKeyed.caption(), QStringLiteral("Altro"));
    QCOMPARE(menus.form.MenuPlain.action()->text(), QStringLiteral("Plain"));
  }

  void itemsAreSpokenAsItemsOfAMenu() {
    Stage stage;
    const Menus menus(stage);
    QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(menus.form.page()->menuBar());
    QCOMPARE(bar->role(), QAccessible::MenuBar);
    QCOMPARE(bar->childCount(), 2);
    QCOMPARE(bar->child(0)->role(), QAccessible::MenuItem);
    QCOMPARE(bar->child(0)->text(QAccessible::Name), QStringLiteral("Act"));
    QCOMPARE(bar->child(1)->text(QAccessible::Name), QStringLiteral("More"));
  }

  void anItemMayLeaveItsForm() {
    Stage stage;
    const Menus menus(stage);
    menus.form.MenuAct.onClick([&] { stage.runtime->forms().pass(menus.form, kTwo.name); });
    clickItem(menus.form.MenuAct, *menus.form.page()->menuBar());
    QCoreApplication::processEvents();
    QCOMPARE(stage.currentName(), QStringLiteral("Two"));
    QCOMPARE(stage.runtime->forms().all().size(), std::size_t(1));
  }
};

const prova::Iscrizione<MenuItemTest, QApplication> kIscritta;

}  // namespace menu_item_test

#include "menu_item_test.moc"
