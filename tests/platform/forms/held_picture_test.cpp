#include <QApplication>
#include <QPointer>

#include "painted.h"
#include "platform/forms/forms.h"
#include "stage.h"
#include "support/iscrizione.h"

namespace held_picture_test {

using trial::kOne;
using trial::kThree;
using trial::kTwo;
using trial::Painted;
using trial::Stage;
using trial::TrialForm;

// When a form that is shown is painted.
class HeldPictureTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  // A yield lets the window be painted, a box stands over what was painted.
  void aFormIsNotPaintedBeforeItsActivationIsOver() {
    Stage stage;
    stage.show(kOne);
    int painted = 0;
    int afterYield = -1;
    int underBox = -1;
    QPointer<Painted> counter;
    stage.prepare["Two"] = [&](TrialForm& two) {
      two.loading = [&] { counter = new Painted(*two.page()->canvas()); };
      two.activating = [&] {
        two.letEventsRun();
        afterYield = counter->times;
        stage.boxes.mentreAperto = [&] {
          QCoreApplication::processEvents();
          underBox = counter->times;
        };
        two.ground().showBox({QStringLiteral("Ready")});
      };
    };
    stage.runtime->forms().show(kTwo.name);
    QCoreApplication::processEvents();
    painted = counter->times;
    QCOMPARE(afterYield, 0);
    QCOMPARE(underBox, 0);
    QVERIFY(painted > 0);
  }

  void aFormThatPassesOnInItsActivationHoldsNoOtherBack() {
    Stage stage;
    stage.show(kOne);
    QPointer<Painted> counter;
    stage.prepare["Three"] = [&](TrialForm& three) {
      three.loading = [&] { counter = new Painted(*three.page()->canvas()); };
    };
    stage.prepare["Two"] = [&](TrialForm& two) {
      two.activating = [&] {
        stage.runtime->forms().show(kThree.name);
        QCoreApplication::processEvents();
      };
    };
    stage.runtime->forms().show(kTwo.name);
    QVERIFY(counter->times > 0);
  }

  void aWindowThatOpensInAnActivationStandsOverAFormThatIsSeen() {
    Stage stage;
    stage.show(kOne);
    QPointer<Painted> counter;
    int under = 0;
    stage.prepare["Two"] = [&](TrialForm& two) {
      two.loading = [&] { counter = new Painted(*two.page()->canvas()); };
      two.activating = [&] {
        auto& three = stage.runtime->forms().loaded(kThree.name);
        stage.time.after(0.1, [&] {
          QCoreApplication::processEvents();
          under = counter->times;
          stage.runtime->forms().unload(three);
        });
        stage.runtime->forms().showModal(three);
      };
    };
    stage.runtime->forms().show(kTwo.name);
    QVERIFY(under > 0);
  }

  void aWindowOfItsOwnIsPaintedWhenItsActivationIsOver() {
    Stage stage;
    TrialForm& one = stage.show(kOne);
    QPointer<Painted> counter;
    int early = -1;
    int late = -1;
    stage.prepare["Two"] = [&](TrialForm& two) {
      two.loading = [&] { counter = new Painted(*two.page()->canvas()); };
      two.activating = [&] {
        two.letEventsRun();
        early = counter->times;
      };
    };
    one.run([&] {
      auto& two = stage.runtime->forms().loaded(kTwo.name);
      stage.time.after(0.1, [&] {
        QCoreApplication::processEvents();
        late = counter->times;
        stage.runtime->forms().unload(two);
      });
      stage.runtime->forms().showModal(two);
    });
    QCOMPARE(early, 0);
    QVERIFY(late > 0);
  }
};

const prova::Iscrizione<HeldPictureTest, QApplication> kIscritta;

}  // namespace held_picture_test

#include "held_picture_test.moc"
