// Files that are damaged or mean ill: whatever they claim, reading and playing them ends soon and
// takes little memory.

#include <QImage>
#include <QTest>

#include "costly.h"
#include "platform/flash/limits.h"
#include "platform/flash/player.h"
#include "platform/flash/renderer.h"
#include "step_cost.h"
#include "support/iscrizione.h"

namespace broken_files_test {

using namespace costly;
using namespace platform::flash;

namespace {

// Reads the movie, plays it a little and draws it.
void use(const QByteArray& bytes, int ticks = 1) {
  try {
    Player player(movie(bytes), [](auto&&...) {});
    for (int i = 0; i < ticks; ++i) {
      player.tick();
    }
    player.mousePress({50, 50});
    player.mouseRelease({50, 50});
    player.gotoFrame(2);
    QImage image(100, 100, QImage::Format_RGB32);
    Renderer().paint(player.scene(), QTransform::fromScale(0.05, 0.05), 0xFFFFFFFF, image);
  } catch (const MovieError&) {
    // No movie at all.
  }
}

// A sprite of 16 of the one before, again and again: 16 to the 15th instances.
QByteArray bloomingSprites() {
  QByteArray tags = square(1, 10, 0xFF0000);
  for (unsigned id = 2; id < 17; ++id) {
    QByteArray inner;
    for (unsigned depth = 1; depth <= 16; ++depth) {
      inner += place(depth, id - 1);
    }
    tags += sprite(id, inner + showFrame());
  }
  return tags + place(1, 16) + showFrame();
}

// Many long edges to and fro over the whole stage.
QByteArray wildShape(int edges) {
  Bits records;
  records.raw("0001 0001  0 01101 00001 0 0 1 1");
  for (int i = 0; i < edges; ++i) {
    records.raw("1 1 1111 1")
        .number(17, i % 2 == 0 ? 2000 : -1990)
        .number(17, i % 3 == 0 ? 1999 : -1000);
  }
  records.raw("000000");
  return tag(2, u16(1) + rect(0, 1, 0, 1) + u8(1) + u8(0) + u8(0) + u8(0) + u8(0) + u8(1) +
                    u16(40) + u8(0) + u8(0) + u8(0) + records.bytes());
}

// Adds many curves to and fro.
void addCurves(Bits& records, int curves) {
  for (int i = 0; i < curves; ++i) {
    const std::int64_t sign = i % 2 == 0 ? 1 : -1;
    records.raw("1 0 1111")
        .number(17, sign * 3000)
        .number(17, sign * 900)
        .number(17, -sign * 2990)
        .number(17, i % 4 < 2 ? sign * 900 : -sign * 901);
  }
}

// A line of that width in twips, to and fro in straight pieces or in curves.
QByteArray wildLines(int pieces, unsigned width, bool straight) {
  Bits records;
  records.raw("0001 0001  0 01001 00001 0 0 1");
  for (int i = 0; straight && i < pieces; ++i) {
    records.raw("1 1 1111 1")
        .number(17, i % 2 == 0 ? 2000 : -1990)
        .number(17, i % 3 == 0 ? 1999 : -1000);
  }
  if (!straight) {
    addCurves(records, pieces);
  }
  records.raw("000000");
  return tag(2, u16(1) + rect(0, 1, 0, 1) + u8(0) + u8(1) + u16(width) + u8(0) + u8(0) + u8(0) +
                    records.bytes());
}

QByteArray wildCurves(int curves) {
  Bits records;
  records.raw("0001 0000  0 00101 00001 0 0 1");
  addCurves(records, curves);
  records.raw("000000");
  return tag(2, u16(1) + rect(0, 1, 0, 1) + u8(1) + u8(0) + u8(0) + u8(0) + u8(0) + u8(0) +
                    records.bytes());
}

// Places a character many times as large as it is.
QByteArray enlarged(unsigned id, int times) {
  Bits matrix;
  matrix.raw("1 11111").number(31, times << 16).number(31, times << 16).raw("0 00000");
  return tag(26, u8(6) + u16(1) + u16(id) + matrix.bytes());
}

QByteArray longText(char letter, qsizetype length) {
  return QByteArray(length, letter);
}

// A pool with one text, and an action that is done with it for ever.
QByteArray withLongText(char letter, qsizetype length, unsigned code) {
  return action(0x88, u16(1) + text(longText(letter, length).constData())) +
         forEver(action(0x96, u8(8) + u8(0)) + action(code) + action(0x17));
}

// A function without a body or a name.
QByteArray function(unsigned parameters) {
  return action(0x9B, text("") + u16(parameters) + QByteArray(parameters, '\0') + u16(0));
}

// Puts the value under a name that is another each time.
QByteArray keep(const QByteArray& value) {
  const QByteArray number = pushText("i") + action(0x1C);
  return pushText("i") + number + action(0x50) + action(0x1D) + pushText("v") + number +
         action(0x21) + value + action(0x1D);
}

// Runs it and tells what it took.
template <typename Run>
void checkCost(Run run) {
  const step_cost::Cost cost = step_cost::costOf(run);
  QVERIFY2(cost.milliseconds < step_cost::longest(),
           qPrintable(QString::number(cost.milliseconds)));
  QVERIFY2(cost.megabytes <= step_cost::kMost, qPrintable(QString::number(cost.megabytes)));
  qInfo("%ld ms, %ld MB", cost.milliseconds, cost.megabytes);
}

}  // namespace

class BrokenFilesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void illMeantFilesEndInBoundedTimeAndMemory_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("a bomb of zeros") << packed(header() + QByteArray(200 << 20, '\0'), 0xFFFFFFFF);
    QTest::newRow("a bomb of frames")
        << packed(header() + repeated(showFrame(), 20 << 20), 0xFFFFFFFF);
    QTest::newRow("a bomb of placings") << packed(
        header() + square(1, 10, 0) + repeated(place(1, 1) + place(2, 1), 1 << 20) + showFrame(),
        0xFFFFFFFF);
    QTest::newRow("a bomb of scripts")
        << packed(header() + repeated(doAction(tell("x")), 1 << 20) + showFrame(), 0xFFFFFFFF);
    QTest::newRow("sprites that blossom") << file(bloomingSprites());
    QTest::newRow("a tag of four gigabytes") << file(u16((2U << 6U) | 63U) + u32(0xFFFFFFFF));
    QTest::newRow("a font of 65535 glyphs that are one")
        << file(tag(48, u16(1) + u8(0) + u8(0) + u8(0) + u16(65535) + repeated(u16(65535), 65535) +
                            wildShape(20'000).mid(30)) +
                showFrame());
    QTest::newRow("a shape of a million edges")
        << file(wildShape(1'000'000) + place(1, 1) + showFrame());
    QTest::newRow("a wild shape many times over") << file([] {
      QByteArray tags = wildShape(3000);
      for (unsigned depth = 1; depth < 3000; ++depth) {
        tags += place(depth, 1);
      }
      return tags + showFrame();
    }());
    QTest::newRow("a wild shape as a mask of a mask of a mask") << file([] {
      QByteArray tags = wildShape(2000);
      for (unsigned depth = 1; depth < 3000; depth += 2) {
        tags +=
            tag(26, u8(0x46) + u16(depth) + u16(1) + shift(0, 0) + u16(4000)) + place(depth + 1, 1);
      }
      return tags + showFrame();
    }());
    QTest::newRow("many clips that loop for ever") << file([] {
      QByteArray tags = sprite(1, doAction(action(0x99, u16(0x10000 - 5))) + showFrame());
      for (unsigned depth = 1; depth < 500; ++depth) {
        tags += place(depth, 1);
      }
      return tags + showFrame();
    }());
    QTest::newRow("gotos to and fro through ten thousand frames") << file(
        [] {
          QByteArray tags = square(1, 10, 0) + doAction(action(0x81, u16(9999))) + showFrame();
          for (int i = 0; i < 10'000; ++i) {
            tags += place(unsigned(i % 100), 1) + showFrame();
          }
          return tags + doAction(action(0x81, u16(0))) + showFrame();
        }(),
        6, 100, 100, 10'002);
    QTest::newRow("very wide lines")
        << file(wildLines(40'000, 65'535, true) + enlarged(1, 100) + showFrame());
    QTest::newRow("very long curves as lines")
        << file(wildLines(40'000, 20, false) + enlarged(1, 8000) + showFrame());
    QTest::newRow("very long curves as hairlines")
        << file(wildLines(19'000, 0, false) + enlarged(1, 8000) + showFrame());
    QTest::newRow("very long curves as a surface")
        << file(wildCurves(200'000) + enlarged(1, 2000) + showFrame());
    QTest::newRow("thirty thousand new styles") << file([] {
      QByteArray records = Bits().raw("0001 0000").bytes();
      for (int i = 0; i < 30'000; ++i) {
        records += Bits().raw("0 10000").bytes() + u8(0) + u8(0) + u8(0);
      }
      return tag(22, u16(1) + rect(0, 1, 0, 1) + u8(0) + u8(0) + records);
    }() + showFrame());
  }

  void illMeantFilesEndInBoundedTimeAndMemory() {
    QFETCH(QByteArray, bytes);
    checkCost([&] { use(bytes); });
  }

  void scriptsThatNeverEndAreCutOffByWhatTheyCost_data() {
    QTest::addColumn<QByteArray>("actions");
    QTest::newRow("a text as a number") << withLongText('1', 8000, 0x18);
    QTest::newRow("a very long text as a number") << withLongText('1', 65'000, 0x18);
    QTest::newRow("a variable of a long name") << withLongText('x', 8000, 0x1C);
    QTest::newRow("a variable of a very long name") << withLongText('x', 65'000, 0x1C);
    const QByteArray name = text(longText('x', 32'000).constData());
    QTest::newRow("an unknown label") << forEver(action(0x8C, name));
    QTest::newRow("an address") << forEver(action(0x83, name + text("")));
    QTest::newRow("a pool") << forEver(action(0x88, u16(1) + name));
    QTest::newRow("functions with a pool each, kept") << forEver(
        action(0x88, u16(1) + text(longText('x', 30'000).constData())) + keep(function(0)));
    QTest::newRow("a function of many parameters, called")
        << pushText("f") + function(60'000) + action(0x1D) +
               forEver(pushNumber(0) + pushText("f") + action(0x3D) + action(0x17));
  }

  void scriptsThatNeverEndAreCutOffByWhatTheyCost() {
    QFETCH(QByteArray, actions);
    checkCost([&] { use(file(doAction(actions) + showFrame())); });
  }

  void whatAMovieKeepsFromTickToTickIsBounded_data() {
    QTest::addColumn<QByteArray>("actions");
    QTest::newRow("functions of many parameters") << repeated(keep(function(60'000)), 7);
    QTest::newRow("functions with a pool each") << repeated(
        action(0x88, u16(1) + text(longText('x', 60'000).constData())) + keep(function(0)), 50);
    QTest::newRow("texts") << repeated(keep(pushText(longText('x', 8000).constData()) +
                                            pushText("i") + action(0x1C) + action(0x21)),
                                       100);
  }

  void whatAMovieKeepsFromTickToTickIsBounded() {
    QFETCH(QByteArray, actions);
    const QByteArray frame = doAction(actions) + showFrame();
    checkCost([&] { use(file(frame + frame, 6, 100, 100, 2), 50); });
  }

  void everyTruncationOfAMovieEnds() {
    const QByteArray whole =
        file(square(1, 30, 0xFF0000) +
             sprite(2, place(1, 1) + doAction(tell("x") + stop()) + showFrame()) +
             place(1, 2, 5, 5, "clip") + doAction(say(pushText("a"))) + showFrame());
    for (qsizetype size = 0; size <= whole.size(); ++size) {
      use(whole.left(size));
    }
  }

  void everyByteTurnedOverEnds() {
    const QByteArray whole =
        file(square(1, 30, 0xFF0000) +
             sprite(2, place(1, 1) + doAction(tell("x") + stop()) + showFrame()) +
             place(1, 2, 5, 5, "clip") + doAction(say(pushText("a"))) + showFrame());
    for (qsizetype at = 8; at < whole.size(); ++at) {
      for (const int turned : {0x01, 0x80, 0xFF}) {
        QByteArray damaged = whole;
        damaged[at] = static_cast<char>(damaged[at] ^ turned);
        use(damaged);
      }
    }
  }

  void aPackedStreamThatBreaksOffShowsWhatCameBefore() {
    const QByteArray body = header() + square(1, 30, 0xFF0000) + place(1, 1) + showFrame() +
                            tag(999, QByteArray(5000, 'x'));
    const QByteArray whole = packed(body, std::uint32_t(body.size()) + 8);
    const auto read = movie(whole.left(whole.size() - 8));
    QCOMPARE(read->timeline.frameCount(), 1);
    QVERIFY(read->character(1) != nullptr);
  }
};

const prova::Iscrizione<BrokenFilesTest> kIscritta;

}  // namespace broken_files_test

#include "broken_files_test.moc"
