#include "printing/frm_avvia_stampa.h"

#include <QTemporaryDir>

#include "platform/base/numbers.h"
#include "platform/base/run_time_error.h"
#include "platform/forms/capture.h"
#include "printing/campo_millimetri.h"
#include "printing/disegno_avvia_stampa.h"
#include "printing/errore_di_stampa.h"

namespace somme::inline stampa {

using platform::BoxButtons;
using platform::BoxIcon;
using platform::ColorMode;
using platform::Control;
using platform::Orientation;
using platform::plain;
using platform::RunTimeError;

namespace {

constexpr QLatin1String kErroreDocumento(" Errore nella stampa del documento.");
constexpr int kIntervalloLampeggio = 500;  // milliseconds
constexpr int kA3 = 0;
// The longer side of the captured image: 150 dots an inch on the 420 mm of an A3 sheet.
constexpr int kPuntiCattura = 2500;
constexpr double kAltezzaImpostazioni = 4192;  // twips, as the two next
constexpr double kMenoLarga = 1230;            // there, of the frame round the sheet
constexpr double kMenoAlta = 630;              // of the frame, and of the sheet either way

bool EOrientamento(int valore) {
  return valore == int(Orientation::Portrait) || valore == int(Orientation::Landscape);
}

qint32 Arrotonda(double valore) {
  return static_cast<qint32>(platform::roundHalfEven(valore));
}

}  // namespace

frmAvviaStampa::frmAvviaStampa(Ambiente& ambiente)
    : Forma(ambiente, disegno_stampa::kDisegno), stampante_(ambiente) {
  cboPrinterNames.onClick([this] { ScegliStampante(); });
  cmdProprieta.onClick([this] { MostraProprieta(); });
  Timer1.onTick([this] { Lampeggia(); });
  cmdOrigine.onClick([this] {
    txtPrX.setText(plain(0));
    txtPrY.setText(plain(0));
    AggiornaAnteprima();
  });
  chkProporzioni.onClick([this] {
    if (!chkProporzioni.isChecked()) return;
    txtPrH.setText(plain(Arrotonda(posto_.larghezza / double(aspetto_))));
    AggiornaSeGrande();
  });
  Command1.onClick([this] {
    setDesignHeight(disegno_stampa::kAltezzaIntera);
    zFrame2.setVisible(true);
    zFrame3.setVisible(true);
  });
  cmdStampa.onClick([this] { Stampa(); });
  cmdChiudi.onClick([this] { Chiudi(); });
  // The chosen printer is the one in use already.
  cmdOK.onClick([this] { unload(); });
}

void frmAvviaStampa::onLoad() {
  Forma::onLoad();
  Timer1.setInterval(kIntervalloLampeggio);
  for (const int i : {0, 1}) A3[i].onClick([this, i] { ScegliFormato(i); });
  PreparaCampo({txtPrX, updPrX, -kMassimoCampo, posto_.sinistra});
  PreparaCampo({txtPrY, updPrY, -kMassimoCampo, posto_.alto});
  PreparaCampo({txtPrW, updPrW, 1, posto_.larghezza});
  PreparaCampo({txtPrH, updPrH, 1, posto_.altezza});
  const auto aggiorna = [this] { AggiornaAnteprima(); };
  txtPrX.onKeyUp([this](int) { AggiornaAnteprima(); });
  txtPrY.onKeyUp([this](int) { AggiornaAnteprima(); });
  updPrX.onChange(aggiorna);
  updPrY.onChange(aggiorna);
  txtPrW.onKeyUp([this](int) { CambiaLarghezza(); });
  updPrW.onChange([this] { CambiaLarghezza(); });
  txtPrH.onKeyUp([this](int) { CambiaAltezza(); });
  updPrH.onChange([this] { CambiaAltezza(); });
}

frmAvviaStampa::Foglio frmAvviaStampa::FoglioStampa(std::optional<int> orientamento) {
  if (!ApriLaPredefinita()) return {};
  if (orientamento) {
    if (!EOrientamento(*orientamento)) {
      ground().showBox({QStringLiteral("Orientamento errato"), kErroreDocumento, BoxIcon::Critical,
                        BoxButtons::Ok});
      return {};
    }
    stampante_.ScriviOrientamento(*orientamento);
  }
  const MisuraDelFoglio foglio = stampante_.MisuraFoglio();
  return {foglio.larghezza, foglio.altezza, true};
}

// Where there is no printer at all nothing is said here: the sizes of the sheet tell it.
bool frmAvviaStampa::ApriLaPredefinita() {
  try {
    return stampante_.ApriStampante();
  } catch (const ErroreDiStampa&) {
    return false;
  }
}

bool frmAvviaStampa::StampaFCPB(const Richiesta& richiesta) {
  platform::Forms& forme = ambiente().fondo.forms();
  // The dialog is unloaded before this returns.
  const std::shared_ptr<platform::Form> vivo = shared_from_this();
  bool pronta = false;
  try {
    if (stampante_.cercata() || ApriLaPredefinita()) {
      Prepara(richiesta);
      pronta = true;
    }
  } catch (const ErroreDiStampa& errore) {
    ground().showBox({errore.descrizione + QStringLiteral("\n\n"), kErroreDocumento,
                      BoxIcon::Critical, BoxButtons::Ok});
  }
  if (!pronta) {
    forme.unload(*this);
    forme.activateAgain();
    return false;
  }
  forme.showModal(*this);
  return true;
}

void frmAvviaStampa::Prepara(const Richiesta& richiesta) {
  conOggetto_ = !std::holds_alternative<std::monostate>(richiesta.oggetto);
  orientamento_ = richiesta.orientamento;
  titolo_ = richiesta.titolo;
  if (!conOggetto_) return;
  setDesignHeight(disegno_stampa::kAltezzaSemplice);
  const FinestraDaStampare finestra = FinestraDi(richiesta.oggetto);
  if (finestra.widget == nullptr) {
    throw ErroreDiStampa{ErroreDiStampa::kStampante,
                         QStringLiteral("L' oggetto da stampare \"%1\"\n"
                                        "non espone la proprieta' hWnd.")
                             .arg(finestra.nome)};
  }
  if (richiesta.larghezza <= 0 || richiesta.altezza <= 0) {
    throw ErroreDiStampa{ErroreDiStampa::kParametriErrati,
                         QStringLiteral("\nParametri errati.\n"
                                        "La larghezza e l' altezza di stampa\n"
                                        "richieste devono essere > 0.")};
  }
  txtPrX.setText(plain(richiesta.sinistra));
  txtPrY.setText(plain(richiesta.alto));
  txtPrW.setText(plain(400));
  txtPrH.setText(plain(280));
  aspetto_ = float(richiesta.larghezza) / float(richiesta.altezza);
  LeggiOggetto(richiesta, finestra);
  if (titolo_.isEmpty()) titolo_ = finestra.nome;
}

void frmAvviaStampa::LeggiOggetto(const Richiesta& richiesta, const FinestraDaStampare& finestra) {
  auto* const* controllo = std::get_if<Control*>(&richiesta.oggetto);
  auto* riquadro = controllo == nullptr ? nullptr : dynamic_cast<platform::PictureBox*>(*controllo);
  if (riquadro == nullptr || richiesta.usaImmagine) {
    CatturaOggetto(*finestra.widget, finestra.nome);
  } else {
    LeggiFigura(PassaDaFile(riquadro->picture()));
  }
}

// Whatever a picture box keeps is read as a file of its own would be.
QImage frmAvviaStampa::PassaDaFile(const QImage& figura) const {
  const QTemporaryDir cartella;
  const QString file = cartella.filePath(QStringLiteral("figura.png"));
  return figura.save(file) ? QImage(file) : QImage();
}

void frmAvviaStampa::CatturaOggetto(QWidget& finestra, const QString& nome) {
  // A sheet is photographed in its activation, before it is painted by itself.
  ambiente().fondo.window().releasePicture();
  Copia_Oggetto(finestra, nome, picCopia, true);
  LeggiFigura(picCopia.picture());
  picCopia.clear();
}

void frmAvviaStampa::LeggiFigura(const QImage& figura) {
  if (figura.isNull()) {
    throw ErroreDiStampa{ErroreDiStampa::kStampante,
                         QStringLiteral("Si e' verificata una condizione\n"
                                        "inaspettata elaborando l' immagine.")};
  }
  immagine_.LeggiImmagine(figura, !stampante_.aperta() || stampante_.caratteristiche().takesPages);
}

// A window is drawn together with all that stands in it.
void frmAvviaStampa::Copia_Oggetto(QWidget& finestra, const QString& nome,
                                   platform::PictureBox& destinazione, bool conFigli) {
  destinazione.clear();
  try {
    if (finestra.size().isEmpty()) throw RunTimeError(RunTimeError::InvalidCall);
    const QImage copia = platform::capture(finestra, kPuntiCattura, conFigli);
    if (copia.isNull()) throw RunTimeError(RunTimeError::PrinterError);
    picCopiaTemp.setPicture(copia, {});
    destinazione.setPicture(copia, {});
    picCopiaTemp.clear();
  } catch (const RunTimeError& errore) {
    ground().showBox(
        {QStringLiteral("Errore %1\n%2").arg(errore.number()).arg(errore.description()),
         QStringLiteral(" Errore nella stampa di ") + nome, BoxIcon::Critical, BoxButtons::Ok});
  }
}

void frmAvviaStampa::onActivate() {
  if (conOggetto_) {
    cmdOK.setVisible(false);
    imgPrinter.setVisible(false);
  } else {
    StringiFoglio();
  }
  const double pixel = PixelInTwips();
  shpFoglio.setLeft(shpBordo.left() + 3 * pixel);
  shpFoglio.setTop(shpBordo.top() + 3 * pixel);
  PictureAnteprima.setLeft(shpFoglio.left() + pixel);
  PictureAnteprima.setTop(shpFoglio.top() + pixel);
  salvate_ = stampante_.impostazioni();
  monocromatica_ = salvate_.color == ColorMode::Monochrome;
  if (EOrientamento(orientamento_)) stampante_.ScriviOrientamento(orientamento_);
  cboPrinterNames.setItems(stampante_.Elenco());
  cboPrinterNames.choose(stampante_.nome());
  if (conOggetto_) {
    setCaption(titolo_);
    cmdStampa.setFocus();
  } else {
    ApriPerImpostazioni();
  }
}

// The printer stands beside the sheet.
void frmAvviaStampa::StringiFoglio() {
  fraFoglio.setWidth(fraFoglio.width() - kMenoLarga * scale().x);
  fraFoglio.setHeight(fraFoglio.height() - kMenoAlta * scale().y);
  for (Control* foglio : {static_cast<Control*>(&Label1), static_cast<Control*>(&PictureAnteprima),
                          static_cast<Control*>(&shpFoglio), static_cast<Control*>(&shpBordo)}) {
    foglio->setWidth(foglio->width() - kMenoAlta * scale().x);
    if (foglio != &Label1) foglio->setHeight(foglio->height() - kMenoAlta * scale().y);
  }
}

void frmAvviaStampa::ApriPerImpostazioni() {
  setDesignHeight(kAltezzaImpostazioni);
  cmdStampa.setVisible(false);
  imgPrinter.setLeft(4080 * scale().x);
  imgPrinter.setTop(2640 * scale().y);
  setCaption(QStringLiteral("  Impostazioni stampante"));
  cmdOK.setFocus();
}

void frmAvviaStampa::ScegliStampante() {
  stampante_.ScegliNome(cboPrinterNames.text());
  if (stampante_.ApriStampante()) RiprendiFoglio();
}

// The printer's own settings, in the page set-up; given up, they stay as they are.
void frmAvviaStampa::MostraProprieta() {
  if (!stampante_.aperta()) return;
  platform::PrinterSettings scelte = stampante_.impostazioni();
  bool accettate = false;
  ground().gate().wait([&] {
    accettate =
        ambiente().servizi.pagina.choose(stampante_.nome(), stampante_.caratteristiche(), scelte);
  });
  if (accettate) stampante_.ScriviImpostazioni(scelte);
  RiprendiFoglio();
}

void frmAvviaStampa::RiprendiFoglio() {
  foglio_ = stampante_.MisuraFoglio();
  monocromatica_ = stampante_.impostazioni().color == ColorMode::Monochrome;
  DisegnaFoglio();
}

void frmAvviaStampa::ScegliFormato(int indice) {
  txtPrW.setText(plain(indice == kA3 ? 420 : 289));
  txtPrH.setText(plain(indice == kA3 ? 297 : 204));
  Label2.setVisible(indice != kA3);
  AggiornaAnteprima();
}

void frmAvviaStampa::CambiaLarghezza() {
  if (chkProporzioni.isChecked()) {
    txtPrH.setText(plain(Arrotonda(posto_.larghezza / double(aspetto_))));
  }
  letEventsRun();
  AggiornaSeGrande();
}

void frmAvviaStampa::CambiaAltezza() {
  if (chkProporzioni.isChecked()) {
    txtPrW.setText(plain(Arrotonda(posto_.altezza * double(aspetto_))));
  }
  letEventsRun();
  AggiornaSeGrande();
}

void frmAvviaStampa::AggiornaSeGrande() {
  if (posto_.larghezza > 1 && posto_.altezza > 1) AggiornaAnteprima();
}

void frmAvviaStampa::Stampa() {
  if (cboPrinterNames.listIndex() >= 0) stampante_.ScegliNome(cboPrinterNames.text());
  lblStampaInCorso.setLeft(PictureAnteprima.left() +
                           (PictureAnteprima.width() - lblStampaInCorso.width()) / 2);
  lblStampaInCorso.setTop(PictureAnteprima.top() +
                          (PictureAnteprima.height() - lblStampaInCorso.height()) / 2);
  lblStampaInCorso.bringToFront();
  lblStampaInCorso.setVisible(true);
  letEventsRun();
  EseguiStampa(ambiente(), stampante_, immagine_, posto_, titolo_);
  lblStampaInCorso.setVisible(false);
  unload();
}

void frmAvviaStampa::Chiudi() {
  stampante_.ScriviImpostazioni(salvate_);
  unload();
}

void frmAvviaStampa::onClose() {
  cmdChiudi.click();
}

void frmAvviaStampa::onUnload() {
  immagine_.Libera();
  PictureAnteprima.clear();
}

}  // namespace somme::inline stampa
