// Files that are damaged or mean ill: whatever they claim, reading and playing them ends soon and
// takes little memory.

#include <malloc.h>
#include <zlib.h>

#include <QImage>
#include <QTest>
#include <ctime>
#include <fstream>
#include <string>

#include "hand_made.h"
#include "platform/flash/limits.h"
#include "platform/flash/player.h"
#include "platform/flash/renderer.h"

using namespace hand_made;
using namespace platform::flash;

namespace {

// Generous, so that sanitizers and busy machines pass; what goes wrong takes far longer.
#if defined(__SANITIZE_ADDRESS__)
constexpr std::clock_t longest = 15'000;
constexpr long mostMegabytes = 1'000;
#else
constexpr std::clock_t longest = 1'000;
constexpr long mostMegabytes = 64;
#endif

// The most that the process has held in memory since the last forgetPeak(), in megabytes.
long peakMegabytes() {
  std::ifstream status("/proc/self/status");
  std::string word;
  long kilobytes = 0;
  while (status >> word) {
    if (word == "VmHWM:") {
      status >> kilobytes;
    }
  }
  return kilobytes / 1024;
}

void forgetPeak() {
  std::ofstream("/proc/self/clear_refs") << "5";
}

// Reads the movie, plays it a little and draws it.
void use(const QByteArray& bytes) {
  try {
    Player player(movie(bytes), [](auto&&...) {});
    player.tick();
    player.mousePress({50, 50});
    player.mouseRelease({50, 50});
    player.gotoFrame(2);
    QImage image(100, 100, QImage::Format_RGB32);
    Renderer().paint(player.scene(), QTransform::fromScale(0.05, 0.05), 0xFFFFFFFF, image);
  } catch (const MovieError&) {
    // No movie at all.
  }
}

QByteArray repeated(const QByteArray& bytes, qsizetype times) {
  QByteArray all;
  all.reserve(bytes.size() * times);
  for (qsizetype i = 0; i < times; ++i) {
    all += bytes;
  }
  return all;
}

// Packs body as a movie that claims to be as long as it likes.
QByteArray packed(const QByteArray& body, std::uint32_t claimed) {
  uLongf size = compressBound(uLong(body.size()));
  QByteArray out(qsizetype(size), '\0');
  compress(reinterpret_cast<Bytef*>(out.data()), &size,
           reinterpret_cast<const Bytef*>(body.constData()), uLong(body.size()));
  out.truncate(qsizetype(size));
  return QByteArray("CWS") + u8(6) + u32(claimed) + out;
}

QByteArray header() {
  return rect(0, 2000, 0, 2000) + u8(0) + u8(12) + u16(1);
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
    malloc_trim(0);  // what the tests before have left behind must not hide what this one takes
    forgetPeak();
    const long before = peakMegabytes();
    const std::clock_t begin = std::clock();
    use(bytes);
    // The processor's time: the machine may have other things to do.
    const std::clock_t milliseconds = (std::clock() - begin) * 1000 / CLOCKS_PER_SEC;
    const long megabytes = peakMegabytes() - before;
    QVERIFY2(milliseconds < longest, qPrintable(QString::number(milliseconds)));
    QVERIFY2(megabytes <= mostMegabytes, qPrintable(QString::number(megabytes)));
    qInfo("%ld ms, %ld MB", long(milliseconds), megabytes);
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

QTEST_APPLESS_MAIN(BrokenFilesTest)
#include "broken_files_test.moc"
