#include "platform/devices/linux/sdl_sound.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QtEndian>
#include <memory>

#include "support/iscrizione.h"

namespace sdl_sound_test {

namespace {

// A mono sound of 16-bit samples that all have one value, 48,000 a second.
QByteArray wav(int milliseconds, qint16 value, quint32 rate = 48000) {
  const quint32 samples = rate / 1000 * static_cast<quint32>(milliseconds);
  const auto word = [](auto number) {
    QByteArray bytes(sizeof number, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
  };
  QByteArray data;
  for (quint32 i = 0; i < samples; ++i) {
    data += word(value);
  }
  return "RIFF" + word(quint32(36 + data.size())) + "WAVEfmt " + word(quint32{16}) +
         word(quint16{1}) + word(quint16{1}) + word(rate) + word(quint32(rate * 2)) +
         word(quint16{2}) + word(quint16{16}) + "data" + word(quint32(data.size())) + data;
}

struct Outcome {
  bool ended = false;
  int status = -1;
  qint64 afterReport = 0;  // ms from the report to the end of the process
  int gap = -1;
  int beeps = -1;
  int sleeps = -1;
  int signalsHandled = -1;
  QByteArray complaints;
  [[nodiscard]] qsizetype complaintLines() const { return complaints.count('\n'); }
};

}  // namespace

class SdlSoundTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    folder_ = std::make_unique<QTemporaryDir>();
    QVERIFY(folder_->isValid());
    environment_ = QProcessEnvironment::systemEnvironment();
    environment_.insert(QStringLiteral("SDL_AUDIODRIVER"), QStringLiteral("disk"));
    environment_.insert(QStringLiteral("SDL_DISKAUDIOFILE"), file("played"));
    // Nothing of the machine's own sound.
    environment_.insert(QStringLiteral("XDG_RUNTIME_DIR"), folder_->path());
    environment_.insert(QStringLiteral("PULSE_SERVER"), QStringLiteral("unix:") + file("none"));
    environment_.insert(QStringLiteral("PULSE_RUNTIME_PATH"), folder_->path());
    environment_.insert(QStringLiteral("PIPEWIRE_RUNTIME_DIR"), folder_->path());
  }

  void aSoundIsPlayedWholeAndOnce() {
    const Outcome outcome = run({write("a.wav", wav(300, 1000)), QStringLiteral("1500")});
    QVERIFY(outcome.ended);
    QCOMPARE(outcome.beeps, 0);
    QCOMPARE(played(1000), 300);
    QCOMPARE(runs({1000}), QList<qint16>{1000});
  }

  void anotherSoundIsPlayedAfterTheDeviceWasClosed() {
    // The disk device begins its file anew each time that it is opened.
    const Outcome outcome = run({write("a.wav", wav(100, 1000)), QStringLiteral("1200"),
                                 write("b.wav", wav(100, 2000)), QStringLiteral("1200")});
    QVERIFY(outcome.ended);
    QCOMPARE(played(1000), 0);
    QCOMPARE(played(2000), 100);
  }

  void aNewSoundCutsOffTheOneThatPlays() {
    const Outcome outcome = run({write("a.wav", wav(5000, 1000)), QStringLiteral("600"),
                                 write("b.wav", wav(200, 2000)), QStringLiteral("1200")});
    QVERIFY(outcome.ended);
    QVERIFY2(played(1000) > 100 && played(1000) < 1500, qPrintable(QString::number(played(1000))));
    QCOMPARE(played(2000), 200);
    QCOMPARE(runs({1000, 2000}), (QList<qint16>{1000, 2000}));
  }

  void aNewSoundOfAnotherFormatCutsOffTheOneThatPlays() {
    const Outcome outcome = run({write("a.wav", wav(5000, 1000)), QStringLiteral("600"),
                                 write("b.wav", wav(200, 2000, 24000)), QStringLiteral("1500")});
    QVERIFY(outcome.ended);
    QCOMPARE(played(1000), 0);    // the file was begun anew
    QCOMPARE(played(2000), 100);  // 200 ms at half the rate
  }

