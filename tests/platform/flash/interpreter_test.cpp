#include "platform/flash/interpreter.h"

#include <QTest>

#include "scripts.h"
#include "support/iscrizione.h"

namespace interpreter_test {

using namespace scripts;

// Values, and what scripts tell the host.
class InterpreterTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void actionsComputeTheirValues_data() {
    QTest::addColumn<QByteArray>("actions");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const QByteArray& actions, const char* expected) {
      QTest::newRow(name) << actions << QString::fromLatin1(expected);
    };
    const QByteArray two = pushNumber(2);
    const QByteArray seven = pushNumber(7);

    row("push text", pushText("ciao"), "ciao");
    row("push float", pushFloat(0.75F), "0.75");
    row("push double", pushDouble(2.5), "2.5");
    row("push whole number", pushNumber(-7), "-7");
    row("push true", pushBool(true), "true");
    row("push false", pushBool(false), "false");
    row("push null", pushNull(), "null");
    row("push undefined", pushUndefined(), "");
    row("push two at once", action(0x96, u8(0) + text("a") + u8(0) + text("b")) + op(0x21), "ab");
    row("an empty stack gives undefined",
        op(0x17) + op(0x17) + op(0x44) + action(0x87, u8(1)) + op(0x17) +
            pushText("FSCommand:say") + action(0x96, u8(4) + u8(1)),
        "undefined");
    row("pop", pushText("a") + pushText("b") + op(0x17), "a");
    row("constant pool, one byte",
        action(0x88, u16(2) + text("zero") + text("one")) + action(0x96, u8(8) + u8(1)), "one");
    row("constant pool, two bytes",
        action(0x88, u16(2) + text("zero") + text("one")) + action(0x96, u8(9) + u16(0)), "zero");
    row("a constant that is not there", action(0x96, u8(8) + u8(9)), "");
    row("duplicate", pushText("a") + op(0x4C) + op(0x21), "aa");
    row("swap", pushText("a") + pushText("b") + op(0x4D) + op(0x21), "ba");
    row("registers", pushText("a") + action(0x87, u8(2)) + op(0x17) + action(0x96, u8(4) + u8(2)),
        "a");

    row("add", two + seven + op(0x0A), "9");
    row("add texts as numbers", pushText("2") + pushText("7") + op(0x0A), "9");
    row("add typed: numbers", two + seven + op(0x47), "9");
    row("add typed: a text joins", two + pushText("7") + op(0x47), "27");
    row("subtract", two + seven + op(0x0B), "-5");
    row("multiply", two + seven + op(0x0C), "14");
    row("divide", seven + two + op(0x0D), "3.5");
    row("modulo", seven + two + op(0x3F), "1");
    row("increment", seven + op(0x50), "8");
    row("decrement", seven + op(0x51), "6");
    row("to integer", pushDouble(-2.9) + op(0x18), "-2");
    row("to number", pushText("12") + op(0x4A) + two + op(0x47), "14");
    row("to text", two + op(0x4B) + seven + op(0x47), "27");

    row("equals", pushText("2.0") + two + op(0x0E), "true");
    row("equals typed: texts", pushText("2.0") + pushText("2") + op(0x49), "false");
    row("equals typed: text and number", pushText("2.0") + two + op(0x49), "true");
    row("equals typed: null and undefined", pushNull() + pushUndefined() + op(0x49), "true");
    row("equals typed: null and zero", pushNull() + pushNumber(0) + op(0x49), "false");
    row("equals strictly", pushText("2") + two + op(0x66), "false");
    row("less", two + seven + op(0x0F), "true");
    row("not less than itself", two + two + op(0x0F), "false");
    row("less typed: numbers", pushNumber(10) + pushNumber(9) + op(0x48), "false");
    row("less typed: texts", pushText("10") + pushText("9") + op(0x48), "true");
    row("less typed: no number", pushText("x") + two + op(0x48), "");
    row("greater typed", seven + two + op(0x67), "true");
    row("not", pushBool(true) + op(0x12), "false");
    row("not of zero", pushNumber(0) + op(0x12), "true");
    row("and", pushBool(true) + pushBool(false) + op(0x10), "false");
    row("or", pushBool(true) + pushBool(false) + op(0x11), "true");
    row("text add", pushText("da") + pushNumber(3) + op(0x21), "da3");
    row("text equals", pushText("a") + pushText("a") + op(0x13), "true");
    row("text less", pushText("a") + pushText("b") + op(0x29), "true");
    row("text length", pushText("ciao") + op(0x14), "4");
    row("text extract", pushText("abcdef") + pushNumber(2) + pushNumber(3) + op(0x15), "bcd");
    row("type of a number", two + op(0x44), "number");
    row("type of a clip", getVariable("clip") + op(0x44), "movieclip");

