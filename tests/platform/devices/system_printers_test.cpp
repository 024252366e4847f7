#include "platform/devices/system_printers.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "platform/base/paper_codes.h"
#include "platform/devices/linux/cups_library.h"
#include "platform/devices/qt_time_source.h"
#include "print_server.h"
#include "support/iscrizione.h"
#include "support/stand_still.h"

namespace system_printers_test {

using devices_test::MutedServer;
using devices_test::PrintServer;
using devices_test::SilentServer;
using platform::Printers;
using platform::SystemPrinters;

namespace {

const QString kBuiltIn = QStringLiteral("PDF");
const QString kQueue = QStringLiteral("Prova");
constexpr std::chrono::milliseconds kShort{1000};

QDateTime now() {
  return QDateTime::currentDateTime();
}

// The printers of a machine whose print server is at the given address.
struct Machine {
  explicit Machine(const QByteArray& address, SystemPrinters::Patience patience = {})
      : printers(time, platform::PdfFolder({files.path()}, now), patience) {
    qputenv("CUPS_SERVER", address);
  }

  QTemporaryDir files;
  platform::QtTimeSource time;
  SystemPrinters printers;
};

// How long events were held up at most while something was done.
qint64 longestGap(const std::function<void()>& action) {
  prova::StandStill still;
  QTimer heart;
  QObject::connect(&heart, &QTimer::timeout, &heart, [&] { still.beat(); });
  heart.start(5);
  action();
  still.beat();
  return still.longest();
}

// A PDF document of one empty A4 page, put together by hand.
QByteArray onePage() {
  return "%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n"
         "2 0 obj<</Type/Pages/Kids[3 0 R]/Count 1>>endobj\n"
         "3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 595 842]/Contents 4 0 R>>endobj\n"
         "4 0 obj<</Length 25>>stream\n100 100 200 50 re f     \nendstream endobj\n"
         "trailer<</Root 1 0 R>>\n%%EOF\n";
}

// The description of a printer with these papers ("name width height", in points); the first is the
// one that it uses unless told otherwise.
QByteArray driverOf(const QByteArrayList& papers) {
  QByteArray text =
      "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
      "*LanguageVersion: English\n*LanguageEncoding: ISOLatin1\n*PCFileName: \"TRIAL.PPD\"\n"
      "*Manufacturer: \"Trial\"\n*Product: \"(Trial)\"\n*ModelName: \"Trial\"\n"
      "*ShortNickName: \"Trial\"\n*NickName: \"Trial\"\n*PSVersion: \"(3010.000) 0\"\n"
      "*LanguageLevel: \"3\"\n*ColorDevice: True\n*DefaultColorSpace: RGB\n"
      "*cupsFilter: \"application/vnd.cups-postscript 0 -\"\n";
  for (const char* option : {"PageSize", "PageRegion"}) {
    text += QByteArray("*OpenUI *") + option + ": PickOne\n*Default" + option + ": " +
            papers.first().split(' ').first() + '\n';
    for (const QByteArray& paper : papers) {
      text += QByteArray("*") + option + ' ' + paper.split(' ').first() + ": \"\"\n";
    }
    text += QByteArray("*CloseUI: *") + option + '\n';
  }
  text += "*DefaultImageableArea: " + papers.first().split(' ').first() +
          "\n*DefaultPaperDimension: " + papers.first().split(' ').first() + '\n';
  for (const QByteArray& paper : papers) {
    const QByteArray name = paper.split(' ').first();
    const QByteArray size = paper.mid(name.size() + 1);
    text += "*ImageableArea " + name + ": \"0 0 " + size + "\"\n*PaperDimension " + name + ": \"" +
            size + "\"\n";
  }
  return text;
}

platform::PrintJob job(const QString& printer, const QString& title,
                       const platform::PrinterSettings& settings) {
  return {printer, title, onePage(), settings};
}

}  // namespace

class SystemPrintersTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() { qputenv("CUPS_SERVER", "127.0.0.1:1"); }

  void withoutAPrintServerThereIsTheBuiltInPrinterAndItIsTheDefault() {
    Machine machine("127.0.0.1:1");
    const Printers::List list = machine.printers.list();
    QCOMPARE(list.names, QStringList{kBuiltIn});
    QCOMPARE(list.standard, kBuiltIn);
    const Printers::Opened opened = machine.printers.open(kBuiltIn);
    QVERIFY(opened.access == Printers::Access::Granted);
    QVERIFY(machine.printers.print(job(kBuiltIn, QStringLiteral("a"), opened.traits.standard))
                .finished);
    QCOMPARE(QDir(machine.files.path()).entryList(QDir::Files).size(), 1);
  }

