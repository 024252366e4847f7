#include "platform/boards/board.h"

#include <QAccessible>
#include <QApplication>

#include "platform/flash/hand_made.h"
#include "platform/flash/movie_view.h"
#include "platform/flash/view_bench.h"
#include "platform/forms/controls/button.h"
#include "platform/forms/proportional_layout.h"
#include "support/fondo_di_prova.h"
#include "support/iscrizione.h"

namespace board_test {

using namespace hand_made;
using platform::Board;
using platform::flash::MovieView;
using platform::flash::Property;

namespace {

// A form with a board, and a button that stands over the board's corner.
class BoardForm final : public platform::Form {
 public:
  explicit BoardForm(platform::Runtime& runtime);

  Board Table{*this};
  platform::Button Over{*this};

  std::function<void()> activating;

 protected:
  void onLoad() override { layout_.start(); }
  void onResize() override { layout_.resize(); }
  void onActivate() override {
    if (activating) activating();
  }

 private:
  platform::ProportionalLayout layout_{*this};
};

constexpr auto kRows = std::to_array<platform::Row>({
    platform::row<&BoardForm::Over>({0, 0, 300, 300}, {.caption = "x"}),
    platform::row<&BoardForm::Table>({0, 0, 1500, 750}, {.toolTip = "Board"}),
});
constexpr std::array<std::span<const platform::Row>, 1> kTables{kRows};

BoardForm::BoardForm(platform::Runtime& runtime)
    : Form(runtime,
           {.name = "Prova", .caption = "", .width = 3000, .height = 1500, .tables = kTables}) {}

// Counts how often each kind of paint happened: with the clip "a" shown, and with it hidden.
class Watch final : public QObject {
 public:
  explicit Watch(MovieView& view) : view_(view) { view.installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      ++(view_.clipProperty(QStringLiteral("a"), Property::Visible) == QStringLiteral("1")
             ? shown
             : hidden);
    }
    return false;
  }

  int shown = 0;
  int hidden = 0;

 private:
  MovieView& view_;
};

}  // namespace

// A movie as a control of a form.
class BoardTest : public QObject {
  Q_OBJECT

  using Ground = prova::FondoDiProva<BoardForm>;

  // A movie of 100 by 50 pixels: clip "a" is a button of 10 by 10 at 40, 20 that says
  // "word", "from a"; on frame 3 the movie says "end", "".
  QString movie() {
    const QByteArray button = tag(
        7, u16(2) + u8(9) + u16(1) + u16(1) + shift(0, 0) + u8(0) + tell("word", "from a") + u8(0));
    return folder_.saved(file(square(1, 10, 0xFF0000) + button +
                                  sprite(3, place(1, 2) + showFrame()) + place(1, 3, 40, 20, "a") +
                                  doAction(u8(0x07)) + showFrame() + showFrame() +
                                  doAction(tell("end", "") + u8(0x07)) + showFrame(),
                              6, 100, 50));
  }
  static MovieView& view(const Board& board) { return *qobject_cast<MovieView*>(board.widget()); }
  // Whatever is on the screen is painted, now.
  static void paint(BoardForm& form) {
    form.ground().time().letEventsRun();
    form.page()->grab();
  }
  static void clickClip(Ground& ground, const QString& name) {
    const Board& board = ground.forma().Table;
    const QPoint at = view(board).clipPlace(name).center().toPoint();
    QTest::mouseClick(ground.finestra(), Qt::LeftButton, {},
                      board.widget()->mapTo(board.widget()->window(), at));
    QCoreApplication::processEvents();
  }

