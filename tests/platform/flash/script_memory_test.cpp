#include "platform/flash/script_memory.h"

#include <QStringList>
#include <QTest>

#include "hand_made.h"
#include "platform/flash/limits.h"
#include "platform/flash/player.h"
#include "support/iscrizione.h"

namespace script_memory_test {

using namespace hand_made;
using namespace platform::flash;

namespace {

Value functionWith(std::shared_ptr<const ConstantPool> constants, int parameters = 0) {
  auto function = std::make_shared<ScriptFunction>();
  function->constants = std::move(constants);
  for (int i = 0; i < parameters; ++i) {
    function->addParameter(0, QStringLiteral("parameter"));
  }
  return FunctionRef(std::move(function));
}

std::shared_ptr<const ConstantPool> pool(qsizetype characters) {
  auto made = std::make_shared<ConstantPool>();
  made->add(QString(characters, u'x'));
  return made;
}

constexpr qsizetype kMost = limits::kScriptCharacters;

}  // namespace

// What scripts may keep in variables.
class ScriptMemoryTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void textsAreKeptUntilTheyAreTooMuch() {
    ScriptMemory memory;
    const Value half = QString(kMost / 2, u'x');
    QVERIFY(memory.replace(QStringLiteral("a"), nullptr, half));
    QVERIFY(!memory.replace(QStringLiteral("b"), nullptr, half));
    QVERIFY(memory.replace(QStringLiteral("b"), nullptr, 1.0));
    QVERIFY(memory.replace(QStringLiteral("a"), &half, 1.0));
    QVERIFY(memory.replace(QStringLiteral("c"), nullptr, half));
  }

  void aVariableThatIsForgottenGivesBackAllThatItTook() {
    ScriptMemory memory;
    const auto shared = pool(kMost / 2);
    for (const Value& value :
         {Value(QString(1000, u'x')), Value(1.0), functionWith(shared), functionWith({}, 100)}) {
      for (int i = 0; i < 100'000; ++i) {
        QVERIFY(memory.replace(QStringLiteral("name"), nullptr, value));
        memory.forget(QStringLiteral("name"), value);
      }
    }
  }

  void aValueThatIsRefusedCountsNothing() {
    ScriptMemory memory;
    const Value small = 1.0;
    QVERIFY(memory.replace(QStringLiteral("a"), nullptr, small));
    for (const Value& large : {Value(QString(kMost, u'x')), functionWith(pool(kMost)),
                               functionWith({}, int(kMost) / 16)}) {
      QVERIFY(!memory.replace(QStringLiteral("a"), &small, large));
      QVERIFY(!memory.replace(QStringLiteral("b"), nullptr, large));
    }
    QVERIFY(memory.replace(QStringLiteral("b"), nullptr, Value(QString(kMost - 1000, u'x'))));
  }

  void constantsThatFunctionsShareCountOnceUntilTheLastHasGone() {
    ScriptMemory memory;
    const auto shared = pool(kMost / 2);
    const Value first = functionWith(shared);
    const Value second = functionWith(shared);
    QVERIFY(memory.replace(QStringLiteral("a"), nullptr, first));
    QVERIFY(memory.replace(QStringLiteral("b"), nullptr, second));
    const Value other = functionWith(pool(kMost / 2));
    QVERIFY(!memory.replace(QStringLiteral("c"), nullptr, other));
    QVERIFY(memory.replace(QStringLiteral("a"), &first, Null{}));
    QVERIFY(!memory.replace(QStringLiteral("c"), nullptr, other));
    memory.forget(QStringLiteral("b"), second);
    QVERIFY(memory.replace(QStringLiteral("c"), nullptr, other));
  }

  void clipsThatComeAndGoKeepTheirVariablesForEver() {
    // A loop of two frames: a clip that stores thirty numbers and tells the last, and no clip.
    QByteArray actions;
    for (int i = 0; i < 30; ++i) {
      actions += pushText(QByteArray("v" + QByteArray::number(i)).constData()) + pushNumber(i) +
                 action(0x1D);
    }
    actions += say(pushText("v29") + action(0x1C));
    int told = 0;
    Player player(movie(file(sprite(1, doAction(actions) + showFrame()) + place(1, 1) +
                                 showFrame() + remove(1) + showFrame(),
                             6, 100, 100, 2)),
                  [&](const QString&, const QString& args) {
                    QCOMPARE(args, QStringLiteral("29"));
                    ++told;
                  });
    for (int i = 0; i < 4000; ++i) {
      player.tick();
    }
    QCOMPARE(told, 2001);
  }
};

const prova::Iscrizione<ScriptMemoryTest> kIscritta;

}  // namespace script_memory_test

#include "script_memory_test.moc"
