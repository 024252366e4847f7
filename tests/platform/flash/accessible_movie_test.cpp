#include "platform/flash/accessible_movie.h"

#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include "hand_made.h"
#include "platform/flash/movie_view.h"
#include "support/desktop_di_prova.h"
#include "support/iscrizione.h"
#include "view_bench.h"

namespace accessible_movie_test {

using namespace hand_made;
using platform::flash::MovieView;
using platform::flash::Property;
using namespace view_bench;

namespace {

// A view with three clips of ten pixels that are buttons, of which it offers two: "a" on the left,
// which lies free, and "b", which "cover" can lie over. Each says its word when it is clicked.
struct Offering {
  explicit Offering(MovieFolder& folder) {
    const auto sayer = [](unsigned id, const char* word) {
      return tag(7, u16(id) + u8(9) + u16(1) + u16(1) + shift(0, 0) + u8(0) + tell(word) + u8(0));
    };
    view.resize(100, 50);
    view.setMovie(folder.saved(
        file(square(1, 10, 0xFF0000) + sayer(2, "a") + sayer(3, "b") + sayer(4, "cover") +
                 sprite(5, place(1, 2) + showFrame()) + sprite(6, place(1, 3) + showFrame()) +
                 sprite(7, place(1, 4) + showFrame()) + place(1, 5, 0, 0, "a") +
                 place(2, 6, 40, 20, "b") + place(3, 7, 40, 20, "cover") + showFrame(),
             6, 100, 50)));
    show(false);
    view.offerClips({{QStringLiteral("a"), QStringLiteral("left")},
                     {QStringLiteral("b"), QStringLiteral("right")}});
    view.show();
    QCoreApplication::processEvents();
    QObject::connect(&view, &MovieView::fsCommand,
                     [this](const QString& word) { words.append(word); });
    QObject::connect(&view, &MovieView::clipPressed, &view, &MovieView::clickClip);
    (void)told();
  }
  void show(bool cover) {
    view.setClipProperty(QStringLiteral("cover"), Property::Visible,
                         cover ? QStringLiteral("1") : QStringLiteral("0"));
    QCoreApplication::processEvents();
  }
  // What the desktop was told of what stands on the view since the last call: "right goes".
  QStringList told() {
    QStringList changes;
    for (const prova::Udito& heard : desktop.nuovi()) {
      if (heard.oggetto != nullptr) continue;
      changes += heard.nome + (heard.evento == QAccessible::ObjectShow   ? QStringLiteral(" comes")
                               : heard.evento == QAccessible::ObjectHide ? QStringLiteral(" goes")
                                                                         : QStringLiteral(" ?"));
    }
    return changes;
  }
  [[nodiscard]] QAccessibleInterface& spoken() {
    return *QAccessible::queryAccessibleInterface(&view);
  }
  void press(int number) {
    spoken().child(number)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  }

  prova::DesktopDiProva desktop;
  HandTime time;
  MovieView view{time};
  QStringList words;
};

}  // namespace

// The clips of a movie that assistive technology may press.
class AccessibleMovieTest : public QObject {
  Q_OBJECT

 private:
  MovieFolder folder_;

 private Q_SLOTS:
  void whatAViewOffersAreButtonsWithTheirNamesWhereTheyStand() {
    Offering offering(folder_);
    QAccessibleInterface& movie = offering.spoken();
    QCOMPARE(movie.childCount(), 2);
    QVERIFY(movie.child(2) == nullptr);
    QVERIFY(movie.child(-1) == nullptr);
    QAccessibleInterface* left = movie.child(0);
    QAccessibleInterface* right = movie.child(1);
    QCOMPARE(left->role(), QAccessible::Button);
    QCOMPARE(left->text(QAccessible::Name), QStringLiteral("left"));
    QCOMPARE(right->text(QAccessible::Name), QStringLiteral("right"));
    QCOMPARE(left->parent(), &movie);
    QCOMPARE(movie.indexOfChild(right), 1);
    QCOMPARE(left->actionInterface()->actionNames(),
             QStringList{QAccessibleActionInterface::pressAction()});
    QVERIFY(!left->state().invisible);
    const QPoint middle = offering.view.mapToGlobal(QPoint(45, 25));
    QVERIFY(right->rect().contains(middle));
    QVERIFY(!left->rect().contains(middle));
    QCOMPARE(movie.childAt(middle.x(), middle.y()), right);
  }

