#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTest>

// What the tests of profile files begin with, and what they look for.
namespace profile_bytes {

inline const QString section = QStringLiteral("Language");
inline const QString key = QStringLiteral("CurrentLanguage");
inline const QByteArray oldBytes(
    "; scelta\r\n[Language]\r\nCurrentLanguage=\"Italiano\"\r\n[X]\r\nk=\xE0");
inline const QByteArray newBytes(
    "; scelta\r\n[Language]\r\nCurrentLanguage=English\r\n[X]\r\nk=\xE0");

inline QByteArray bytesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("not there");
}

inline void put(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  QVERIFY(file.open(QIODevice::WriteOnly));
  QCOMPARE(file.write(bytes), bytes.size());
}

}  // namespace profile_bytes
