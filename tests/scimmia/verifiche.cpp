#include "scimmia/verifiche.h"

#include <QAccessible>
#include <QApplication>
#include <QStackedWidget>
#include <algorithm>

#include "exercises/core/forma_esercizio.h"
#include "platform/base/numbers.h"
#include "platform/forms/page.h"
#include "scimmia/caso_di_scimmia.h"
#include "scimmia/lettore.h"

namespace prova {

using platform::Control;
using platform::Form;

namespace {

int quanti(const QStringList& suoni, const QString& quale) {
  return int(std::count_if(suoni.begin(), suoni.end(), [&quale](const QString& percorso) {
    return percorso.endsWith(u'/' + quale + QStringLiteral(".wav"));
  }));
}

// A counter goes up by answers that are heard, and down to 0 by a reset or a menu.
void conta(const char* nome, int prima, int ora, int uditi) {
  if (ora == prima || (ora > prima && ora - prima <= uditi) || (ora >= 0 && ora <= uditi)) return;
  throw Guasto(QStringLiteral("%1 went from %2 to %3 with %4 verdicts heard")
                   .arg(QLatin1String(nome))
                   .arg(prima)
                   .arg(ora)
                   .arg(uditi));
}

}  // namespace

void Verifiche::sempre() {
  conteggi();
  unaSolaPagina();
}

void Verifiche::aRiposo() {
  etichette();
  caso();
  nessunFantasma();
  fuoco();
}

void Verifiche::aFondo() {
  alberoAccessibile();
  tuttoNellaFinestra();
}

void Verifiche::conteggi() {
  const somme::StatoCondiviso& stato = banco_.ambiente->stato;
  QStringList& suoni = banco_.suono.suonati;
  // With the sounds off nothing is heard of an answer.
  if (stato.SuoniAttivi) {
    conta("ContaEsatti", esatti_, stato.ContaEsatti, quanti(suoni, QStringLiteral("si")));
    conta("ContaErrati", errati_, stato.ContaErrati, quanti(suoni, QStringLiteral("no")));
  }
  esatti_ = stato.ContaEsatti;
  errati_ = stato.ContaErrati;
  suoni.clear();
}

void Verifiche::unaSolaPagina() const {
  platform::Runtime& fondo = banco_.ambiente->fondo;
  const Form* corrente = fondo.forms().current();
  for (const QObject* figlio : fondo.window().pages()->children()) {
    const auto* pagina = qobject_cast<const platform::Page*>(figlio);
    if (pagina == nullptr || !pagina->isVisible()) continue;
    if (corrente == nullptr || pagina != corrente->page()) {
      throw Guasto(QStringLiteral("a page is on the screen that is not of the form in use: ") +
                   pagina->objectName());
    }
  }
}

void Verifiche::etichette() const {
  const auto* forma =
      dynamic_cast<const somme::FormaEsercizio*>(banco_.ambiente->fondo.forms().current());
  if (forma == nullptr) return;
  const auto confronta = [](const platform::Label& etichetta, int conto) {
    // A new language gives the label its design words until the next count.
    if (!etichetta.caption().isEmpty() && !etichetta.caption().back().isDigit()) return;
    if (!etichetta.caption().endsWith(platform::leadingBlank(conto))) {
      throw Guasto(QStringLiteral("%1 says \"%2\" at %3")
                       .arg(etichetta.name(), etichetta.caption())
                       .arg(conto));
    }
  };
  confronta(forma->EtichettaEsatti, banco_.ambiente->stato.ContaEsatti);
  confronta(forma->EtichettaErrati, banco_.ambiente->stato.ContaErrati);
}

void Verifiche::caso() const {
  const somme::StatoCondiviso& stato = banco_.ambiente->stato;
  if (stato.Totale != stato.Addendo1 + stato.Addendo2) {
    throw Guasto(QStringLiteral("the case is %1 = %2 + %3")
                     .arg(stato.Totale)
                     .arg(stato.Addendo1)
                     .arg(stato.Addendo2));
  }
}

// A form that was unloaded is destroyed as soon as nothing of it runs.
void Verifiche::nessunFantasma() {
  const std::vector<std::shared_ptr<Form>> vive = banco_.ambiente->fondo.forms().all();
  std::erase_if(nate_, [](const auto& nata) { return nata.expired(); });
  for (const auto& nata : nate_) {
    const std::shared_ptr<Form> forma = nata.lock();
    if (std::find(vive.begin(), vive.end(), forma) == vive.end()) {
      throw Guasto(QStringLiteral("a form that has gone is still there: ") + forma->name());
    }
  }
  constexpr std::size_t kMassime = 4;  // an exercise, a sheet, the dialog, the splash for its icon
  if (vive.size() > kMassime) throw Guasto(QStringLiteral("forms stay loaded"));
}

void Verifiche::fuoco() const {
  const QWidget* ha = QApplication::focusWidget();
  if (ha == nullptr || ha->window()->windowType() == Qt::Popup) return;
  if (!ha->isVisible() || !ha->isEnabled()) {
    throw Guasto(QStringLiteral("the focus is on what cannot take it: %1, visible %2, enabled %3")
                     .arg(ha->objectName())
                     .arg(ha->isVisible())
                     .arg(ha->isEnabled()));
  }
  const platform::Runtime& fondo = banco_.ambiente->fondo;
  const Form* corrente = const_cast<platform::Runtime&>(fondo).forms().current();
  if (corrente == nullptr || ha->window() != corrente->page()->window()) return;
  if (!corrente->page()->isAncestorOf(ha)) {
    throw Guasto(QStringLiteral("the focus is outside of the form in use: ") + ha->objectName());
  }
  for (const Control* controllo : corrente->controls()) {
    if (controllo->widget() == ha && corrente->isCovered(*controllo)) {
      throw Guasto(QStringLiteral("the focus is under a panel: ") + controllo->name());
    }
  }
}

void Verifiche::alberoAccessibile() const {
  for (QWidget* finestra : QApplication::topLevelWidgets()) {
    if (!finestra->isVisible()) continue;
    if (PercorriAlbero(QAccessible::queryAccessibleInterface(finestra)) == 0) {
      throw Guasto(QStringLiteral("a window has no accessible tree"));
    }
  }
}

void Verifiche::tuttoNellaFinestra() const {
  // Smaller windows are none that the desktop gives.
  constexpr QSize kMinima(300, 200);
  const QSize lato = banco_.ambiente->fondo.window().size();
  if (lato.width() < kMinima.width() || lato.height() < kMinima.height()) return;
  for (const std::shared_ptr<Form>& forma : banco_.ambiente->fondo.forms().all()) {
    if (forma->page() == nullptr || !forma->page()->isVisible()) continue;
    const Control* sopra = forma->covering();
    for (const Control* controllo : forma->controls()) {
      const QWidget* widget = controllo->widget();
      if (widget == nullptr || !widget->isVisible() || controllo->caption().isEmpty()) continue;
      // Bars keep the unit of their activation, and may outgrow their frame after a resize.
      const QWidget* stanza = widget->parentWidget();
      const bool libero =
          stanza == forma->page()->canvas() || (sopra != nullptr && stanza == sopra->container());
      if (!libero || widget->geometry().isEmpty()) continue;
      if (!stanza->rect().adjusted(-2, -2, 2, 2).contains(widget->geometry())) {
        const QRect posto = widget->geometry();
        throw Guasto(QStringLiteral("%1 of %2 reaches out of its window: %3,%4 %5x%6 in %7x%8")
                         .arg(controllo->name(), forma->name())
                         .arg(posto.x())
                         .arg(posto.y())
                         .arg(posto.width())
                         .arg(posto.height())
                         .arg(stanza->width())
                         .arg(stanza->height()));
      }
    }
  }
}

}  // namespace prova
