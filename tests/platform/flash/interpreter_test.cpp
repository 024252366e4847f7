#include "platform/flash/interpreter.h"

#include <QElapsedTimer>
#include <QStringList>
#include <QTest>
#include <bit>

#include "hand_made.h"
#include "platform/flash/limits.h"
#include "platform/flash/player.h"

using namespace hand_made;
using platform::flash::Player;

namespace {

// The stage on which the scripts of this test run: the root holds the clip "clip", which holds
// "inner"; x of the clip is 30 pixels.
QByteArray stageTags() {
  return sprite(1, showFrame()) + sprite(2, place(1, 1, 0, 0, "inner") + showFrame(), 1) +
         place(1, 2, 30, 0, "clip");
}

// All that the script tells, "command args" each.
QStringList toldBy(const QByteArray& actions, int version = 6, const QByteArray& more = {}) {
  QStringList told;
  const Player player(
      movie(file(stageTags() + more + doAction(actions) + showFrame(), version)),
      [&](const QString& command, const QString& args) { told << command + u' ' + args; });
  return told;
}

// What the value is, as a text, that the actions leave on the stack.
QString valueOf(const QByteArray& actions, int version = 6) {
  const QStringList told = toldBy(say(actions), version);
  return told.size() == 1 ? told.front().mid(4) : QStringLiteral("(nothing told)");
}

QByteArray pushFloat(float value) {
  return action(0x96, u8(1) + u32(std::bit_cast<std::uint32_t>(value)));
}
QByteArray pushDouble(double value) {
  const auto bits = std::bit_cast<std::uint64_t>(value);
  return action(0x96, u8(6) + u32(std::uint32_t(bits >> 32U)) + u32(std::uint32_t(bits)));
}
QByteArray pushBool(bool value) {
  return action(0x96, u8(5) + u8(value ? 1 : 0));
}
QByteArray pushUndefined() {
  return action(0x96, u8(3));
}
QByteArray pushNull() {
  return action(0x96, u8(2));
}
QByteArray op(unsigned code) {
  return action(code);
}
QByteArray getVariable(const char* name) {
  return pushText(name) + op(0x1C);
}
QByteArray setVariable(const char* name, const QByteArray& value) {
  return pushText(name) + value + op(0x1D);
}
QByteArray getMember(const QByteArray& object, const char* name) {
  return object + pushText(name) + op(0x4E);
}
// DefineFunction (0x9B) with its body behind it.
QByteArray function(const char* name, std::initializer_list<const char*> parameters,
                    const QByteArray& body) {
  QByteArray head = text(name) + u16(unsigned(parameters.size()));
  for (const char* parameter : parameters) {
    head += text(parameter);
  }
  return action(0x9B, head + u16(unsigned(body.size()))) + body;
}

}  // namespace

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
    QCOMPARE(toldBy(pushText("FSCommand:c") + pushUndefined() + action(0x9A, u8(0)), 7),
             QStringList{QStringLiteral("c ")});
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

  void theNameOfAClipIsFoundInAllItsForms_data() {
    QTest::addColumn<QByteArray>("actions");
    QTest::newRow("this._name") << getMember(getVariable("this"), "_name");
    QTest::newRow("through the constant pool")
        << action(0x88, u16(2) + text("this") + text("_name")) + action(0x96, u8(8) + u8(0)) +
               op(0x1C) + action(0x96, u8(8) + u8(1)) + op(0x4E);
    QTest::newRow("by its number")
        << action(0x96, u8(0) + text("") + u8(1) + u32(std::bit_cast<std::uint32_t>(13.0F))) +
               op(0x22);
    QTest::newRow("plain") << getVariable("_name");
    QTest::newRow("with a path") << getVariable("_root.u7._name");
    QTest::newRow("with a slash path") << getVariable("/u7:_name");
  }

  void theNameOfAClipIsFoundInAllItsForms() {
    QFETCH(QByteArray, actions);
    QStringList told;
    const Player player(movie(file(sprite(1, doAction(say(actions)) + showFrame()) +
                                   place(1, 1, 0, 0, "u7") + showFrame())),
                        [&](const QString&, const QString& args) { told << args; });
    QCOMPARE(told, QStringList{QStringLiteral("u7")});
  }

  void theNameOfTheRootIsEmpty() {
    QCOMPARE(valueOf(pushText("<") + getVariable("_name") + op(0x21) + pushText(">") + op(0x21)),
             QStringLiteral("<>"));
  }

  void variablesAreKeptInTheirClipAndFoundByPaths() {
    const QByteArray set = setVariable("clip.n", pushNumber(3)) + setVariable("n", pushNumber(4)) +
                           setVariable("/clip/inner:n", pushNumber(5));
    QCOMPARE(toldBy(set + say(getVariable("n")) + say(getVariable("clip.n")) +
                    say(getVariable("/clip:n")) + say(getVariable("_root.clip.inner.n")) +
                    say(getVariable("nowhere.n"))),
             (QStringList{QStringLiteral("say 4"), QStringLiteral("say 3"), QStringLiteral("say 3"),
                          QStringLiteral("say 5"), QStringLiteral("say ")}));
  }

  void namesIgnoreCaseUpToVersionSixOnly() {
    const QByteArray script = setVariable("Beads", pushNumber(3)) + say(getVariable("bEADS"));
    QCOMPARE(toldBy(script, 6), QStringList{QStringLiteral("say 3")});
    QCOMPARE(toldBy(script, 7), QStringList{QStringLiteral("say ")});
  }

  void propertiesAreReadAndSetByNumberByNameAndByMember() {
    const QByteArray path = pushText("clip");
    QCOMPARE(valueOf(path + pushNumber(0) + op(0x22)), QStringLiteral("30"));
    QCOMPARE(
        valueOf(path + pushNumber(0) + pushNumber(8) + op(0x23) + path + pushNumber(0) + op(0x22)),
        QStringLiteral("8"));
    QCOMPARE(valueOf(getVariable("clip._x")), QStringLiteral("30"));
    QCOMPARE(valueOf(getVariable("clip") + pushText("_x") + pushNumber(9) + op(0x4F) +
                     getMember(getVariable("clip"), "_x")),
             QStringLiteral("9"));
    QCOMPARE(valueOf(setVariable("clip._visible", pushNumber(0)) + getVariable("clip._visible")),
             QStringLiteral("false"));
    QCOMPARE(valueOf(pushText("nobody") + pushNumber(0) + op(0x22) + op(0x44)),
             QStringLiteral("undefined"));
    QCOMPARE(valueOf(path + pushNumber(77) + op(0x22) + op(0x44)), QStringLiteral("undefined"));
  }

  void clipsAreReachedThroughParentAndRoot() {
    QCOMPARE(valueOf(getVariable("clip.inner._parent._name")), QStringLiteral("clip"));
    QCOMPARE(valueOf(getVariable("clip.inner._root.clip._x")), QStringLiteral("30"));
    QCOMPARE(valueOf(getVariable("clip.inner")), QStringLiteral("_level0.clip.inner"));
    QCOMPARE(valueOf(getVariable("clip._target")), QStringLiteral("/clip"));
  }

  void setTargetChangesWhatTimelineActionsAndVariablesMean() {
    const QByteArray x = say(getVariable("_name"));
    QCOMPARE(toldBy(action(0x8B, text("clip")) + x + action(0x8B, text("")) + x),
             (QStringList{QStringLiteral("say clip"), QStringLiteral("say ")}));
    QCOMPARE(toldBy(pushText("/clip/inner") + op(0x20) + x),
             QStringList{QStringLiteral("say inner")});
    // A target that does not exist takes the actions to nowhere.
    QCOMPARE(
        toldBy(action(0x8B, text("nobody")) + action(0x07) + say(getVariable("_name") + op(0x44))),
        QStringList{QStringLiteral("say undefined")});
  }

  void timelineMethodsMoveClips_data() {
    QTest::addColumn<QByteArray>("call");
    QTest::addColumn<int>("frameAfterATick");
    const auto method = [](const char* name, const QByteArray& arguments, int count) {
      return arguments + pushNumber(count) + getVariable("three") + pushText(name) + op(0x52) +
             op(0x17);
    };
    QTest::newRow("gotoAndStop") << method("gotoAndStop", pushNumber(2), 1) << 2;
    QTest::newRow("gotoAndPlay") << method("gotoAndPlay", pushNumber(2), 1) << 3;
    QTest::newRow("gotoAndStop with a label") << method("gotoAndStop", pushText("qui"), 1) << 3;
    QTest::newRow("in another case") << method("GOTOANDSTOP", pushNumber(2), 1) << 2;
    QTest::newRow("nextFrame") << method("nextFrame", {}, 0) << 2;
    QTest::newRow("stop") << method("stop", {}, 0) << 1;
    QTest::newRow("prevFrame at the first frame") << method("prevFrame", {}, 0) << 1;
    QTest::newRow("gotoAndStop with nothing") << method("gotoAndStop", {}, 0) << 2;
  }

  void timelineMethodsMoveClips() {
    QFETCH(QByteArray, call);
    QFETCH(int, frameAfterATick);
    const QByteArray three =
        sprite(9, showFrame() + showFrame() + tag(43, text("qui")) + showFrame(), 3);
    Player player(movie(file(three + place(5, 9, 0, 0, "three") + doAction(call) + showFrame())),
                  [](auto&&...) {});
    player.tick();
    QCOMPARE(player.property(QStringLiteral("three"), 4).toInt(), frameAfterATick);
  }

  void functionsTakeArgumentsAndReturnValues() {
    const QByteArray sum =
        function("sum", {"a", "b"}, getVariable("a") + getVariable("b") + op(0x47) + op(0x3E));
    const QByteArray call =
        pushNumber(40) + pushNumber(2) + pushNumber(2) + pushText("sum") + op(0x3D);
    QCOMPARE(toldBy(sum + say(call)), QStringList{QStringLiteral("say 42")});
    // The body is not run where it is defined, and its arguments are not variables outside.
    QCOMPARE(toldBy(sum + op(0x17) + say(call + op(0x17) + getVariable("a"))),
             QStringList{QStringLiteral("say ")});
  }

  void aFunctionOfTheSecondKindHasRegistersForThisRootAndItsArguments() {
    // Registers: 1 this, 2 root, 3 the argument. Flags: preload this and root.
    const QByteArray body = action(0x96, u8(4) + u8(1)) + pushText("_name") + op(0x4E) +
                            action(0x96, u8(4) + u8(3)) + op(0x21) + action(0x96, u8(4) + u8(2)) +
                            op(0x21) + op(0x3E);
    const QByteArray define = getVariable("clip") + pushText("f") +
                              action(0x8E, text("") + u16(1) + u8(4) + u16(0x41) + u8(3) +
                                               text("x") + u16(unsigned(body.size()))) +
                              body + op(0x4F);
    const QByteArray call =
        pushText("-") + pushNumber(1) + getVariable("clip") + pushText("f") + op(0x52);
    QCOMPARE(toldBy(define + say(call)), QStringList{QStringLiteral("say clip-_level0")});
  }

  void localVariablesEndWithTheirFunction() {
    const QByteArray body = pushText("n") + pushNumber(5) + op(0x3C) + say(getVariable("n"));
    QCOMPARE(toldBy(setVariable("n", pushNumber(1)) + function("f", {}, body) + pushNumber(0) +
                    pushText("f") + op(0x3D) + op(0x17) + say(getVariable("n"))),
             (QStringList{QStringLiteral("say 5"), QStringLiteral("say 1")}));
  }

  void callsOfWhatIsNoFunctionGiveUndefined() {
    QCOMPARE(valueOf(pushNumber(0) + pushText("nobody") + op(0x3D) + op(0x44)),
             QStringLiteral("undefined"));
    QCOMPARE(
        valueOf(pushNumber(0) + getVariable("clip") + pushText("nobody") + op(0x52) + op(0x44)),
        QStringLiteral("undefined"));
  }

  void aFunctionThatCallsItselfEnds() {
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(toldBy(function("f", {}, pushNumber(0) + pushText("f") + op(0x3D)) + pushNumber(0) +
                    pushText("f") + op(0x3D) + tell("after")),
             QStringList{QStringLiteral("after ")});
    QVERIFY(timer.elapsed() < 5000);
  }

  void anEndlessLoopEndsWithTheWorkOfItsTick() {
    QElapsedTimer timer;
    timer.start();
    // Jumps back to itself: five bytes.
    QCOMPARE(toldBy(tell("before") + action(0x99, u16(0x10000 - 5)) + tell("never")),
             QStringList{QStringLiteral("before ")});
    QVERIFY(timer.elapsed() < 5000);
  }

  void aLoopThatTellsForEverIsHeard256Times() {
    const QByteArray telling = tell("again");
    QCOMPARE(toldBy(telling + action(0x99, u16(0x10000 - 5 - unsigned(telling.size())))).size(),
             qsizetype(platform::flash::limits::commandsPerTick));
  }

  void aTextThatDoublesForEverStaysBounded() {
    const QByteArray doubling = getVariable("s") + op(0x4C) + op(0x21);
    const QByteArray loop = setVariable("s", doubling);
    QCOMPARE(toldBy(setVariable("s", pushText("x")) + loop +
                    action(0x99, u16(0x10000 - 5 - unsigned(loop.size())))),
             QStringList());
    QByteArray fifteen;
    for (int i = 0; i < 15; ++i) {
      fifteen += loop;
    }
    QCOMPARE(toldBy(setVariable("s", pushText("x")) + fifteen + say(getVariable("s") + op(0x14))),
             QStringList{QStringLiteral("say 8192")});
  }

  void scriptsThatLeadOutsideOfTheirBytesEndThere_data() {
    QTest::addColumn<QByteArray>("actions");
    QTest::newRow("a jump behind the end") << action(0x99, u16(0x7FFF));
    QTest::newRow("a jump before the begin") << action(0x99, u16(0x8000));
    QTest::newRow("an action longer than the rest") << u8(0x96) + u16(500);
    QTest::newRow("an action that breaks off") << u8(0x96) + u8(1);
    QTest::newRow("a text without an end") << action(0x96, u8(0) + QByteArray("abc"));
    QTest::newRow("a value of no known type") << action(0x96, u8(77));
    QTest::newRow("a register that is not there") << action(0x96, u8(4) + u8(200));
    QTest::newRow("a constant pool that breaks off") << action(0x88, u16(500) + text("a"));
    QTest::newRow("a function longer than the rest")
        << action(0x9B, text("") + u16(0) + u16(60000));
  }

  void scriptsThatLeadOutsideOfTheirBytesEndThere() {
    QFETCH(QByteArray, actions);
    QCOMPARE(toldBy(tell("before") + actions + tell("after")),
             QStringList{QStringLiteral("before ")});
  }

  void aStackThatOverflowsEndsTheScript() {
    const QByteArray push = pushNumber(1);
    QCOMPARE(toldBy(push + action(0x99, u16(0x10000 - 5 - unsigned(push.size()))) + tell("never")),
             QStringList());
  }
};

QTEST_APPLESS_MAIN(InterpreterTest)
#include "interpreter_test.moc"
