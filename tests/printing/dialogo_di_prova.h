#pragma once

#include <QImage>
#include <QLineEdit>
#include <algorithm>

#include "app/shared/nomi_forme.h"
#include "exercises/bars/forma_barre_pulsanti.h"
#include "printing/frm_avvia_stampa.h"
#include "support/banco.h"
#include "support/richiesta_del_foglio.h"

namespace prova {

// A printer without colours.
[[nodiscard]] inline platform::PrinterTraits Grigia(const platform::Paper& carta) {
  platform::PrinterTraits stampante = StampanteDiProva(carta);
  stampante.printsColor = false;
  stampante.standard.color = platform::ColorMode::Monochrome;
  return stampante;
}

// The preview as it is painted.
[[nodiscard]] inline QImage dipinta(const somme::frmAvviaStampa& dialogo) {
  return dialogo.PictureAnteprima.widget()->grab().toImage();
}

[[nodiscard]] inline bool haColori(const QImage& immagine) {
  for (int y = 0; y < immagine.height(); ++y) {
    for (int x = 0; x < immagine.width(); ++x) {
      const QRgb p = immagine.pixel(x, y);
      if (std::max({qRed(p), qGreen(p), qBlue(p)}) - std::min({qRed(p), qGreen(p), qBlue(p)}) >
          24) {
        return true;
      }
    }
  }
  return false;
}

// The print dialog over a form of the program, and the hands of whoever uses it.
class DialogoDiProva {
 public:
  // finestra: the size of the main window.
  explicit DialogoDiProva(QSize finestra = {1024, 768}) : banco(finestra), forma(apriForma()) {}

  // A sheet of the form on the screen, as the sheets ask for it.
  [[nodiscard]] somme::frmAvviaStampa::Richiesta richiesta() {
    somme::frmAvviaStampa::Richiesta r = richiestaDelFoglio(forma);
    r.titolo = QStringLiteral("Stampa foglio di prova");
    return r;
  }

  // Loads the dialog and lets a handler of the form work with it.
  void conDialogo(const std::function<void(somme::frmAvviaStampa&)>& azione) {
    auto& dialogo = static_cast<somme::frmAvviaStampa&>(
        banco.ambiente->fondo.forms().loaded(somme::forme::kFrmAvviaStampa));
    forma.run([&] { azione(dialogo); });
    QCoreApplication::processEvents();
  }

  // Opens the dialog, does something while it stands open, and closes it where that has not.
  // Gives what `StampaFCPB` gave.
  bool apri(const somme::frmAvviaStampa::Richiesta& r,
            const std::function<void(somme::frmAvviaStampa&)>& mentre = {}) {
    bool ok = false;
    conDialogo([&](somme::frmAvviaStampa& dialogo) {
      // The dialog may never open, and be gone when the time comes.
      banco.tempo.after(0.1, [this, vivo = dialogo.weak_from_this(), &dialogo, mentre] {
        const auto viva = vivo.lock();
        if (viva && !viva->isUnloaded()) lavora(dialogo, mentre);
      });
      ok = dialogo.StampaFCPB(r);
    });
    return ok;
  }

  // Does something in a dialog that stands open, and closes it where that has not.
  void lavora(somme::frmAvviaStampa& dialogo,
              const std::function<void(somme::frmAvviaStampa&)>& mentre) {
    const auto vivo = dialogo.shared_from_this();
    aperto_ = &dialogo;
    QCoreApplication::processEvents();
    visto = true;
    if (mentre) mentre(dialogo);
    if (!dialogo.isUnloaded()) dialogo.cmdChiudi.click();
  }

  [[nodiscard]] QWindow* finestra() const { return aperto_->page()->window()->windowHandle(); }
  void clicca(const platform::Control& controllo) const {
    const QWidget* widget = controllo.widget();
    QTest::mouseClick(finestra(), Qt::LeftButton, {},
                      widget->mapTo(widget->window(), widget->rect().center()));
    QCoreApplication::processEvents();
  }
  void batti(int tasto, Qt::KeyboardModifiers con = {}) const {
    QTest::keyClick(finestra(), Qt::Key(tasto), con);
    QCoreApplication::processEvents();
  }
  // Text in the place of what the box holds, typed.
  void scrivi(platform::TextBox& casella, const QString& testo) const {
    casella.setFocus();
    static_cast<QLineEdit*>(casella.widget())->selectAll();
    for (const QChar c : testo) {
      QTest::keyClick(finestra(), c.toLatin1());
      QCoreApplication::processEvents();
    }
  }
  void stampante(const platform::PrinterTraits& caratteristiche) {
    banco.stampanti.metti(QStringLiteral("Prova"), caratteristiche);
  }
  [[nodiscard]] const std::vector<platform::MessageBox>& messaggi() const {
    return banco.messaggi.mostrati;
  }

  Banco banco;
  somme::FormaBarrePulsanti& forma;
  bool visto = false;  // whether the dialog was ever open

 private:
  somme::FormaBarrePulsanti& apriForma() {
    banco.ambiente->stato.LimiteEsercizio = 10;
    return banco.apri<somme::FormaBarrePulsanti>(somme::forme::kFormBarre10);
  }

  somme::frmAvviaStampa* aperto_ = nullptr;
};

}  // namespace prova
