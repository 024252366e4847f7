#include "platform/flash/movie_reader.h"

#include <zlib.h>

#include <QTest>

#include "hand_made.h"
#include "platform/flash/limits.h"
#include "support/iscrizione.h"

namespace movie_reader_test {

using namespace hand_made;
using namespace platform::flash;

namespace {

const PlaceCommand& placed(const Movie& movie, std::size_t frame = 0, std::size_t index = 0) {
  return std::get<PlaceCommand>(movie.timeline.frames.at(frame).commands.at(index));
}

// The same file with its body packed, as "CWS".
QByteArray packed(const QByteArray& plain) {
  uLongf size = compressBound(uLong(plain.size()));
  QByteArray body(qsizetype(size), '\0');
  compress(reinterpret_cast<Bytef*>(body.data()), &size,
           reinterpret_cast<const Bytef*>(plain.constData()) + 8, uLong(plain.size()) - 8);
  body.truncate(qsizetype(size));
  return QByteArray("CWS") + plain.mid(3, 5) + body;
}

}  // namespace

class MovieReaderTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theHeaderTellsVersionStageRateAndFrames() {
    // "FWS", version 5, length 21, a rectangle of 12 bits (0 to 2000, 0 to 1000), 12.5 frames a
    // second, 1 frame.
    const QByteArray bytes =
        QByteArray("FWS") + u8(5) + u32(22) +
        Bits().raw("01100").number(12, 0).number(12, 2000).number(12, 0).number(12, 1000).bytes() +
        u8(0x80) + u8(12) + u16(1) + u16(0x40);
    const auto read = movie(bytes);
    QCOMPARE(read->version, 5);
    QVERIFY(!read->compressed);
    QCOMPARE(read->stage, QRectF(0, 0, 2000, 1000));
    QCOMPARE(read->frameRate, 12.5);
    QCOMPARE(read->announcedFrames, 1);
    QCOMPARE(read->timeline.frameCount(), 1);
    QVERIFY(read->faults.empty());
  }

  void theFirstBackgroundHoldsAndLaterOnesMeanNothing() {
    const auto background = [](unsigned red) { return tag(9, u8(red) + u8(2) + u8(3)); };
    QCOMPARE(movie(file(showFrame()))->background, qRgb(255, 255, 255));
    QCOMPARE(movie(file(background(1) + showFrame() + background(7) + showFrame()))->background,
             qRgb(1, 2, 3));
    QCOMPARE(movie(file(showFrame() + background(9) + showFrame()))->background, qRgb(9, 2, 3));
    // One that cannot be read is none.
    QCOMPARE(movie(file(tag(9, u8(5)) + background(1) + showFrame()))->background, qRgb(1, 2, 3));
  }

  void aPackedMovieIsTheSameMovie() {
    const QByteArray plain = file(square(1, 10, 0xFF0000) + place(1, 1) + showFrame() + end(), 6);
    const auto read = movie(packed(plain));
    QVERIFY(read->compressed);
    QCOMPARE(read->stage, QRectF(0, 0, 2000, 2000));
    QCOMPARE(QByteArray(reinterpret_cast<const char*>(read->bytes.data()) + 8, plain.size() - 8),
             plain.mid(8));
    QCOMPARE(placed(*read).character, CharacterId(1));
  }

