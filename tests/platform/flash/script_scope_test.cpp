#include "platform/flash/interpreter.h"

#include <QElapsedTimer>
#include <QTest>

#include "platform/flash/limits.h"
#include "scripts.h"
#include "support/iscrizione.h"

namespace script_scope_test {

using namespace scripts;
using platform::flash::Property;

// Clips and variables as scripts find them, functions, and scripts that never end.
class ScriptScopeTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
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
    QCOMPARE(toldBy(script, 7), QStringList{QStringLiteral("say undefined")});
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
    QCOMPARE(player.property(QStringLiteral("three"), Property::CurrentFrame).toInt(),
             frameAfterATick);
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

  void functionsMayCallThemselves256LevelsDeep() {
    const QByteArray deeper =
        setVariable("n", getVariable("n") + op(0x50)) + pushNumber(0) + pushText("f") + op(0x3D);
    QCOMPARE(toldBy(setVariable("n", pushNumber(0)) + function("f", {}, deeper) + pushNumber(0) +
                    pushText("f") + op(0x3D) + say(getVariable("n"))),
             QStringList{QStringLiteral("say 256")});
  }

  void anUnloadHandlerKnowsItsClipItsVariablesItsParentAndTheRoot() {
    // As a handler of the clip, and as a function that the clip holds.
    const QByteArray telling = say(getVariable("_name")) + say(getVariable("n")) +
                               say(getMember(getVariable("this"), "n")) +
                               say(getVariable("_parent._name")) + say(getVariable("_root.m")) +
                               setVariable("n", pushNumber(4)) + say(getVariable("n")) +
                               action(0x81, u16(1));
    const QByteArray handler = telling + u8(0);
    const QByteArray placed =
        tag(26, u8(0xA6) + u16(1) + u16(1) + shift(0, 0) + text("c") + u16(0) + u32(4) + u32(4) +
                    u32(std::uint32_t(handler.size())) + handler + u32(0));
    const QByteArray variables =
        setVariable("m", pushNumber(2)) + setVariable("outer.c.n", pushNumber(3));
    for (const bool asFunction : {false, true}) {
      const QByteArray functionOf =
          pushText("outer.c.onUnload") + function("", {}, telling) + op(0x1D);
      QStringList told;
      Player player(
          movie(file(sprite(1, showFrame() + showFrame(), 2) +
                         sprite(2, (asFunction ? place(1, 1, 0, 0, "c") : placed) + showFrame()) +
                         place(1, 2, 0, 0, "outer") +
                         doAction(variables + (asFunction ? functionOf : QByteArray())) +
                         showFrame() + remove(1) + showFrame(),
                     6, 100, 100, 2)),
          [&](const QString&, const QString& args) { told << args; });
      player.tick();
      // A function was made on behalf of the root, and finds its clip by "this" alone.
      const QStringList ofHandler{QStringLiteral("c"), QStringLiteral("3"),
                                  QStringLiteral("3"), QStringLiteral("outer"),
                                  QStringLiteral("2"), QStringLiteral("4")};
      if (asFunction) {
        QCOMPARE(told.value(2), QStringLiteral("3"));
        QCOMPARE(told.value(4), QStringLiteral("2"));
      } else {
        QCOMPARE(told, ofHandler);
      }
      QCOMPARE(player.property(QStringLiteral("outer"), Property::X), QString());
    }
  }

  void anUnloadHandlerThatPlacesAndMovesThingsLeavesNothingBehind() {
    const QByteArray handler = action(0x81, u16(1)) + setVariable("_root.c._x", pushNumber(1)) +
                               setVariable("v", pushText("x")) + u8(0);
    const QByteArray placed =
        tag(26, u8(0xA6) + u16(1) + u16(2) + shift(0, 0) + text("c") + u16(0) + u32(4) + u32(4) +
                    u32(std::uint32_t(handler.size())) + handler + u32(0));
    Player player(
        movie(file(sprite(1, showFrame()) +
                       sprite(2, showFrame() + place(5, 1, 0, 0, "new") + showFrame(), 2) + placed +
                       showFrame() + remove(1) + showFrame(),
                   6, 100, 100, 2)),
        [](auto&&...) {});
    for (int i = 0; i < 6; ++i) player.tick();
    QCOMPARE(player.currentFrame(), 1);
    QCOMPARE(player.property(QStringLiteral("c/new"), Property::X), QString());
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
             qsizetype(platform::flash::limits::kCommandsPerTick));
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

const prova::Iscrizione<ScriptScopeTest> kIscritta;

}  // namespace script_scope_test

#include "script_scope_test.moc"
