#include "stage.h"

#include <QAccessible>
#include <QWindow>

#include "immagini/immagini.h"
#include "platform/forms/appearance.h"

namespace trial {

using namespace platform;

Stage::Stage(QSize size) {
  somme::PreparaImmagini();
  applyAppearance();
  runtime = std::make_unique<Runtime>(
      RuntimeServices{time, boxes, end, announcer, prova::disegni(), nullptr, &motion},
      QStringLiteral("The program"), QStringLiteral("puntatore"),
      [this](std::string_view name) { return make(name); });
  runtime->window().setMinimumSize(1, 1);
  if (size.isEmpty()) return;
  runtime->window().resize(size);
  runtime->window().showNormal();
}

Stage::~Stage() = default;

std::shared_ptr<Form> Stage::make(std::string_view name) {
  for (const FormDesign* design : {&kOne, &kTwo, &kThree}) {
    if (design->name != name) continue;
    auto form = std::make_shared<TrialForm>(*runtime, *design, log);
    const auto found = prepare.find(name);
    if (found != prepare.end()) found->second(*form);
    return form;
  }
  return nullptr;
}

TrialForm& Stage::show(const FormDesign& design) {
  runtime->forms().show(design.name);
  QCoreApplication::processEvents();
  return current();
}

TrialForm& Stage::current() const {
  auto* form = dynamic_cast<TrialForm*>(runtime->forms().current());
  if (form == nullptr) throw std::logic_error("no trial form is on the screen");
  return *form;
}

void Stage::resize(QSize size) {
  runtime->window().resize(size);
  QCoreApplication::processEvents();
}

QPoint Stage::centre(const Control& control) const {
  const QWidget* widget = control.widget();
  return widget->mapTo(&runtime->window(), widget->rect().center());
}

void Stage::clickAt(QPoint point) {
  QTest::mouseClick(window(), Qt::LeftButton, {}, point);
}

void Stage::doubleClick(const Control& control) {
  QTest::mouseDClick(window(), Qt::LeftButton, {}, centre(control));
}

void Stage::pressMouse(const Control& control) {
  QTest::mousePress(window(), Qt::LeftButton, {}, centre(control));
}

void Stage::moveMouse(QPoint point) {
  QTest::mouseMove(window(), point);
}

void Stage::releaseMouse(QPoint point) {
  QTest::mouseRelease(window(), Qt::LeftButton, {}, point);
}

void Stage::press(Qt::Key key, Qt::KeyboardModifiers with, const QString& text) {
  QTest::simulateEvent(window(), true, key, with, text, false);
}

void Stage::release(Qt::Key key, Qt::KeyboardModifiers with) {
  QTest::simulateEvent(window(), false, key, with, {}, false);
}

void Stage::tap(Qt::Key key, Qt::KeyboardModifiers with, const QString& text) {
  press(key, with, text);
  release(key, with);
}

void Stage::repeat(Qt::Key key, Qt::KeyboardModifiers with, const QString& text) {
  QTest::simulateEvent(window(), false, key, with, {}, true);
  QTest::simulateEvent(window(), true, key, with, text, true);
}

void Stage::pressBySpeech(const Control& control) {
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(control.widget());
  spoken->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

}  // namespace trial
