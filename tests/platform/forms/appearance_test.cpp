#include "platform/forms/appearance.h"

#include <QApplication>
#include <QPalette>

#include "support/iscrizione.h"
#include "support/tavolozza_del_desktop.h"

namespace appearance_test {

using prova::TavolozzaDelDesktop;

namespace {

constexpr QPalette::ColorGroup kGroups[] = {QPalette::Active, QPalette::Inactive,
                                            QPalette::Disabled};

template <class F>
void forEachColor(F visit) {
  for (const QPalette::ColorGroup group : kGroups) {
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
      if (role != QPalette::NoRole) visit(group, static_cast<QPalette::ColorRole>(role));
    }
  }
}

}  // namespace

// The program's colours, whatever those of the desktop are.
class AppearanceTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  // What is left open the desktop fills in, also later, when its colours change.
  void noColorIsLeftToTheDesktop() {
    platform::applyAppearance();
    const QPalette palette = QApplication::palette();
    forEachColor([&palette](QPalette::ColorGroup group, QPalette::ColorRole role) {
      QVERIFY2(palette.isBrushSet(group, role), qPrintable(QString::number(role)));
    });
  }

  void aDarkDesktopOrOneOfHighContrastChangesNoColor_data() {
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<QColor>("letters");
    QTest::newRow("dark") << QColor(35, 38, 41) << QColor(239, 240, 241);
    QTest::newRow("high contrast") << QColor(Qt::black) << QColor(Qt::yellow);
  }
  void aDarkDesktopOrOneOfHighContrastChangesNoColor() {
    QFETCH(QColor, ground);
    QFETCH(QColor, letters);
    platform::applyAppearance();
    const QPalette usual = QApplication::palette();
    const TavolozzaDelDesktop desktop(ground, letters);
    QCOMPARE(QApplication::palette().window().color(), ground);
    platform::applyAppearance();
    QList<QByteArray> classes{""};
    for (const char* name : TavolozzaDelDesktop::kDiClasse) classes.append(name);
    for (const QByteArray& name : classes) {
      const QPalette now = name.isEmpty() ? QApplication::palette() : QApplication::palette(name);
      forEachColor([&](QPalette::ColorGroup group, QPalette::ColorRole role) {
        QVERIFY2(now.color(group, role) == usual.color(group, role),
                 (name + " " + QByteArray::number(role)).constData());
      });
    }
  }
};

const prova::Iscrizione<AppearanceTest, QApplication> kIscritta;

}  // namespace appearance_test

#include "appearance_test.moc"