  void aPressClicksThatClip() {
    Offering offering(folder_);
    offering.press(1);
    offering.press(0);
    offering.press(0);
    QCOMPARE(offering.words.join(u' '), QStringLiteral("b a a"));
  }

  void whatIsHiddenOrLiesUnderAnotherIsNotThereAndTakesNoPress() {
    Offering offering(folder_);
    offering.view.setClipProperty(QStringLiteral("a"), Property::Visible, QStringLiteral("0"));
    offering.show(true);
    for (const int number : {0, 1}) {
      QAccessibleInterface* clip = offering.spoken().child(number);
      QVERIFY(clip->state().invisible);
      QVERIFY(clip->actionInterface()->actionNames().isEmpty());
      offering.press(number);
    }
    const QPoint middle = offering.view.mapToGlobal(QPoint(45, 25));
    QVERIFY(offering.spoken().childAt(middle.x(), middle.y()) == nullptr);
    QVERIFY(offering.words.isEmpty());
    offering.show(false);
    offering.press(1);
    QCOMPARE(offering.words.join(u' '), QStringLiteral("b"));
  }

  void ofAViewThatIsNotOnTheScreenNothingIsThere() {
    Offering offering(folder_);
    offering.view.hide();
    QVERIFY(offering.spoken().child(0)->state().invisible);
    offering.press(0);
    QVERIFY(offering.words.isEmpty());
  }

  void aPressLeavesTheMouseWhereItIs() {
    Offering offering(folder_);
    moveMouse(offering.view, {45, 25});
    QCoreApplication::processEvents();
    QCOMPARE(offering.view.cursor().shape(), Qt::PointingHandCursor);
    offering.press(0);
    QCoreApplication::processEvents();
    QCOMPARE(offering.view.cursor().shape(), Qt::PointingHandCursor);
    moveMouse(offering.view, {70, 45});
    offering.press(0);
    QCoreApplication::processEvents();
    QVERIFY(offering.view.cursor().shape() != Qt::PointingHandCursor);
  }

  void whatComesAndGoesIsToldOnceAndNothingElse() {
    Offering offering(folder_);
    (void)offering.spoken().child(1);
    offering.view.setClipProperty(QStringLiteral("a"), Property::Alpha, QStringLiteral("40"));
    QCoreApplication::processEvents();
    QVERIFY(offering.told().isEmpty());
    offering.show(true);
    QCOMPARE(offering.told(), QStringList{QStringLiteral("right goes")});
    // There and back again in one go.
    offering.view.setClipProperty(QStringLiteral("cover"), Property::Visible, QStringLiteral("0"));
    offering.show(true);
    QVERIFY(offering.told().isEmpty());
    offering.show(false);
    QCOMPARE(offering.told(), QStringList{QStringLiteral("right comes")});
  }

  void whatNobodyHasAskedForIsNotTold() {
    Offering offering(folder_);
    (void)offering.spoken().child(0);
    offering.show(true);
    QVERIFY(offering.told().isEmpty());
  }

  void aMovieOfAnotherHandMayLackWhatIsOffered() {
    Offering offering(folder_);
    offering.view.setMovie(
        folder_.saved(file(square(1, 10, 0xFF0000) + place(1, 1, 0, 0) + showFrame(), 6, 100, 50)));
    QCoreApplication::processEvents();
    QVERIFY(offering.spoken().child(0)->state().invisible);
    offering.press(0);
    offering.view.setMovie({});
    offering.press(0);
    QVERIFY(offering.words.isEmpty());
  }

  void buttonsThatOutliveTheirViewAreNotValid() {
    auto offering = std::make_unique<Offering>(folder_);
    const QAccessible::Id id = QAccessible::uniqueId(offering->spoken().child(0));
    QVERIFY(QAccessible::accessibleInterface(id) != nullptr);
    offering.reset();
    QVERIFY(QAccessible::accessibleInterface(id) == nullptr);
  }
};

const prova::Iscrizione<AccessibleMovieTest, QApplication> kIscritta;

}  // namespace accessible_movie_test

#include "accessible_movie_test.moc"