    row("if true jumps",
        pushBool(true) + action(0x9D, u16(unsigned(pushText("b").size()))) + pushText("b") +
            pushText("a"),
        "a");
    row("if false goes on",
        pushBool(false) + action(0x9D, u16(unsigned(pushText("bb").size()))) + pushText("bb"),
        "bb");
    row("jump", action(0x99, u16(unsigned(pushText("b").size()))) + pushText("b") + pushText("a"),
        "a");
    row("an unknown action with a length is skipped", action(0xF0, QByteArray("xyz")) + two, "2");
    row("an unknown action without one is skipped", op(0x7F) + two, "2");
    row("trace takes its value and is silent", pushText("x") + pushText("y") + op(0x26), "x");
  }

  void actionsComputeTheirValues() {
    QFETCH(QByteArray, actions);
    QFETCH(QString, expected);
    QCOMPARE(valueOf(actions), expected);
  }

  void numbersPrintWithoutTrailingZeros_data() {
    QTest::addColumn<double>("number");
    QTest::addColumn<QString>("expected");
    QTest::newRow("whole") << 7.0 << "7";
    QTest::newRow("quarter") << 0.75 << "0.75";
    QTest::newRow("third") << 1.0 / 3 << "0.333333333333333";
    QTest::newRow("minus zero") << -0.0 << "0";
    QTest::newRow("large") << 123456789012.0 << "123456789012";
    QTest::newRow("fifteen digits") << -123456789012345.0 << "-123456789012345";
    QTest::newRow("more than fifteen digits") << 1234567890123456.0 << "1.23456789012346e+15";
    QTest::newRow("from here with an exponent") << 1e15 << "1e+15";
    QTest::newRow("nearly there") << 999999999999999.9 << "1e+15";
    QTest::newRow("very large") << -1.5e300 << "-1.5e+300";
    QTest::newRow("zeros before the point") << 1200.0 << "1200";
    QTest::newRow("on both sides of the point") << -12.5 << "-12.5";
    QTest::newRow("small") << 0.00001 << "0.00001";
    QTest::newRow("small with digits") << -0.000012345 << "-0.000012345";
    QTest::newRow("below here with an exponent") << 0.000009 << "9e-6";
    QTest::newRow("very small") << 1e-7 << "1e-7";
    QTest::newRow("very small with digits") << 1.25e-10 << "1.25e-10";
    QTest::newRow("smallest") << 5e-324 << "4.94065645841247e-324";
    QTest::newRow("none") << std::numeric_limits<double>::quiet_NaN() << "NaN";
    QTest::newRow("infinite") << -std::numeric_limits<double>::infinity() << "-Infinity";
  }

  void numbersPrintWithoutTrailingZeros() {
    QFETCH(double, number);
    QFETCH(QString, expected);
    QCOMPARE(valueOf(pushDouble(number)), expected);
  }

  void versionFourComparesToOneAndZeroAndReadsNumbersAtTheFront() {
    QCOMPARE(valueOf(pushText("2") + pushText("2") + op(0x0E), 4), QStringLiteral("1"));
    QCOMPARE(valueOf(pushText("3") + pushText("2") + op(0x0F), 4), QStringLiteral("0"));
    QCOMPARE(valueOf(pushText("0") + op(0x12), 4), QStringLiteral("1"));
    QCOMPARE(valueOf(pushText("7 beads") + pushText("1") + op(0x0A), 4), QStringLiteral("8"));
    QCOMPARE(valueOf(pushText("beads") + pushText("1") + op(0x0A), 4), QStringLiteral("1"));
    QCOMPARE(valueOf(pushText("7 beads") + pushText("1") + op(0x0A), 6), QStringLiteral("NaN"));
  }

  void undefinedIsNothingUpToVersionSixAndAWordLater() {
    const auto joined = [](const QByteArray& value) {
      return pushText("<") + value + op(0x21) + pushText(">") + op(0x21);
    };
    QCOMPARE(valueOf(joined(pushUndefined()), 6), QStringLiteral("<>"));
    QCOMPARE(valueOf(joined(pushUndefined()), 7), QStringLiteral("<undefined>"));
    QCOMPARE(valueOf(joined(getVariable("nothing")), 7), QStringLiteral("<undefined>"));
    QCOMPARE(valueOf(pushUndefined() + pushNumber(1) + op(0x0A), 6), QStringLiteral("1"));
    QCOMPARE(valueOf(pushUndefined() + pushNumber(1) + op(0x0A), 7), QStringLiteral("NaN"));
  }

  void aTextIsTrueByItsNumberUpToVersionSixAndByItsLengthLater() {
    QCOMPARE(valueOf(pushText("x") + op(0x12), 6), QStringLiteral("true"));
    QCOMPARE(valueOf(pushText("x") + op(0x12), 7), QStringLiteral("false"));
    QCOMPARE(valueOf(pushText("0") + op(0x12), 7), QStringLiteral("false"));
  }

  void textsAreUtf8FromVersionSixAndOneByteACharacterBefore() {
    QCOMPARE(valueOf(pushText("\xC3\xA8"), 6), QStringLiteral("\u00E8"));
    QCOMPARE(valueOf(pushText("\xE8"), 5), QStringLiteral("\u00E8"));
  }

  void theLiteralFormOfFscommandTellsCommandAndArguments() {
    QCOMPARE(toldBy(tell("clip3", "unitainattesa")),
             QStringList{QStringLiteral("clip3 unitainattesa")});
    QCOMPARE(toldBy(tell("alone")), QStringList{QStringLiteral("alone ")});
  }

  void thePrefixOfFscommandMayBeInAnyCaseAndTheRestIsUntouched() {
    const QByteArray odd = action(0x83, text("fsCOMMAND:  Da:3 ") + text("X y"));
    QCOMPARE(toldBy(odd), QStringList{QStringLiteral("  Da:3  X y")});
  }

  void anArgumentThatIsMissingIsEmptyInAnyVersion() {
    for (const int version : {5, 6, 7}) {
      QCOMPARE(toldBy(pushText("FSCommand:c") + action(0x9A, u8(0)), version),
               QStringList{QStringLiteral("c ")});
    }
  }

  void anArgumentThatIsUndefinedIsTheWordOfItsVersion() {
    const QByteArray undefined = pushText("FSCommand:c") + pushUndefined() + action(0x9A, u8(0));
    QCOMPARE(toldBy(undefined, 6), QStringList{QStringLiteral("c ")});
    QCOMPARE(toldBy(undefined, 7), QStringList{QStringLiteral("c undefined")});
  }

  void otherAddressesAreIgnored() {
    QCOMPARE(toldBy(action(0x83, text("http://somewhere/") + text("_self"))), QStringList());
    QCOMPARE(toldBy(pushText("FSCommander") + pushText("") + action(0x9A, u8(0))), QStringList());
  }

  void aComputedCommandIsJoinedByStringAddOrAdd2() {
    for (const unsigned join : {0x21U, 0x47U}) {
      const QByteArray command =
          pushText("FSCommand:") + getMember(getVariable("this"), "_name") + op(join);
      const QByteArray inClip =
          doAction(command + pushText("word") + action(0x9A, u8(0))) + showFrame();
      QStringList told;
      const Player player(movie(file(sprite(1, inClip) + place(1, 1, 0, 0, "u7") + showFrame())),
                          [&](const QString& c, const QString& a) { told << c << a; });
      QCOMPARE(told, (QStringList{QStringLiteral("u7"), QStringLiteral("word")}));
    }
  }
};

const prova::Iscrizione<InterpreterTest> kIscritta;

}  // namespace interpreter_test

#include "interpreter_test.moc"
