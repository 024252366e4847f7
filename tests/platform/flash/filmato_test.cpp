// The program filmato, run as a process on movies made by hand.

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "hand_made.h"
#include "support/iscrizione.h"

namespace filmato_test {

using namespace hand_made;

class FilmatoTest : public QObject {
  Q_OBJECT

 private:
  struct Result {
    int status = -1;
    QList<QJsonObject> records;

    [[nodiscard]] QList<QJsonObject> of(const char* event) const {
      QList<QJsonObject> found;
      for (const QJsonObject& record : records) {
        if (record[QStringLiteral("ev")].toString() == QLatin1StringView(event)) {
          found << record;
        }
      }
      return found;
    }
  };

  QString write(const char* name, const QByteArray& bytes) {
    const QString path = folder_.filePath(QString::fromLatin1(name));
    QFile out(path);
    if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size()) {
      qFatal("cannot write a file");
    }
    return path;
  }

  static Result run(const QStringList& arguments) {
    QProcess process;
    QProcessEnvironment bare;  // no display, no platform chosen
    process.setProcessEnvironment(bare);
    process.start(QStringLiteral(FILMATO), arguments);
    Result result;
    if (!process.waitForFinished(60'000) || process.exitStatus() != QProcess::NormalExit) {
      return result;
    }
    result.status = process.exitCode();
    for (const QByteArray& line : process.readAllStandardOutput().split('\n')) {
      if (!line.isEmpty()) {
        result.records << QJsonDocument::fromJson(line).object();
      }
    }
    return result;
  }

  Result play(const QByteArray& movie, const QByteArray& steps) {
    return run({write("m.swf", movie), write("s.json", steps),
                folder_.filePath(QStringLiteral("out")), QStringLiteral("test")});
  }

  QTemporaryDir folder_;

 private Q_SLOTS:
  void itTellsWhatTheMovieIsFirstAndThatItIsDoneLast() {
    const QByteArray movie =
        file(tag(9, u8(0xFF) + u8(0xEE) + u8(0x0A)) + showFrame() + showFrame(), 6, 210, 90, 2);
    const Result result = play(movie, "[]");
    QCOMPARE(result.status, 0);
    QCOMPARE(result.records.size(), 2);
    QCOMPARE(result.records[0],
             QJsonDocument::fromJson(
                 "{\"ev\":\"meta\",\"version\":6,\"compressed\":false,\"frames\":2,"
                 "\"width\":210,\"height\":90,\"rate\":12,\"background\":\"#FFEE0A\"}")
                 .object());
    QCOMPARE(result.records[1], QJsonDocument::fromJson(R"({"ev":"done","ok":true})").object());
  }

  void loadingIsStepMinusOneAndWaitsAreSingleFrames() {
    const QByteArray movie = file(doAction(tell("one", "1")) + showFrame() + doAction(tell("two")) +
                                      showFrame() + doAction(tell("three")) + showFrame(),
                                  6, 10, 10, 3);
    const Result result = play(movie, R"([{"wait":0,"frame":true},{"wait":2,"frame":true}])");
    const auto commands = result.of("fscommand");
    QCOMPARE(commands.size(), 3);
    QCOMPARE(commands[0],
             QJsonDocument::fromJson(R"({"ev":"fscommand","command":"one","args":"1","step":-1})")
                 .object());
    QCOMPARE(commands[1][QStringLiteral("step")].toInt(), 1);
    QCOMPARE(commands[2][QStringLiteral("command")].toString(), QStringLiteral("three"));
    const auto frames = result.of("frame");
    QCOMPARE(frames[0], QJsonDocument::fromJson(R"({"ev":"frame","step":0,"value":1})").object());
    QCOMPARE(frames[1], QJsonDocument::fromJson(R"({"ev":"frame","step":1,"value":3})").object());
  }

  void gotoStopAndPlayDriveTheMainTimeline() {
    const QByteArray movie =
        file(showFrame() + showFrame() + showFrame() + showFrame(), 6, 10, 10, 4);
    const Result result = play(movie, R"([{"goto":3,"frame":true},{"wait":1,"frame":true},
        {"play":true},{"wait":1,"frame":true},{"stop":true},{"wait":5,"frame":true}])");
    QList<int> values;
    for (const QJsonObject& record : result.of("frame")) {
      values << record[QStringLiteral("value")].toInt();
    }
    QCOMPARE(values, (QList<int>{3, 3, 4, 4}));
  }

