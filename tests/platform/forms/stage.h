#pragma once

#include <QTest>
#include <map>
#include <memory>
#include <string>

#include "platform/forms/runtime.h"
#include "support/scripted_time.h"
#include "support/servizi_di_prova.h"
#include "trial_form.h"

// Where the ground is tried without any form of the program: a window, three trial forms, scripted
// services, and the user's hands.
namespace trial {

class Stage {
 public:
  // size: of the window. An empty one leaves the window to the first form.
  explicit Stage(QSize size = {1024, 768});
  ~Stage();

  // What is done to each new instance of a form before it is loaded.
  std::map<std::string, std::function<void(TrialForm&)>, std::less<>> prepare;

  TrialForm& show(const platform::FormDesign& design);
  // The form on the screen.
  [[nodiscard]] TrialForm& current() const;
  [[nodiscard]] QString currentName() const { return current().name(); }
  void resize(QSize size);

  // Real events at the window.
  [[nodiscard]] QPoint centre(const platform::Control& control) const;
  void click(const platform::Control& control) { clickAt(centre(control)); }
  void clickAt(QPoint point);
  void doubleClick(const platform::Control& control);
  void pressMouse(const platform::Control& control);
  void moveMouse(QPoint point);
  void releaseMouse(QPoint point);
  void press(Qt::Key key, Qt::KeyboardModifiers with = {}, const QString& text = {});
  void release(Qt::Key key, Qt::KeyboardModifiers with = {});
  void tap(Qt::Key key, Qt::KeyboardModifiers with = {}, const QString& text = {});
  // What the desktop sends while a key is held: a release and a press, both marked as repeats.
  void repeat(Qt::Key key, Qt::KeyboardModifiers with = {}, const QString& text = {});
  // What assistive technology's Press does.
  static void pressBySpeech(const platform::Control& control);
  [[nodiscard]] QWindow* window() const { return runtime->window().windowHandle(); }

  QStringList log;
  prova::ScriptedTime time;
  prova::MessaggiDiProva boxes;
  prova::FineDiProva end;
  prova::AnnunciDiProva announcer;
  prova::MotoDiProva motion;
  std::unique_ptr<platform::Runtime> runtime;

 private:
  [[nodiscard]] std::shared_ptr<platform::Form> make(std::string_view name);
};

}  // namespace trial