  void aPrinterThatIsNotThereIsDenied() {
    Machine machine("127.0.0.1:1");
    QVERIFY(machine.printers.open(QStringLiteral("Nessuna")).access == Printers::Access::Denied);
    const platform::PrintResult result =
        machine.printers.print(job(QStringLiteral("Nessuna"), QStringLiteral("a"), {}));
    QCOMPARE(result.job, 0);
    QVERIFY(!result.finished);
  }

  void aServerThatDoesNotAnswerNeverHoldsTheWindow() {
    const SilentServer silent;
    Machine machine(silent.address(), {.list = kShort, .open = kShort});
    Printers::List list;
    qint64 gap = longestGap([&] { list = machine.printers.list(); });
    QVERIFY2(gap < 200, qPrintable(QString::number(gap)));
    QCOMPARE(list.names, QStringList{kBuiltIn});
    // Nobody knows what its default is; the file is not taken for it.
    QCOMPARE(list.standard, QString());
    gap = longestGap(
        [&] { QVERIFY(machine.printers.open(kQueue).access == Printers::Access::Denied); });
    QVERIFY2(gap < 200, qPrintable(QString::number(gap)));
  }

  void aServerIsWaitedForUpToTenSeconds() {
    const SilentServer silent;
    Machine machine(silent.address());
    QElapsedTimer clock;
    clock.start();
    const Printers::List list = machine.printers.list();
    QVERIFY2(clock.elapsed() > 9500 && clock.elapsed() < 11000,
             qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(list.standard, QString());
  }

  void aSlowServersQueueIsFoundAndPrintsInItsTime() {
    PrintServer server;
    QVERIFY2(server.problem().isEmpty(), qPrintable(server.problem()));
    QVERIFY(server.addQueue(kQueue));
    QVERIFY(server.administer({QStringLiteral("-d"), kQueue}));
    MutedServer slow(server.port());
    slow.answerAfter(2000);
    Machine machine(slow.address());
    const Printers::List list = machine.printers.list();
    QCOMPARE(list.names, (QStringList{kQueue, kBuiltIn}));
    QCOMPARE(list.standard, kQueue);
    const Printers::Opened opened = machine.printers.open(kQueue);
    QVERIFY(opened.access == Printers::Access::Granted);
    const platform::PrintResult result =
        machine.printers.print(job(kQueue, QStringLiteral("lavoro-lento"), opened.traits.standard));
    QVERIFY(result.finished);
    QVERIFY(server.takePrinted(QStringLiteral("lavoro-lento")).startsWith("%PDF"));
    QCOMPARE(QDir(machine.files.path()).entryList(QDir::Files).size(), 0);
  }

  void theQueuesOfTheServerComeBeforeTheBuiltInPrinter() {
    PrintServer server;
    QVERIFY2(server.problem().isEmpty(), qPrintable(server.problem()));
    QVERIFY(server.addQueue(kQueue));
    QVERIFY(server.addQueue(QStringLiteral("Altra")));
    Machine machine(server.address());
    const Printers::List list = machine.printers.list();
    QCOMPARE(list.names, (QStringList{QStringLiteral("Altra"), kQueue, kBuiltIn}));
    QCOMPARE(list.standard, kBuiltIn);
    QVERIFY(server.administer({QStringLiteral("-d"), kQueue}));
    QCOMPARE(machine.printers.list().standard, kQueue);
  }

  void aQueueWithTheNameOfTheBuiltInPrinterKeepsIt() {
    PrintServer server;
    QVERIFY2(server.problem().isEmpty(), qPrintable(server.problem()));
    QVERIFY(server.addQueue(kBuiltIn));
    Machine machine(server.address());
    const Printers::List list = machine.printers.list();
    QCOMPARE(list.names, (QStringList{kBuiltIn, QStringLiteral("PDF (file)")}));
    QVERIFY(machine.printers.open(kBuiltIn).traits.feedsUpright);
    QVERIFY(!machine.printers.open(list.names.last()).traits.feedsUpright);
    // Also while a search does not find the queue.
    qputenv("CUPS_SERVER", "127.0.0.1:1");
    QCOMPARE(machine.printers.list().names, QStringList{QStringLiteral("PDF (file)")});
  }

  void aQueueTellsItsPapersAndColors() {
    PrintServer server;
    QVERIFY2(server.problem().isEmpty(), qPrintable(server.problem()));
    QVERIFY(server.addQueue(kQueue));
    Machine machine(server.address());
    const Printers::Opened opened = machine.printers.open(kQueue);
    QVERIFY(opened.access == Printers::Access::Granted);
    const platform::PrinterTraits& traits = opened.traits;
    QCOMPARE(traits.standard.paper.code, platform::kPaperA4);
    QVERIFY(std::abs(traits.standard.paper.width - 210) < 0.2);
    QVERIFY(std::abs(traits.standard.paper.height - 297) < 0.2);
    QVERIFY(std::any_of(traits.papers.begin(), traits.papers.end(),
                        [](const auto& paper) { return paper.code == platform::kPaperA3; }));
    QVERIFY(traits.printsColor);
    QVERIFY(traits.takesPages);
    QVERIFY(traits.feedsUpright);
    QVERIFY(traits.standard.orientation == platform::Orientation::Portrait);
  }

  void theUsersOwnPaperForAQueueIsTakenByAnyOfItsNames_data() {
    QTest::addColumn<QByteArray>("choice");
    QTest::newRow("short name") << QByteArray("media=A3");
    QTest::newRow("long name") << QByteArray("media=iso_a3_297x420mm");
    QTest::newRow("the driver's option") << QByteArray("PageSize=A3");
    QTest::newRow("the common option first") << QByteArray("PageSize=A5 media=A3");
  }
  void theUsersOwnPaperForAQueueIsTakenByAnyOfItsNames() {
    QFETCH(QByteArray, choice);
    PrintServer server;
    QVERIFY2(server.problem().isEmpty(), qPrintable(server.problem()));
    QVERIFY(server.addQueue(kQueue));
    const QTemporaryDir settings;
    QFile options(settings.filePath(QStringLiteral("lpoptions")));
    QVERIFY(options.open(QIODevice::WriteOnly));
    options.write("Dest " + kQueue.toUtf8() + ' ' + choice + '\n');
    options.close();
    qputenv("CUPS_SERVERROOT", settings.path().toUtf8());
    const auto asBefore = qScopeGuard([] { qunsetenv("CUPS_SERVERROOT"); });
    Machine machine(server.address());
    const Printers::Opened opened = machine.printers.open(kQueue);
    QVERIFY(opened.access == Printers::Access::Granted);
    QCOMPARE(opened.traits.standard.paper.code, platform::kPaperA3);
  }

  void aQueueWhoseStandardPaperHasNoSizePrintsOnOneThatHas_data() {
    QTest::addColumn<QByteArray>("others");  // its other papers, in points
    QTest::addColumn<double>("height");      // of the one that is taken, millimetres
    QTest::newRow("A4 where it is there")
        << QByteArray("A3 842 1191,A4 595 842,Letter 612 792") << 297.0;
    QTest::newRow("a label where there are labels alone")
        << QByteArray("Etichetta 283 425") << 150.0;
  }
  void aQueueWhoseStandardPaperHasNoSizePrintsOnOneThatHas() {
    QFETCH(QByteArray, others);
    QFETCH(double, height);
    PrintServer server;
    QVERIFY2(server.problem().isEmpty(), qPrintable(server.problem()));
    const QTemporaryDir folder;
    QFile ppd(folder.filePath(QStringLiteral("rotolo.ppd")));
    QVERIFY(ppd.open(QIODevice::WriteOnly));
    ppd.write(driverOf(QByteArrayList{"Rotolo 226 0"} + others.split(',')));
    ppd.close();
    QVERIFY(server.addQueue(kQueue, {QStringLiteral("-P"), ppd.fileName()}));
    Machine machine(server.address());
    const Printers::Opened opened = machine.printers.open(kQueue);
    QVERIFY(opened.access == Printers::Access::Granted);
    const platform::Paper& paper = opened.traits.standard.paper;
    QVERIFY2(paper.width > 0 && std::abs(paper.height - height) < 0.3,
             qPrintable(QStringLiteral("%1 x %2").arg(paper.width).arg(paper.height)));
    const QString title = QStringLiteral("lavoro-dal-rotolo");
    QVERIFY(machine.printers.print(job(kQueue, title, opened.traits.standard)).finished);
    QVERIFY(server.takePrinted(title).startsWith("%PDF"));
  }

  void aJobGoesThroughTheQueue() {
    PrintServer server;
    QVERIFY2(server.problem().isEmpty(), qPrintable(server.problem()));
    QVERIFY(server.addQueue(kQueue));
    Machine machine(server.address());
    const Printers::Opened opened = machine.printers.open(kQueue);
    const platform::PrintResult result = machine.printers.print(
        job(kQueue, QStringLiteral("lavoro-di-prova-uno"), opened.traits.standard));
    QVERIFY(result.job > 0);
    QVERIFY(result.finished);
    QVERIFY(server.takePrinted(QStringLiteral("lavoro-di-prova-uno")).startsWith("%PDF"));
  }

  void aQueueThatRefusesJobsGetsNone() {
    PrintServer server;
    QVERIFY2(server.problem().isEmpty(), qPrintable(server.problem()));
    QVERIFY(server.addQueue(kQueue));
    Machine machine(server.address());
    const Printers::Opened opened = machine.printers.open(kQueue);
    QProcess reject;
    reject.start(QStringLiteral("cupsreject"),
                 {QStringLiteral("-h"), QString::fromUtf8(server.address()), kQueue});
    QVERIFY(reject.waitForFinished() && reject.exitCode() == 0);
    const platform::PrintResult result = machine.printers.print(
        job(kQueue, QStringLiteral("lavoro-di-prova-due"), opened.traits.standard));
    QCOMPARE(result.job, 0);
    QVERIFY(!result.finished);
    QCOMPARE(server.openJobs(), QString());
  }

  void aQueueThatVanishesBetweenOpeningAndPrintingIsNoPrinter() {
    PrintServer server;
    QVERIFY2(server.problem().isEmpty(), qPrintable(server.problem()));
    QVERIFY(server.addQueue(kQueue));
    Machine machine(server.address());
    const Printers::Opened opened = machine.printers.open(kQueue);
    QVERIFY(opened.access == Printers::Access::Granted);
    QVERIFY(server.removeQueue(kQueue));
    QVERIFY(machine.printers.open(kQueue).access == Printers::Access::Denied);
    QVERIFY(!machine.printers
                 .print(job(kQueue, QStringLiteral("lavoro-di-prova-tre"), opened.traits.standard))
                 .finished);
  }

  void aServerThatFallsSilentBetweenOpeningAndPrintingNeverHoldsTheWindow_data() {
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("before a word of the print") << QByteArray();
    QTest::newRow("instead of answering to the job") << QByteArray("job-name");
    QTest::newRow("instead of answering to the pages") << QByteArray("last-document");
    QTest::newRow("instead of saying that it has the pages") << QByteArray("%%EOF");
  }
  void aServerThatFallsSilentBetweenOpeningAndPrintingNeverHoldsTheWindow() {
    QFETCH(QByteArray, after);
    PrintServer server;
    QVERIFY2(server.problem().isEmpty(), qPrintable(server.problem()));
    QVERIFY(server.addQueue(kQueue));
    MutedServer muted(server.port());
    Machine machine(muted.address(), {.print = std::chrono::milliseconds(1500)});
    const Printers::Opened opened = machine.printers.open(kQueue);
    QVERIFY(opened.access == Printers::Access::Granted);
    if (after.isEmpty()) {
      muted.fallSilent();
    } else {
      muted.fallSilentAfter(after);
    }
    const QString title = QStringLiteral("lavoro-muto");
    platform::PrintResult result{1, true};
    const qint64 gap = longestGap(
        [&] { result = machine.printers.print(job(kQueue, title, opened.traits.standard)); });
    QVERIFY2(gap < 200, qPrintable(QString::number(gap)));
    QVERIFY(muted.isSilent());
    QVERIFY(!result.finished);
    // A print that was told to have failed is not made up for when the server comes to itself.
    QVERIFY(muted.open() > 0);
    muted.speakAgain();
    QTRY_COMPARE_WITH_TIMEOUT(muted.open(), 0, 20000);
    QCOMPARE(server.openJobs(), QString());
    QCOMPARE(server.printed(title), QStringList());
  }

  void nothingOfCupsIsLoadedBeforeTheFirstCall() {
    // Its own process is too full for this; a library that is missing tells the rest.
    QVERIFY(!platform::CupsLibrary::load("libcups-that-is-not-there.so.2"));
    QVERIFY(platform::CupsLibrary::load().has_value());
  }
};

const prova::Iscrizione<SystemPrintersTest, QCoreApplication> kIscritta;

}  // namespace system_printers_test

#include "system_printers_test.moc"