  void propertiesAreSetAndRead() {
    const QByteArray movie = file(sprite(1, showFrame()) + place(1, 1, 5, 0, "a") + showFrame());
    const Result result = play(movie, R"([
        {"get":{"target":"a","prop":0}},
        {"set":{"target":"/a","prop":7,"value":"0"}},
        {"get":{"target":"_root.a","prop":7}},
        {"set":{"target":"a","prop":6,"value":"50"}},
        {"get":{"target":"a","prop":6}},
        {"get":{"target":"","prop":5}},
        {"get":{"target":"nobody","prop":5}}])");
    QStringList values;
    for (const QJsonObject& record : result.of("get")) {
      values << record[QStringLiteral("value")].toString();
    }
    QCOMPARE(values, (QStringList{QStringLiteral("5"), QStringLiteral("0"), QStringLiteral("50"),
                                  QStringLiteral("1"), QString()}));
  }

  void theMouseClicksAndTheCursorTells() {
    const QByteArray button =
        tag(7, u16(2) + u8(8) + u16(1) + u16(1) + shift(0, 0) + u8(0) + tell("k1", "hit") + u8(0));
    const QByteArray movie = file(square(1, 10, 0) + button + place(1, 2, 20, 20) + showFrame());
    const Result result = play(movie, R"([
        {"move":[5,5],"cursor":true},{"move":[25,25],"cursor":true},
        {"click":[25.5,25.5]},
        {"down":[25,25]},{"up":[25,25]},
        {"down":[25,25]},{"up":[5,5]}])");
    const auto cursors = result.of("cursor");
    QCOMPARE(cursors[0],
             QJsonDocument::fromJson(R"({"ev":"cursor","step":0,"value":"arrow"})").object());
    QCOMPARE(cursors[1],
             QJsonDocument::fromJson(R"({"ev":"cursor","step":1,"value":"hand"})").object());
    const auto commands = result.of("fscommand");
    QCOMPARE(commands.size(), 2);
    QCOMPARE(commands[0][QStringLiteral("step")].toInt(), 2);
    QCOMPARE(commands[1][QStringLiteral("step")].toInt(), 4);
  }

  void aShotIsThePictureOfTheStage() {
    const QByteArray movie = file(
        tag(9, u8(1) + u8(2) + u8(3)) + square(1, 10, 0xFF0000) + place(1, 1, 5, 5) + showFrame(),
        6, 40, 30);
    const Result result = play(movie, R"([{"shot":"first"}])");
    const auto shots = result.of("shot");
    QCOMPARE(shots.size(), 1);
    QCOMPARE(shots[0][QStringLiteral("shot")].toString(), QStringLiteral("first"));
    QCOMPARE(shots[0][QStringLiteral("size")].toArray(), (QJsonArray{40, 30}));
    const QImage image(shots[0][QStringLiteral("file")].toString());
    QCOMPARE(image.size(), QSize(40, 30));
    QCOMPARE(image.pixel(0, 0), qRgb(1, 2, 3));
    QCOMPARE(image.pixel(5, 5), 0xFFFF0000);
    QCOMPARE(image.pixel(15, 5), qRgb(1, 2, 3));
  }

  void aFileThatIsNoMovieIsRejectedWithStatusOne() {
    const Result result = play("not a movie at all", "[]");
    QCOMPARE(result.status, 1);
    QCOMPARE(result.records.size(), 1);
    QCOMPARE(result.records[0][QStringLiteral("ev")].toString(), QStringLiteral("rejected"));
    QVERIFY(!result.records[0][QStringLiteral("why")].toString().isEmpty());
    QCOMPARE(run({folder_.filePath(QStringLiteral("none.swf")), write("s.json", "[]"),
                  folder_.path(), QStringLiteral("x")})
                 .status,
             1);
  }

  void wrongArgumentsGiveStatusTwo() {
    const QString movie = write("m.swf", file(showFrame()));
    const QString steps = write("s.json", "[]");
    QCOMPARE(run({}).status, 2);
    QCOMPARE(run({movie, steps, folder_.path()}).status, 2);
    QCOMPARE(run({movie, steps, folder_.path(), QStringLiteral("a"), QStringLiteral("b")}).status,
             2);
    QCOMPARE(run({movie, folder_.filePath(QStringLiteral("none.json")), folder_.path(),
                  QStringLiteral("a")})
                 .status,
             2);
    for (const char* wrong :
         {"", "{}", "[{}]", "[1]", R"([{"jump":1}])", R"([{"wait":"x"}])", R"([{"wait":-1}])",
          R"([{"click":[1]}])", R"([{"wait":1,"goto":1}])", R"([{"set":{"target":"a"}}])"}) {
      QCOMPARE(run({movie, write("w.json", wrong), folder_.path(), QStringLiteral("a")}).status, 2);
    }
  }
};

const prova::Iscrizione<FilmatoTest, QCoreApplication> kIscritta;

}  // namespace filmato_test

#include "filmato_test.moc"
