#include "platform/forms/user_control.h"

#include <QApplication>

#include "platform/forms/controls/button.h"
#include "platform/forms/controls/text_box.h"
#include "platform/forms/proportional_layout.h"
#include "support/fondo_di_prova.h"
#include "support/iscrizione.h"

namespace user_control_test {

using platform::Form;
using platform::inner;
using platform::Property;
using platform::PropertyBag;
using platform::PropertyValue;
using platform::Row;
using platform::row;

namespace {

// A box and two buttons beside each other, as wide as `Larghezza` says.
class Gruppo final : public platform::UserControl {
 public:
  explicit Gruppo(platform::ControlHost& ospite);

  platform::TextBox Casella{*this};
  platform::ControlArray<platform::Button> Tasto{*this};

  Property<double, qint32> Colore{*this, QStringLiteral("Colore"), 255};
  Property<qint16> Larghezza{*this, QStringLiteral("Larghezza"), 600};
  platform::InnerProperty<QString> Testo{*this, QStringLiteral("Testo"), QStringLiteral("vuoto"),
                                         [this] { return Casella.text(); },
                                         [this](const QString& t) { Casella.setText(t); }};

  int disposizioni = 0;

 protected:
  void layOut() override {
    ++disposizioni;
    Casella.setPlace(0, 0, width() - 2.0 * Larghezza.get(), height());
    for (int i = 0; i < 2; ++i) {
      Tasto[i].setPlace(width() - (2 - i) * double(Larghezza.get()), 0, Larghezza.get(), height());
    }
  }
};

constexpr auto kInterni = std::to_array<platform::InnerRow>({
    inner<&Gruppo::Casella>({.caption = "vuoto"}),
    inner<&Gruppo::Tasto>(0, {.caption = "0"}),
    inner<&Gruppo::Tasto>(1, {.caption = "1"}),
});

Gruppo::Gruppo(platform::ControlHost& ospite) : UserControl(ospite, kInterni) {}

extern const platform::FormDesign kDisegno;

class Prova : public Form {
 public:
  explicit Prova(platform::Runtime& runtime) : Form(runtime, kDisegno) {}

  platform::Button Prima{*this};
  Gruppo Mezzo{*this};
  platform::Button Dopo{*this};

 protected:
  void onLoad() override { layout_.start(); }
  void onResize() override { layout_.resize(); }