  // Assistive technology presses the clip that the board offers.
  static void press(const BoardForm& form) {
    QAccessibleInterface* board = QAccessible::queryAccessibleInterface(form.Table.widget());
    board->child(0)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::processEvents();
  }
  // A form whose board offers its clip and counts what it says.
  struct Offered {
    Offered(BoardForm& its, const QString& movie) : form(its) {
      form.Table.onFsCommand([this](const QString& word, const QString&) {
        heard += word;
        gated = form.ground().gate().isRunning(form);
      });
      form.Table.offerClips({{QStringLiteral("a"), QStringLiteral("put one")}});
      form.Table.setMovie(movie);
      QCoreApplication::processEvents();
    }
    BoardForm& form;
    QStringList heard;
    bool gated = false;
  };

  view_bench::MovieFolder folder_;

 private Q_SLOTS:
  void aClickOnAClipIsAHandlerOfTheForm() {
    Ground ground;
    BoardForm& form = ground.forma();
    QStringList heard;
    bool gated = false;
    form.Table.onFsCommand([&](const QString& command, const QString& args) {
      heard += command + u'/' + args;
      gated = ground.fondo().gate().isRunning(form);
    });
    form.Table.setMovie(movie());
    QCoreApplication::processEvents();
    clickClip(ground, QStringLiteral("a"));
    QCOMPARE(heard, QStringList{QStringLiteral("word/from a")});
    QVERIFY(gated);
  }

  void aHiddenClipTakesNoClick() {
    Ground ground;
    BoardForm& form = ground.forma();
    int heard = 0;
    form.Table.onFsCommand([&](const QString&, const QString&) { ++heard; });
    form.Table.setMovie(movie());
    form.Table.tSetProperty(QStringLiteral("a"), Property::Visible, QStringLiteral("0"));
    QCoreApplication::processEvents();
    clickClip(ground, QStringLiteral("a"));
    QCOMPARE(heard, 0);
    form.Table.tSetProperty(QStringLiteral("a"), Property::Visible, QStringLiteral("1"));
    clickClip(ground, QStringLiteral("a"));
    QCOMPARE(heard, 1);
  }

  void aStretchOfTheMovieEndsWithItsWord() {
    Ground ground;
    BoardForm& form = ground.forma();
    QStringList heard;
    form.Table.onFsCommand([&](const QString& command, const QString&) { heard += command; });
    form.Table.setMovie(movie());
    ground.tempo.advance(5);
    QCoreApplication::processEvents();
    QVERIFY(heard.isEmpty());
    form.Table.gotoFrame(2);
    form.Table.play();
    ground.tempo.advance(5);
    QCoreApplication::processEvents();
    QCOMPARE(heard, QStringList{QStringLiteral("end")});
    QVERIFY(!ground.tempo.anyTicker());
  }

  void whatAHandlerHidesInANewMovieIsNeverPainted() {
    Ground ground;
    BoardForm& form = ground.forma();
    Watch watch(view(form.Table));
    form.run([&] {
      form.Table.setMovie(movie());
      paint(form);
      form.Table.setVisible(true);
      paint(form);
      form.Table.tSetProperty(QStringLiteral("a"), Property::Visible, QStringLiteral("0"));
    });
    paint(form);
    QCOMPARE(watch.shown, 0);
    QVERIFY(watch.hidden > 0);
    QVERIFY(form.Table.widget()->isVisible());
  }

  void aBoardThatTheFormHidesStaysHiddenAfterALoad() {
    Ground ground;
    BoardForm& form = ground.forma();
    form.run([&] {
      form.Table.setMovie(movie());
      form.Table.setVisible(false);
    });
    QCoreApplication::processEvents();
    QVERIFY(!form.Table.widget()->isVisible());
    form.Table.setVisible(true);
    QVERIFY(form.Table.widget()->isVisible());
  }

