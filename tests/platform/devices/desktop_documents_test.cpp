#include "platform/devices/linux/desktop_documents.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <memory>
#include <vector>

#include "support/iscrizione.h"

namespace desktop_documents_test {

using platform::DesktopDocuments;

// The desktop's opener is a script that notes what it is asked for.
class DesktopDocumentsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    folder_ = std::make_unique<QTemporaryDir>();
    QVERIFY(folder_->isValid());
    QVERIFY(QDir(folder_->path()).mkdir(QStringLiteral("bin")));
    path_ = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(folder_->filePath(QStringLiteral("bin"))) + ":" + path_);
    document_ = folder_->filePath(QStringLiteral("il manuale è qui.pdf"));
    write(document_, "%PDF");
  }
  void cleanup() { qputenv("PATH", path_); }

  void aDocumentIsHandedToTheDesktop() {
    makeOpener("printf '%s|%s' \"$#\" \"$1\" > \"$NOTE.new\"; mv \"$NOTE.new\" \"$NOTE\"");
    DesktopDocuments().open(document_);
    QTRY_COMPARE(note(), "1|" + document_.toUtf8());
  }

  void aRelativePathIsMadeAbsolute() {
    makeOpener("printf '%s' \"$1\" > \"$NOTE.new\"; mv \"$NOTE.new\" \"$NOTE\"");
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder_->path()));
    const QString odd = folder_->filePath(QStringLiteral("--help"));
    write(odd, "x");
    DesktopDocuments().open(QStringLiteral("--help"));
    QVERIFY(QDir::setCurrent(before));
    QTRY_COMPARE(note(), odd.toUtf8());
  }

  void aMissingDocumentIsNotHandedOver() {
    makeOpener("printf called > \"$NOTE\"");
    DesktopDocuments().open(folder_->filePath(QStringLiteral("missing.pdf")));
    DesktopDocuments().open(QString());
    // What is started after these comes after them.
    DesktopDocuments().open(document_);
    QTRY_COMPARE(note(), QByteArray("called"));
    QCOMPARE(calls(), 1);
  }

  void nothingHappensWithoutAnOpener() {
    qputenv("PATH", "/nowhere");
    DesktopDocuments().open(document_);
    QCOMPARE(calls(), 0);
  }

  void anOpenerThatHangsHoldsNobodyUp() {
    makeOpener("printf called > \"$NOTE\"; exec sleep 5");
    // None is waited for; and what stands in the way of an answer does so every time, a busy
    // machine now and then.
    std::vector<qint64> times;
    for (int i = 0; i < 5; ++i) {
      QElapsedTimer clock;
      clock.start();
      DesktopDocuments().open(document_);
      times.push_back(clock.elapsed());
    }
    const auto [shortest, longest] = std::ranges::minmax(times);
    QVERIFY2(shortest < 100, qPrintable(QString::number(shortest)));
    QVERIFY2(longest < 4000, qPrintable(QString::number(longest)));
    QTRY_COMPARE(note(), QByteArray("called"));
  }

  void theOpenerHasNoneOfTheProgramsStreams() {
    makeOpener(
        "for i in 0 1 2; do readlink /proc/$$/fd/$i; done > \"$NOTE.new\"; mv \"$NOTE.new\" "
        "\"$NOTE\"");
    DesktopDocuments().open(document_);
    QTRY_VERIFY(!note().isEmpty());
    const QList<QByteArray> streams = note().trimmed().split('\n');
    QCOMPARE(streams.size(), 3);
    QCOMPARE(streams[0], QByteArray("/dev/null"));
    QCOMPARE(streams[2], QByteArray("/dev/null"));
  }

  void anOpenerThatFailsLeavesNothingBehind() {
    makeOpener("printf called > \"$NOTE\"; echo noise; echo noise >&2; exit 4");
    DesktopDocuments().open(document_);
    QTRY_COMPARE(note(), QByteArray("called"));
    // A child that nobody waits for would show here as one of this process'.
    QFile children(
        QStringLiteral("/proc/self/task/%1/children").arg(QCoreApplication::applicationPid()));
    QVERIFY(children.open(QFile::ReadOnly));
    QCOMPARE(children.readAll(), QByteArray());
  }

 private:
  static void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    QVERIFY(file.open(QFile::WriteOnly));
    file.write(bytes);
  }
  [[nodiscard]] QString notePath() const { return folder_->filePath(QStringLiteral("note")); }
  [[nodiscard]] QByteArray note() const {
    QFile file(notePath());
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
  }
  [[nodiscard]] int calls() const {
    QFile file(notePath() + QStringLiteral(".calls"));
    return file.open(QFile::ReadOnly) ? static_cast<int>(file.readAll().size()) : 0;
  }
  void makeOpener(const QByteArray& script) {
    const QString opener = folder_->filePath(QStringLiteral("bin/xdg-open"));
    const QByteArray name = QFile::encodeName(notePath());
    write(opener, "#!/bin/sh\nNOTE='" + name + "'\nprintf x >> \"$NOTE.calls\"\n" + script + "\n");
    QVERIFY(QFile::setPermissions(opener, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
  }

  std::unique_ptr<QTemporaryDir> folder_;
  QByteArray path_;
  QString document_;
};

const prova::Iscrizione<DesktopDocumentsTest, QCoreApplication> kIscritta;

}  // namespace desktop_documents_test

#include "desktop_documents_test.moc"
