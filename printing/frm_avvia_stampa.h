#pragma once

#include <optional>

#include "app/shared/forma.h"
#include "platform/forms/controls/button.h"
#include "platform/forms/controls/check_box.h"
#include "platform/forms/controls/combo_box.h"
#include "platform/forms/controls/frame.h"
#include "platform/forms/controls/image.h"
#include "platform/forms/controls/label.h"
#include "platform/forms/controls/option_button.h"
#include "platform/forms/controls/picture_box.h"
#include "platform/forms/controls/shape.h"
#include "platform/forms/controls/text_box.h"
#include "platform/forms/controls/timer.h"
#include "platform/forms/controls/up_down.h"
#include "printing/esegui_stampa.h"
#include "printing/immagine_di_stampa.h"
#include "printing/richiesta_di_stampa.h"
#include "printing/stampante_in_uso.h"

namespace somme::inline stampa {

// The print dialog: the printer in use, its sheet with the image on it at scale, the place and the
// size of the print. Whoever wants a form printed loads it, asks `FoglioStampa` for the sheet and
// hands the form to `StampaFCPB`, which shows the dialog and comes back when it has gone. It is
// made anew for each print.
class frmAvviaStampa final : public Forma {
 public:
  explicit frmAvviaStampa(Ambiente& ambiente);

  // The sheet of the printer in use, in millimetres; both -1 where there is none.
  struct Foglio {
    qint32 larghezza = -1;
    qint32 altezza = -1;
    bool ok = false;
  };
  // orientamento: 1 upright, 2 across, kept for the print that follows; anything else is told as a
  // mistake.
  Foglio FoglioStampa(std::optional<int> orientamento = std::nullopt);

  using Richiesta = RichiestaDiStampa;
  // Shows the dialog and returns when it has gone. False when an error was told instead.
  bool StampaFCPB(const Richiesta& richiesta);

  platform::Frame zFrame1{*this};
  platform::Label zLabel1{*this};
  platform::ComboBox cboPrinterNames{*this};
  platform::Button cmdProprieta{*this};
  platform::Image imgPrinter{*this};
  platform::Frame fraFoglio{*this};
  platform::Shape shpBordo{*this};
  platform::Shape shpFoglio{*this};
  platform::PictureBox PictureAnteprima{*this};
  platform::Label Label1{*this};
  platform::Label lblStampaInCorso{*this};
  platform::Label lblFuoriFoglio{*this};
  platform::Timer Timer1{*this};
  platform::ControlArray<platform::OptionButton> A3{*this};
  platform::Label Label2{*this};
  platform::Frame zFrame2{*this};
  platform::Label zLabel7{*this};
  platform::TextBox txtPrX{*this};
  platform::UpDown updPrX{*this};
  platform::Label zLabel9{*this};
  platform::TextBox txtPrY{*this};
  platform::UpDown updPrY{*this};
  platform::Button cmdOrigine{*this};
  platform::Frame zFrame3{*this};
  platform::Label zLabel8{*this};
  platform::TextBox txtPrW{*this};
  platform::UpDown updPrW{*this};
  platform::Label zLabel2{*this};
  platform::TextBox txtPrH{*this};
  platform::UpDown updPrH{*this};
  platform::CheckBox chkProporzioni{*this};
  platform::Button Command1{*this};
  platform::Button cmdStampa{*this};
  platform::Button cmdChiudi{*this};
  platform::Button cmdOK{*this};
  platform::PictureBox picCopia{*this};
  platform::PictureBox picCopiaTemp{*this};

  [[nodiscard]] const StampanteInUso& stampante() const { return stampante_; }
  [[nodiscard]] const ImmagineDiStampa& immagine() const { return immagine_; }
  [[nodiscard]] const PostoSulFoglio& posto() const { return posto_; }

 protected:
  void onLoad() override;
  void onActivate() override;
  void onUnload() override;
  void onClose() override;

 private:
  [[nodiscard]] bool ApriLaPredefinita();
  void Prepara(const Richiesta& richiesta);
  void LeggiOggetto(const Richiesta& richiesta, const FinestraDaStampare& finestra);
  void CatturaOggetto(QWidget& finestra, const QString& nome);
  void Copia_Oggetto(QWidget& finestra, const QString& nome, platform::PictureBox& destinazione,
                     bool conFigli);
  void LeggiFigura(const QImage& figura);
  [[nodiscard]] QImage PassaDaFile(const QImage& figura) const;

  void StringiFoglio();
  void ApriPerImpostazioni();
  void ScegliStampante();
  void MostraProprieta();
  void RiprendiFoglio();
  void DisegnaFoglio();
  void AggiornaAnteprima();
  [[nodiscard]] bool SiIngrandisce(bool fuori);
  void DisegnaAnteprima(const QRect& dove);
  void ScegliFormato(int indice);
  void CambiaLarghezza();
  void CambiaAltezza();
  void AggiornaSeGrande();
  void Lampeggia();
  void Stampa();
  void Chiudi();
  [[nodiscard]] double PixelInTwips() const { return scale().pixel.count(); }

  StampanteInUso stampante_;
  platform::PrinterSettings salvate_;  // for `cmdChiudi`
  ImmagineDiStampa immagine_;
  PostoSulFoglio posto_;    // of the image, as the fields have it
  MisuraDelFoglio foglio_;  // the sheet on the preview
  float aspetto_ = 1;       // width to height of the print that was asked for
  qint32 orientamento_ = 0;
  bool monocromatica_ = false;
  bool conOggetto_ = false;
  bool ingrandita_ = false;  // whether the sheet takes all of its frame
  QString titolo_;
};

}  // namespace somme::inline stampa
