#pragma once

#include <QTest>

#include "immagini/immagini.h"
#include "platform/forms/appearance.h"
#include "platform/forms/form.h"
#include "platform/forms/runtime.h"
#include "support/scripted_time.h"
#include "support/servizi_di_prova.h"

namespace prova {

// The ground alone under one form of a test: for the tests of controls, which need nothing of the
// program.
template <class F>
class FondoDiProva {
 public:
  explicit FondoDiProva(QSize lato = {1000, 700}) {
    somme::PreparaImmagini();
    platform::applyAppearance();
    runtime_ = std::make_unique<platform::Runtime>(
        platform::RuntimeServices{tempo, messaggi, fine, annunci, disegni()},
        QStringLiteral("Prova"), QStringLiteral("puntatore"),
        [this](std::string_view) { return std::make_shared<F>(*runtime_); });
    runtime_->window().setMinimumSize(1, 1);
    runtime_->window().resize(lato);
    runtime_->window().showNormal();
    runtime_->forms().show("Prova");
    QCoreApplication::processEvents();
  }

  [[nodiscard]] F& forma() { return static_cast<F&>(*runtime_->forms().current()); }
  [[nodiscard]] QWindow* finestra() { return runtime_->window().windowHandle(); }
  [[nodiscard]] platform::Runtime& fondo() { return *runtime_; }

  void ridimensiona(QSize lato) {
    runtime_->window().resize(lato);
    QCoreApplication::processEvents();
  }
  void batti(int tasto, Qt::KeyboardModifiers con = {}) {
    QTest::keyClick(finestra(), Qt::Key(tasto), con);
    QCoreApplication::processEvents();
  }
  void scrivi(const QString& testo) {
    for (const QChar carattere : testo) {
      QTest::keyClick(finestra(), carattere.toLatin1());
      QCoreApplication::processEvents();
    }
  }
  void clicca(const platform::Control& controllo, Qt::MouseButton bottone = Qt::LeftButton) {
    const QWidget* widget = controllo.widget();
    QTest::mouseClick(finestra(), bottone, {},
                      widget->mapTo(&runtime_->window(), widget->rect().center()));
    QCoreApplication::processEvents();
  }

  ScriptedTime tempo;
  MessaggiDiProva messaggi;
  FineDiProva fine;
  AnnunciDiProva annunci;

 private:
  std::unique_ptr<platform::Runtime> runtime_;
};

}  // namespace prova