  void noMoreIsInflatedThanTheFileSays() {
    QByteArray plain = file(QByteArray(100'000, '\0'), 6);
    plain.replace(4, 4, u32(5000));
    QCOMPARE(movie(packed(plain))->bytes.size(), std::size_t(5000));
  }

  void whatIsNoMovieIsRejected_data() {
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray good = file(showFrame());
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("two bytes") << QByteArray("FW");
    QTest::newRow("another signature") << "GIF" + good.mid(3);
    QTest::newRow("the third packing") << "ZWS" + good.mid(3);
    QTest::newRow("only a signature") << good.left(8);
    QTest::newRow("a header that breaks off") << good.left(12);
    QTest::newRow("a stage without area") << file(showFrame(), 6, 0, 100);
    QTest::newRow("a stage that is too large") << file(showFrame(), 6, 100, 3000)
                                                      .replace(8, 9,
                                                               Bits()
                                                                   .raw("11111")
                                                                   .number(31, 0)
                                                                   .number(31, 2000)
                                                                   .number(31, 0)
                                                                   .number(31, 1 << 29)
                                                                   .bytes());
    QTest::newRow("a packed body that is none") << "CWS" + good.mid(3);
  }

  void whatIsNoMovieIsRejected() {
    QFETCH(QByteArray, bytes);
    QVERIFY_THROWS_EXCEPTION(MovieError, (void)movie(bytes));
  }

  void theEndTagIsOptionalAndEndsTheMovie() {
    QCOMPARE(movie(file(showFrame() + showFrame(), 6, 10, 10, 2))->timeline.frameCount(), 2);
    QCOMPARE(movie(file(showFrame() + end() + showFrame(), 6, 10, 10, 2))->timeline.frameCount(),
             1);
  }

  void unknownTagsAreSkippedByTheirLength() {
    const QByteArray tags = tag(777, QByteArray(200, 'x')) + tag(300) + tag(69, u32(0)) +
                            square(1, 10, 0) + tag(64, QByteArray(62, 'y')) + place(1, 1) +
                            showFrame();
    const auto read = movie(file(tags));
    QVERIFY(read->faults.empty());
    QCOMPARE(placed(*read).character, CharacterId(1));
  }

  void placeObject2HoldsWhatItsFlagsSayAndNothingElse() {
    const QByteArray color = Bits()
                                 .raw("0 1 1010")
                                 .number(10, 256)
                                 .number(10, 256)
                                 .number(10, 256)
                                 .number(10, 64)
                                 .bytes();
    const QByteArray all = tag(
        26, u8(0x7E) + u16(7) + u16(1) + shift(20, 40) + color + u16(99) + text("u7") + u16(12));
    const auto read = movie(file(square(1, 1, 0) + all + tag(26, u8(0x01) + u16(3)) + showFrame()));
    const PlaceCommand& full = placed(*read, 0, 0);
    QVERIFY(full.mode == PlaceCommand::Mode::Place);
    QCOMPARE(full.depth, 7);
    QCOMPARE(full.character, CharacterId(1));
    QCOMPARE(full.matrix, std::optional(QTransform::fromTranslate(20, 40)));
    QCOMPARE(full.color->multiply[3], 0.25);
    QCOMPARE(full.name, std::optional(QStringLiteral("u7")));
    QCOMPARE(full.clipDepth, std::optional(12));
    const PlaceCommand& empty = placed(*read, 0, 1);
    QVERIFY(empty.mode == PlaceCommand::Mode::Move);
    QVERIFY(!empty.matrix && !empty.color && !empty.name && !empty.clipDepth);
  }

  void placeObject3IsReadUpToItsFilters() {
    // Flags: name and matrix and character; blend mode.
    const QByteArray tags =
        square(1, 1, 0) +
        tag(70, u8(0x26) + u8(0x02) + u16(4) + u16(1) + shift(20, 0) + text("da1") + u8(3)) +
        showFrame();
    const auto read = movie(file(tags, 8));
    QVERIFY(read->faults.empty());
    QCOMPARE(placed(*read).name, std::optional(QStringLiteral("da1")));
    QCOMPARE(placed(*read).depth, 4);
  }

  void removeObjectHasBothForms() {
    const auto read = movie(file(tag(5, u16(1) + u16(6)) + tag(28, u16(7)) + showFrame()));
    QCOMPARE(std::get<RemoveCommand>(read->timeline.frames[0].commands[0]).depth, 6);
    QCOMPARE(std::get<RemoveCommand>(read->timeline.frames[0].commands[1]).depth, 7);
  }

  void labelsNameTheFrameThatTheyStandIn() {
    const auto read = movie(file(showFrame() + tag(43, text("Cambio") + u8(1)) + showFrame(), 6));
    QCOMPARE(read->timeline.labels.value(QStringLiteral("cambio")), 1);
  }

  void spritesHaveTheirOwnTimelines() {
    const auto read = movie(file(square(1, 1, 0) +
                                 sprite(2, place(1, 1) + showFrame() + remove(1) + showFrame(), 2) +
                                 place(1, 2) + showFrame()));
    const auto* sprite = read->character(2)->as<Sprite>();
    QVERIFY(sprite != nullptr);
    QCOMPARE(sprite->timeline.frameCount(), 2);
    QCOMPARE(read->timeline.frameCount(), 1);
  }

  void aSpriteCannotHoldItselfNorWhatComesLater() {
    const auto read = movie(file(sprite(1, place(1, 1) + place(2, 2) + showFrame()) +
                                 sprite(2, place(1, 1) + showFrame()) + showFrame()));
    QVERIFY(read->character(1)->as<Sprite>()->timeline.frames[0].commands.empty());
    QCOMPARE(read->faults.size(), std::size_t(2));
    QCOMPARE(read->faults[0].tag(), 26);
  }

  void theFirstDefinitionOfANumberStays() {
    // Else the second one could put the sprite into itself.
    const auto read = movie(file(sprite(1, showFrame()) + sprite(2, place(1, 1) + showFrame()) +
                                 sprite(1, place(1, 2) + showFrame()) + showFrame()));
    QVERIFY(read->character(1)->as<Sprite>()->timeline.frames[0].commands.empty());
  }

  void spritesLieNoDeeperThanTheLimit() {
    QByteArray tags = sprite(1, showFrame());
    for (unsigned id = 2; id <= 200; ++id) {
      tags += sprite(id, place(1, id - 1) + showFrame());
    }
    const auto read = movie(file(tags + place(1, 200) + showFrame()));
    int deepest = 0;
    for (const auto& [id, character] : read->characters) {
      deepest = std::max(deepest, character.nesting);
    }
    QCOMPARE(deepest, limits::kNesting);
  }

  void aTagThatCannotBeReadIsLeftOutAndToldWithItsPlace() {
    // A shape that announces a fill of a type that does not exist.
    const QByteArray broken = tag(2, u16(1) + rect(0, 1, 0, 1) + u8(1) + u8(0x77));
    const auto read = movie(file(broken + square(2, 10, 0) + place(1, 2) + showFrame()));
    QCOMPARE(read->faults.size(), std::size_t(1));
    QCOMPARE(read->faults[0].tag(), 2);
    // The tag's body begins after a header of 8, a rectangle of 10 and 4 more bytes, and its own
    // head of 2; 14 bytes in, the fill's type has been read.
    QCOMPARE(read->faults[0].offset(), std::size_t(24 + 14 - 1 + 1));
    QVERIFY(read->character(1) == nullptr);
    QCOMPARE(placed(*read).character, CharacterId(2));
  }

  void aFileThatBreaksOffShowsWhatItHolds() {
    const QByteArray whole = file(
        square(1, 10, 0) + place(1, 1) + showFrame() + square(2, 10, 0) + place(2, 2) + showFrame(),
        6, 100, 100, 2);
    for (qsizetype size = 30; size < whole.size(); ++size) {
      const auto read = movie(whole.left(size));
      QVERIFY(read->timeline.frameCount() <= 2);
    }
    const auto read = movie(whole.left(whole.size() - 2));
    QCOMPARE(read->timeline.frameCount(), 2);
    QCOMPARE(placed(*read, 1, 0).character, CharacterId(2));
  }

  void edgesWithAFillOnEitherSideBelongToBoth() {
    // One vertical edge with fill 1 on its left and fill 2 on its right, as one line downwards.
    Bits records;
    records.raw("0010 0000  0 00111 10001").number(17, 100).number(17, 0).raw("01 10");
    records.raw("1 1 1111 0 1").number(17, 200).raw("000000");
    const auto read =
        movie(file(tag(2, u16(1) + rect(0, 1, 0, 1) + u8(2) + u8(0) + u8(1) + u8(1) + u8(1) +
                              u8(0) + u8(2) + u8(2) + u8(2) + u8(0) + records.bytes()) +
                   showFrame()));
    const auto* shape = read->character(1)->as<Shape>();
    QCOMPARE(shape->parts.size(), std::size_t(2));
    // Seen with its fill on the right, the edge of fill0 runs the other way.
    QCOMPARE(shape->parts[0].outline.segments()[0].y, 200.0F);
    QCOMPARE(shape->parts[1].outline.segments()[0].y, 0.0F);
  }

  void anEdgeThatLeadsTooFarAwayIsAFault() {
    Bits records;
    records.raw("0001 0000  0 00101 00001 0 0 1");
    for (int i = 0; i < 300; ++i) {
      records.raw("1 1 1111 0 0").number(17, 65535);
    }
    records.raw("000000");
    const auto read = movie(file(tag(2, u16(1) + rect(0, 1, 0, 1) + u8(1) + u8(0) + u8(0) + u8(0) +
                                            u8(0) + u8(0) + records.bytes()) +
                                 showFrame()));
    QCOMPARE(read->faults.size(), std::size_t(1));
  }

  void buttonHandlersAreFoundByTheirOffsets() {
    const QByteArray records = u8(8) + u16(1) + u16(1) + shift(0, 0) + u8(0) + u8(0);
    const QByteArray first = u16(1) + stop() + u8(0);
    const auto read = movie(
        file(square(1, 1, 0) +
             tag(34, u16(5) + u8(1) + u16(unsigned(records.size()) + 2) + records +
                         u16(unsigned(first.size()) + 2) + first + u16(0) + u16(8) + action(0x06)) +
             showFrame()));
    const auto* button = read->character(5)->as<Button>();
    QVERIFY(button->trackAsMenu);
    QCOMPARE(button->records.size(), std::size_t(1));
    QCOMPARE(button->handlers.size(), std::size_t(2));
    QCOMPARE(button->handlers[0].events, std::uint16_t(1));
    QCOMPARE(button->handlers[0].actions[0], std::uint8_t(0x07));
    QCOMPARE(button->handlers[1].events, std::uint16_t(8));
    QCOMPARE(button->handlers[1].actions[0], std::uint8_t(0x06));
  }

  void aGlyphThatCannotBeReadLeavesTheOthers() {
    const QByteArray blank = Bits().raw("0001 0000 000000").bytes();
    const auto read = movie(file(
        tag(48, u16(1) + u8(0) + u8(0) + u8(0) + u16(2) + u16(60000) + u16(6) + u16(0) + blank) +
        showFrame()));
    QCOMPARE(read->character(1)->as<Font>()->glyphs.size(), std::size_t(2));
  }
};

const prova::Iscrizione<MovieReaderTest> kIscritta;

}  // namespace movie_reader_test

#include "movie_reader_test.moc"