  void ofManySoundsAtOnceTheLastIsHeard() {
    const QString a = write("a.wav", wav(200, 1000));
    const QString b = write("b.wav", wav(200, 2000));
    QStringList arguments;
    for (int i = 0; i < 50; ++i) {
      arguments << a << QStringLiteral("0");
    }
    const Outcome outcome = run(arguments << b << QStringLiteral("1500"));
    QVERIFY(outcome.ended);
    QCOMPARE(played(2000), 200);
  }

  void aMissingSoundBeeps() {
    const Outcome outcome = run({file("missing.wav"), QStringLiteral("100")});
    QVERIFY(outcome.ended);
    QCOMPARE(outcome.beeps, 1);
    QCOMPARE(outcome.complaints, QByteArray());
  }

  void aFolderInPlaceOfASoundBeeps() {
    const Outcome outcome = run({folder_->path(), QStringLiteral("100")});
    QCOMPARE(outcome.beeps, 1);
  }

  void aFileThatIsNoSoundBeeps_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("this is no sound, whatever its name says");
    QTest::newRow("header alone") << wav(100, 1).left(20);
    QTest::newRow("no format") << wav(100, 1).replace("fmt ", "nope");
  }
  void aFileThatIsNoSoundBeeps() {
    QFETCH(QByteArray, bytes);
    const Outcome outcome = run({write("broken.wav", bytes), QStringLiteral("800")});
    QVERIFY(outcome.ended);
    QCOMPARE(outcome.beeps, 1);
    QVERIFY(outcome.complaintLines() <= 1);
  }

  void aProgramThatSleepsIsWokenToBeep() {
    constexpr int kPatience = 10'000;
    QEventLoop loop;
    platform::SdlSound sound([&loop] { loop.quit(); });
    QTimer::singleShot(kPatience, &loop, &QEventLoop::quit);
    QElapsedTimer clock;
    clock.start();
    sound.play(write("broken.wav", "no sound"));
    loop.exec();
    QVERIFY2(clock.elapsed() < kPatience - 1000, qPrintable(QString::number(clock.elapsed())));
  }

  void aSoundThatIsCutShortIsPlayedAsFarAsItGoes() {
    const Outcome outcome =
        run({write("short.wav", wav(200, 1000).left(44 + 9600)), QStringLiteral("1200")});
    QVERIFY(outcome.ended);
    QCOMPARE(outcome.beeps, 0);
    QCOMPARE(played(1000), 100);
  }

  void aSoundOfNoLengthIsNoTrouble() {
    const Outcome outcome = run({write("nothing.wav", wav(0, 0)), QStringLiteral("800"),
                                 write("a.wav", wav(100, 1000)), QStringLiteral("1000")});
    QVERIFY(outcome.ended);
    QCOMPARE(played(1000), 100);
  }

  void anIdleProgramIsNotWokenAfterASound() {
    environment_.insert(QStringLiteral("SDL_AUDIODRIVER"), QStringLiteral("dummy"));
    const Outcome outcome = run({write("a.wav", wav(200, 1000)), QStringLiteral("1500")}, 2000);
    QVERIFY(outcome.ended);
    // The one wake-up is that of the report itself.
    QVERIFY2(outcome.sleeps >= 0 && outcome.sleeps <= 5,
             qPrintable(QString::number(outcome.sleeps)));
  }

  void theSignalsStayTheProgramsOwn() {
    const Outcome outcome = run({write("a.wav", wav(200, 1000)), QStringLiteral("300")});
    QCOMPARE(outcome.signalsHandled, 0);
  }

  void withoutAnySoundSystemThereIsSilence() {
    environment_.remove(QStringLiteral("SDL_AUDIODRIVER"));
    const QString a = write("a.wav", wav(200, 1000));
    const Outcome outcome =
        run({a, QStringLiteral("800"), a, QStringLiteral("800"), a, QStringLiteral("800")});
    checkHarmless(outcome);
  }

  void aSoundSystemThatDoesNotExistGivesSilence() {
    environment_.insert(QStringLiteral("SDL_AUDIODRIVER"), QStringLiteral("gramophone"));
    const QString a = write("a.wav", wav(200, 1000));
    const Outcome outcome = run({a, QStringLiteral("500"), a, QStringLiteral("500")});
    checkHarmless(outcome);
    QCOMPARE(outcome.complaintLines(), 1);
  }

  void aServerThatRefusesGivesSilence() {
    environment_.remove(QStringLiteral("SDL_AUDIODRIVER"));
    environment_.insert(QStringLiteral("PULSE_SERVER"), QStringLiteral("tcp:127.0.0.1:1"));
    const QString a = write("a.wav", wav(200, 1000));
    const Outcome outcome = run({a, QStringLiteral("800"), a, QStringLiteral("800")});
    checkHarmless(outcome);
  }

  void aServerThatHangsHoldsNeitherTheWindowNorTheEndUp() {
    environment_.remove(QStringLiteral("SDL_AUDIODRIVER"));
    QLocalServer hung;
    QVERIFY(hung.listen(file("hung")));
    environment_.insert(QStringLiteral("PULSE_SERVER"), QStringLiteral("unix:") + file("hung"));
    const QString a = write("a.wav", wav(200, 1000));
    const Outcome outcome = run({a, QStringLiteral("800"), a, QStringLiteral("800"),
                                 file("missing.wav"), QStringLiteral("200")});
    QVERIFY(hung.waitForNewConnection(0));  // the server was really asked
    QVERIFY(outcome.ended);
    QCOMPARE(outcome.status, 0);
    QVERIFY2(outcome.gap <= 100, qPrintable(QString::number(outcome.gap)));
    QVERIFY2(outcome.afterReport < 1000, qPrintable(QString::number(outcome.afterReport)));
    QVERIFY2(outcome.complaintLines() <= 1, outcome.complaints.constData());
    QCOMPARE(outcome.beeps, 1);  // the missing sound's, at once
  }

  void whateverTheLibrariesSayThereIsAtMostOneLineAboutSound_data() {
    QTest::addColumn<QByteArray>("how");
    QTest::addColumn<QByteArray>("lines");
    QTest::newRow("the sound plays") << QByteArray("plays") << QByteArray();
    QTest::newRow("there is no device")
        << QByteArray("no device") << QByteArray("No sound: no device here\n");
    QTest::newRow("the reason has several lines")
        << QByteArray("many lines") << QByteArray("No sound: first second third\n");
    QTest::newRow("the system hangs") << QByteArray("hangs") << QByteArray();
  }
  void whateverTheLibrariesSayThereIsAtMostOneLineAboutSound() {
    QFETCH(QByteArray, how);
    QFETCH(QByteArray, lines);
    chatter(how);
    const QString a = write("a.wav", wav(100, 1000));
    const Outcome outcome = run({a, QStringLiteral("600"), a, QStringLiteral("600")});
    QVERIFY(QFile::exists(file("chattered")));  // it did write, to streams that were open
    checkHarmless(outcome);
    QCOMPARE(outcome.complaints, lines);
  }

  void theProgramsOwnLinesComeThroughWhileTheSoundSystemChattersAndHangs() {
    chatter("hangs");
    environment_.insert(QStringLiteral("PROBE_TALKS"), QStringLiteral("1"));
    const QString a = write("a.wav", wav(100, 1000));
    const Outcome outcome = run({a, QStringLiteral("300"), a, QStringLiteral("300")});
    checkEnd(outcome);
    QCOMPARE(outcome.complaints, QByteArray("own line\nplain line\n").repeated(2));
  }

  void aSoundThatWaitsForABeepGoesWithItsObject() {
    // A broken file whose beep is under way when the object goes: nobody beeps any more.
    int beeps = 0;
    const QString broken = write("broken.wav", "no sound");
    for (int i = 0; i < 20; ++i) {
      platform::SdlSound sound([&beeps] { ++beeps; });
      sound.play(broken);
      if (i % 2 == 0) {
        QTest::qSleep(2);
      }
    }
    const int before = beeps;
    QTest::qWait(50);
    QCOMPARE(beeps, before);
  }

 private:
  [[nodiscard]] QString file(const char* name) const {
    return folder_->filePath(QString::fromLatin1(name));
  }
  QString write(const char* name, const QByteArray& bytes) {
    QFile out(file(name));
    if (!out.open(QFile::WriteOnly) || out.write(bytes) != bytes.size()) {
      return {};
    }
    return out.fileName();
  }

  // idle: for how many milliseconds at the end the probe does nothing.
  Outcome run(const QStringList& arguments, int idle = 0) {
    QProcess probe;
    probe.setProcessEnvironment(environment_);
    probe.start(QStringLiteral(PROBES "/probe_sound"),
                QStringList(QString::number(idle)) + arguments);
    Outcome outcome;
    QByteArray report;
    while (!report.contains('\n') && probe.waitForReadyRead(40'000)) {
      report += probe.readAllStandardOutput();
    }
    QElapsedTimer clock;
    clock.start();
    outcome.ended = probe.waitForFinished(40'000) && probe.exitStatus() == QProcess::NormalExit;
    outcome.afterReport = clock.elapsed();
    outcome.status = probe.exitCode();
    outcome.complaints = probe.readAllStandardError();
    const QList<QByteArray> words = report.simplified().split(' ');
    if (words.size() == 8) {
      outcome.gap = words[1].toInt();
      outcome.beeps = words[3].toInt();
      outcome.sleeps = words[5].toInt();
      outcome.signalsHandled = words[7].toInt();
    }
    return outcome;
  }

  // In the place of the sound library comes one whose every call, and whose own thread, writes to
  // the standard streams.
  void chatter(const QByteArray& how) {
    environment_.insert(QStringLiteral("LD_LIBRARY_PATH"), QStringLiteral(CHATTERING_SDL));
    environment_.insert(QStringLiteral("CHATTER_HOW"), QString::fromLatin1(how));
    environment_.insert(QStringLiteral("CHATTER_SEEN"), file("chattered"));
  }

  static void checkEnd(const Outcome& outcome) {
    QVERIFY(outcome.ended);
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.beeps, 0);
    QVERIFY2(outcome.gap >= 0 && outcome.gap <= 100, qPrintable(QString::number(outcome.gap)));
    QVERIFY(outcome.afterReport < 1000);
  }
  static void checkHarmless(const Outcome& outcome) {
    checkEnd(outcome);
    QVERIFY2(outcome.complaintLines() <= 1, outcome.complaints.constData());
  }

  [[nodiscard]] QList<qint16> samples() const {
    QFile in(file("played"));
    QList<qint16> all;
    if (in.open(QFile::ReadOnly)) {
      const QByteArray bytes = in.readAll();
      for (qsizetype i = 0; i + 1 < bytes.size(); i += 2) {
        all.append(qFromLittleEndian<qint16>(bytes.constData() + i));
      }
    }
    return all;
  }
  // For how many milliseconds, at 48,000 samples a second, that value was played.
  [[nodiscard]] int played(qint16 value) const {
    return static_cast<int>(samples().count(value) / 48);
  }
  // The values in the order in which they were played, each run of one value once.
  [[nodiscard]] QList<qint16> runs(const QList<qint16>& values) const {
    QList<qint16> order;
    for (const qint16 sample : samples()) {
      if (values.contains(sample) && (order.isEmpty() || order.constLast() != sample)) {
        order.append(sample);
      }
    }
    return order;
  }

  std::unique_ptr<QTemporaryDir> folder_;
  QProcessEnvironment environment_;
};

const prova::Iscrizione<SdlSoundTest, QCoreApplication> kIscritta;

}  // namespace sdl_sound_test

#include "sdl_sound_test.moc"