  void aMissingMovieIsAnEmptyBoard() {
    Ground ground;
    BoardForm& form = ground.forma();
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("cannot be shown")));
    form.Table.setMovie(folder_.path(QStringLiteral("none.swf")));
    form.Table.tSetProperty(QStringLiteral("a"), Property::Visible, QStringLiteral("0"));
    form.Table.gotoFrame(2);
    form.Table.play();
    QCoreApplication::processEvents();
    QVERIFY(form.Table.widget()->isVisible());
    QVERIFY(view(form.Table).clipPlace(QStringLiteral("a")).isEmpty());
  }

  void aMovieStopsWithItsForm() {
    Ground ground;
    BoardForm& form = ground.forma();
    int heard = 0;
    form.Table.onFsCommand([&](const QString&, const QString&) { ++heard; });
    form.Table.setMovie(movie());
    form.run([&] {
      form.Table.gotoFrame(2);
      form.Table.play();
      QVERIFY(ground.tempo.anyTicker());
      ground.fondo().forms().unload(form);
      QVERIFY(!ground.tempo.anyTicker());
    });
    QCoreApplication::processEvents();
    QCOMPARE(heard, 0);
  }

  void aButtonLiesOverTheBoardWhateverTheOrderOfTheRows() {
    Ground ground;
    BoardForm& form = ground.forma();
    int clicks = 0;
    form.Over.onClick([&] { ++clicks; });
    form.Table.setMovie(movie());
    QCoreApplication::processEvents();
    ground.clicca(form.Over);
    QCOMPARE(clicks, 1);
  }

  void aBoardFollowsTheSizeOfTheForm() {
    Ground ground;
    BoardForm& form = ground.forma();
    form.Table.setMovie(movie());
    const QRect before = form.Table.widget()->geometry();
    ground.ridimensiona({500, 350});
    QCOMPARE(form.Table.width(), form.width() / 2);
    QVERIFY(form.Table.widget()->width() < before.width());
    QVERIFY(form.Table.widget()->rect().contains(
        view(form.Table).clipPlace(QStringLiteral("a")).toRect()));
  }

  void aPressOfAnOfferedClipIsAHandlerOfTheFormLikeAClick() {
    Ground ground;
    Offered offered(ground.forma(), movie());
    QAccessibleInterface* board =
        QAccessible::queryAccessibleInterface(offered.form.Table.widget());
    QCOMPARE(board->child(0)->text(QAccessible::Name), QStringLiteral("put one"));
    press(offered.form);
    QCOMPARE(offered.heard, QStringList{QStringLiteral("word")});
    QVERIFY(offered.gated);
  }

  void aPressDoesNothingWhileADeviceIsWaitedFor() {
    Ground ground;
    Offered offered(ground.forma(), movie());
    offered.form.run([&] { ground.fondo().waitDeaf([&offered] { press(offered.form); }); });
    QCoreApplication::processEvents();
    QVERIFY(offered.heard.isEmpty());
    press(offered.form);
    QCOMPARE(offered.heard.size(), 1);
  }

  void aPressDoesNothingBelowACoveringPanelOrOnADisabledBoard() {
    Ground ground;
    Offered offered(ground.forma(), movie());
    offered.form.cover(offered.form.Over);
    press(offered.form);
    QVERIFY(offered.heard.isEmpty());
    offered.form.uncover(offered.form.Over);
    offered.form.Table.setEnabled(false);
    press(offered.form);
    QVERIFY(offered.heard.isEmpty());
    offered.form.Table.setEnabled(true);
    press(offered.form);
    QCOMPARE(offered.heard.size(), 1);
  }

  void whatStandsOnABoardIsToldInWords() {
    Ground ground;
    BoardForm& form = ground.forma();
    form.Table.setDescription(QStringLiteral("three"));
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(form.Table.widget());
    QVERIFY(told != nullptr);
    QCOMPARE(told->role(), QAccessible::Graphic);
    QCOMPARE(told->text(QAccessible::Name), QStringLiteral("Board"));
    QCOMPARE(told->text(QAccessible::Description), QStringLiteral("three"));
    QVERIFY(form.Table.widget()->toolTip().isEmpty());
  }
};

const prova::Iscrizione<BoardTest, QApplication> kIscritta;

}  // namespace board_test

#include "board_test.moc"