 private:
  platform::ProportionalLayout layout_{*this};
};

constexpr auto kTenute =
    std::to_array<platform::StoredProperty>({{"Larghezza", std::int16_t(900)}});
constexpr auto kRighe = std::to_array<Row>({
    row<&Prova::Prima>({0, 0, 3000, 900}, {.caption = "prima"}),
    row<&Prova::Mezzo>({1500, 1500, 6000, 900}, {.stored = kTenute}),
    row<&Prova::Dopo>({0, 3000, 3000, 900}, {.caption = "dopo"}),
});
constexpr std::array<std::span<const Row>, 1> kTavole{kRighe};
const platform::FormDesign kDisegno{
    .name = "Prova", .caption = "Prova", .width = 15000, .height = 10500, .tables = kTavole};

using Fondo = prova::FondoDiProva<Prova>;

}  // namespace

class UserControlTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theFormListsTheWholeAndNotItsParts() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    QCOMPARE(forma.controls().size(), std::size_t(3));
    QCOMPARE(forma.controls()[1], static_cast<platform::Control*>(&forma.Mezzo));
    QVERIFY(forma.withoutRow().empty());
    QCOMPARE(forma.Mezzo.Casella.widget()->parentWidget(), forma.Mezzo.widget());
    QCOMPARE(forma.Mezzo.Casella.widget()->objectName(), QStringLiteral("Casella"));
    QCOMPARE(forma.Mezzo.Tasto[1].widget()->objectName(), QStringLiteral("Tasto(1)"));
  }

  void theStoredInstanceIsReadAtBuildAndTheRestIsAtItsDefault() {
    Fondo fondo;
    Gruppo& gruppo = fondo.forma().Mezzo;
    QCOMPARE(gruppo.Larghezza.get(), qint16(900));
    QCOMPARE(gruppo.Colore.get(), 255.0);
    QCOMPARE(gruppo.Testo.get(), QStringLiteral("vuoto"));
    QVERIFY(gruppo.changedProperties().isEmpty());
    QCOMPARE(gruppo.Tasto[0].left(), 6000.0 - 1800);
  }

  void settingAPropertyMarksItAndRunsTheLayout() {
    Fondo fondo;
    Gruppo& gruppo = fondo.forma().Mezzo;
    const int prima = gruppo.disposizioni;
    gruppo.Larghezza.set(1200);
    gruppo.Larghezza.set(1500);
    QCOMPARE(gruppo.disposizioni, prima + 2);
    QCOMPARE(gruppo.changedProperties(), QStringList{QStringLiteral("Larghezza")});
    QCOMPARE(gruppo.Tasto[1].left(), 4500.0);
    QCOMPARE(gruppo.Tasto[1].widget()->geometry(), QRect(300, 0, 100, 60));
  }

  void aPropertyOfAPartMarksItAndLeavesTheLayoutAlone() {
    Fondo fondo;
    Gruppo& gruppo = fondo.forma().Mezzo;
    const int prima = gruppo.disposizioni;
    gruppo.Testo.set(QStringLiteral("nuovo"));
    QCOMPARE(gruppo.Casella.text(), QStringLiteral("nuovo"));
    QCOMPARE(gruppo.disposizioni, prima);
    QCOMPARE(gruppo.changedProperties(), QStringList{QStringLiteral("Testo")});
  }

  void eachAssignmentOfThePlaceRunsTheLayout() {
    Fondo fondo;
    Gruppo& gruppo = fondo.forma().Mezzo;
    const int prima = gruppo.disposizioni;
    gruppo.setTop(3000);
    gruppo.setWidth(9000);
    QCOMPARE(gruppo.disposizioni, prima + 2);
    QCOMPARE(gruppo.Casella.width(), 9000.0 - 1800);
  }

  void thePartsFollowAResizeOfTheForm() {
    Fondo fondo;
    Gruppo& gruppo = fondo.forma().Mezzo;
    fondo.ridimensiona({2000, 1400});
    QCOMPARE(gruppo.width(), 12000.0);
    QCOMPARE(gruppo.Tasto[1].left(), 12000.0 - 900);
    QCOMPARE(gruppo.Tasto[1].widget()->geometry(), QRect(740, 0, 60, 120));
  }

  void propertiesAreReadAndWrittenByName() {
    Fondo fondo;
    Gruppo& gruppo = fondo.forma().Mezzo;
    gruppo.property(u"Colore").setValue(qint32(65280));
    QCOMPARE(gruppo.Colore.get(), 65280.0);
    QVERIFY(gruppo.property(u"Colore").value() == PropertyValue(qint32(65280)));
    bool thrown = false;
    try {
      (void)gruppo.property(u"Altro");
    } catch (const platform::RunTimeError& error) {
      thrown = error.number() == 5;
    }
    QVERIFY(thrown);
  }

  void theStoreKeepsTheOrderAndTheTypesOfTheDeclarations() {
    Fondo fondo;
    Gruppo& gruppo = fondo.forma().Mezzo;
    gruppo.Testo.set(QStringLiteral("nuovo"));
    gruppo.Colore.set(1);
    PropertyBag bag;
    gruppo.writeProperties(bag);
    QCOMPARE(bag.entries().size(), std::size_t(3));
    QVERIFY((bag.entries()[0] == PropertyBag::Entry{QStringLiteral("Colore"), qint32(1)}));
    QVERIFY((bag.entries()[1] == PropertyBag::Entry{QStringLiteral("Larghezza"), qint16(900)}));
    QVERIFY(
        (bag.entries()[2] == PropertyBag::Entry{QStringLiteral("Testo"), QStringLiteral("nuovo")}));
  }

  void tabGoesThroughThePartsInTheirPlaceAmongTheOthers() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.Prima.setFocus();
    const std::vector<platform::Control*> giro{&forma.Mezzo.Casella, &forma.Mezzo.Tasto[0],
                                               &forma.Mezzo.Tasto[1], &forma.Dopo, &forma.Prima};
    for (const platform::Control* prossimo : giro) {
      fondo.batti(Qt::Key_Tab);
      QVERIFY2(prossimo->hasFocus(), qPrintable(prossimo->name()));
    }
  }

  void theFocusGoesToTheFirstPartThatCanTakeIt() {
    Fondo fondo;
    Prova& forma = fondo.forma();
    forma.Mezzo.setFocus();
    QVERIFY(forma.Mezzo.Casella.hasFocus());
    QVERIFY(forma.Mezzo.hasFocus());
    forma.Dopo.setFocus();
    QVERIFY(!forma.Mezzo.hasFocus());
    forma.Mezzo.Casella.setEnabled(false);
    forma.Mezzo.setFocus();
    QVERIFY(forma.Mezzo.Tasto[0].hasFocus());
    forma.Dopo.setFocus();
    forma.Mezzo.setVisible(false);
    forma.Mezzo.setFocus();
    QVERIFY(forma.Dopo.hasFocus());
  }

  void thePointerOfTheWholeHoldsOverItsParts() {
    Fondo fondo;
    Gruppo& gruppo = fondo.forma().Mezzo;
    gruppo.setMousePointer(0);
    QCOMPARE(gruppo.Casella.widget()->cursor().shape(), Qt::ArrowCursor);
    gruppo.setMousePointer(99);
    QCOMPARE(gruppo.Casella.widget()->cursor().shape(), Qt::BitmapCursor);
  }
};

const prova::Iscrizione<UserControlTest, QApplication> kIscritta;

}  // namespace user_control_test

#include "user_control_test.moc"
