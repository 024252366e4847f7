// Writes the movies from which fuzz_flash_player sets out: some made by hand, one for each part of
// the format, and the program's own boards, unpacked, since what is packed hides its bytes from the
// fuzzer; and into another folder movies that ask for much, some of them too long for the fuzzer to
// set out from.
//
//   flash_seeds FOLDER COSTLY_FOLDER [MOVIE...]
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cstdio>

#include "platform/flash/limits.h"
#include "platform/flash/unpacked_file.h"
#include "tests/platform/flash/costly.h"
#include "tests/platform/flash/hand_made.h"

using namespace hand_made;

namespace {

void save(const QDir& folder, const QString& name, const QByteArray& bytes) {
  QFile out(folder.filePath(name));
  if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size()) {
    qFatal("cannot write %s", qUtf8Printable(out.fileName()));
  }
}

QByteArray functions() {
  const QByteArray function = action(0x9B, text("f") + u16(1) + text("a") + u16(5)) + pushText("") +
                              pushNumber(1) + pushNumber(1) + pushText("f") + action(0x3D);
  return doAction(say(pushText("this") + action(0x1C) + pushText("_name") + action(0x4E)) +
                  pushText("n") + pushNumber(3) + action(0x1D) + pushText("u1") + pushNumber(6) +
                  pushNumber(50) + action(0x23) + function + action(0x8B, text("u1")) +
                  action(0x81, u16(1)) + action(0x9D, u16(3)) + action(0x88, u16(1) + text("c")));
}

QByteArray button() {
  const QByteArray records =
      u8(15) + u16(1) + u16(1) + shift(0, 0) + Bits().raw("0 0 0000").bytes() + u8(0);
  return tag(34, u16(3) + u8(0) + u16(unsigned(records.size()) + 2) + records + u16(0) +
                     u16(0x1FF) + tell("b", "x") + u8(0));
}

QByteArray handlers() {
  const QByteArray actions = tell("load") + stop() + u8(0);
  return tag(26, u8(0xE6) + u16(4) + u16(2) + shift(20, 20) + text("u2") + u16(9) + u16(0) +
                     u32(0x1FFFF) + u32(0x1FFFF & ~(1U << 17U)) +
                     u32(std::uint32_t(actions.size())) + actions + u32(0));
}

QByteArray writing() {
  const QByteArray glyph = Bits()
                               .raw("0001 0000  0 00101 10001")
                               .number(17, 0)
                               .number(17, 0)
                               .raw("1  1 0 1111")
                               .number(17, 99)
                               .number(17, 99)
                               .number(17, 99)
                               .number(17, 9)
                               .raw("000000")
                               .bytes();
  return tag(48, u16(5) + u8(0) + u8(0) + u8(0) + u16(1) + u16(4) + u16(4) + glyph) +
         tag(11, u16(6) + rect(0, 100, 0, 100) + shift(0, 0) + u8(1) + u8(8) + u8(0x8F) + u16(5) +
                     u8(1) + u8(2) + u8(3) + u16(9) + u16(9) + u16(400) + u8(2) +
                     Bits().raw("0 00010000 0 00010000").bytes() + u8(0)) +
         place(9, 6);
}

QByteArray gradient() {
  Bits records;
  records.raw("0001 0001  0 01101 00001 0 0 1 1");
  rectangleEdges(records, 0, 0, 900, 700).raw("000000");
  return tag(32, u16(7) + rect(0, 900, 0, 700) + u8(1) + u8(0x12) + shift(300, 300) + u8(2) +
                     u8(0) + u32(0xFF00FF00) + u8(255) + u32(0x80FF0000) + u8(1) + u16(30) +
                     u32(0xFF000000) + records.bytes()) +
         place(8, 7, 5, 5);
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc < 3) {
    std::fprintf(stderr, "usage: flash_seeds FOLDER COSTLY_FOLDER [MOVIE...]\n");
    return 2;
  }
  const QDir folder(QString::fromLocal8Bit(argv[1]));
  const QDir costlyFolder(QString::fromLocal8Bit(argv[2]));
  if (!folder.mkpath(QStringLiteral(".")) || !costlyFolder.mkpath(QStringLiteral("."))) return 1;
  const QByteArray clip =
      square(1, 10, 0xFF0000) +
      sprite(2, place(1, 1) + showFrame() + moveTo(1, 3, 3) + doAction(tell("two")) + showFrame(),
             2);
  const QByteArray board = clip + place(1, 2, 3, 3, "u1");
  save(folder, QStringLiteral("clip"), file(board + showFrame()));
  save(folder, QStringLiteral("scripts"), file(board + functions() + showFrame()));
  save(folder, QStringLiteral("button"), file(board + button() + place(3, 3) + showFrame()));
  save(folder, QStringLiteral("handlers"), file(board + handlers() + place(5, 1) + showFrame()));
  save(folder, QStringLiteral("writing"), file(writing() + showFrame()));
  save(folder, QStringLiteral("gradient"),
       file(gradient() + showFrame() + remove(8) + showFrame(), 6, 50, 50, 2));
  for (const costly::Movie& movie : costly::movies()) {
    constexpr qsizetype kLongest = 16'384;  // that the fuzzer takes
    const QString name = QString::fromLatin1(movie.name).replace(u' ', u'_');
    save(costlyFolder, name, movie.bytes);
    if (movie.bytes.size() <= kLongest) save(folder, name, movie.bytes);
  }
  for (int i = 3; i < argc; ++i) {
    QFile in(QString::fromLocal8Bit(argv[i]));
    if (!in.open(QIODevice::ReadOnly)) return 1;
    const QByteArray packed = in.readAll();
    platform::flash::Budget budget(platform::flash::Budget::processorTime);
    budget.begin(platform::flash::limits::kLoading);
    platform::flash::Allowance allowance(budget);
    const auto opened = platform::flash::unpackFile(bytesOf(packed), allowance);
    QByteArray bytes(reinterpret_cast<const char*>(opened.bytes.data()),
                     static_cast<qsizetype>(opened.bytes.size()));
    bytes[0] = 'F';
    save(folder, QFileInfo(in).fileName(), bytes);
  }
  return 0;
}
