#include <QApplication>
#include <functional>
#include <vector>

#include "app/shared/nomi_forme.h"
#include "exercises/bars/barre10_di_prova.h"
#include "exercises/blocks/blocchi_scanditi.h"
#include "exercises/core/forma_esercizio.h"
#include "exercises/table/form_tabella.h"
#include "platform/forms/controls/button.h"
#include "printing/dialogo_di_prova.h"
#include "segni_di_prova.h"
#include "support/banco.h"
#include "support/come_dal_menu.h"
#include "support/iscrizione.h"
#include "support/risposta_giusta.h"

namespace segni_leggibili_test {

using platform::Control;
using prova::Anello;
using prova::Banco;
using prova::Coppia;
using prova::DialogoDiProva;
using prova::FinoAllUltimoGesto;
using prova::Parte;
using prova::Risposta;
using prova::Ritratto;
using prova::Spicca;
using somme::frmAvviaStampa;
namespace forme = somme::forme;

namespace {

constexpr double kSegno = 3;    // contrast of a mark to its ground
constexpr double kTesto = 4.5;  // of words and digits
constexpr QSize kFinestra(1366, 768);

Control& Chiamato(Banco& banco, const char* nome) {
  for (Control* uno : banco.ambiente->fondo.forms().current()->controls()) {
    if (uno->name() == QLatin1String(nome)) return *uno;
  }
  throw std::logic_error(nome);
}

constexpr int kIntorno = 14;  // pixels round a control that has a ring

// The ring of the focus, between the control's ground and what lies round it.
Coppia ColFuoco(Control& controllo, Control& altro) {
  controllo.setFocus();
  return Anello(*controllo.widget(), kIntorno, [&altro] { altro.setFocus(); });
}

// After an answer, when what moves has come to rest.
void Rispondi(Banco& banco, std::string_view nome, Risposta quale) {
  FinoAllUltimoGesto(banco, nome, quale)();
  banco.tempo.advance(1);
}

Coppia NelDialogo(const std::function<Coppia(DialogoDiProva&, frmAvviaStampa&)>& guarda) {
  DialogoDiProva prova(kFinestra);
  Coppia coppia;
  prova.apri(prova.richiesta(), [&](frmAvviaStampa& dialogo) {
    dialogo.Command1.click();
    QCoreApplication::processEvents();
    coppia = guarda(prova, dialogo);
  });
  return coppia;
}

// The dot of the option that another one takes it from.
Coppia Pallino() {
  return NelDialogo([](DialogoDiProva& prova, frmAvviaStampa& d) {
    const QImage con = Ritratto(d.A3[0]);
    prova.clicca(d.A3[1]);
    return Coppia{con, Ritratto(d.A3[0])};
  });
}
Coppia CerchioDellOpzione() {
  return NelDialogo([](DialogoDiProva&, frmAvviaStampa& d) {
    const QImage opzione = Ritratto(d.A3[1]);
    return Coppia{opzione.copy(0, 0, opzione.height(), opzione.height())};
  });
}
Coppia Spunta() {
  return NelDialogo([](DialogoDiProva& prova, frmAvviaStampa& d) {
    const QImage con = Ritratto(d.chkProporzioni);
    prova.clicca(d.chkProporzioni);
    d.txtPrW.setFocus();
    return Coppia{con, Ritratto(d.chkProporzioni)};
  });
}
Coppia FrecceDeiMillimetri() {
  return NelDialogo([](DialogoDiProva&, frmAvviaStampa& d) { return Coppia{Ritratto(d.updPrX)}; });
}
Coppia FrecciaDellElenco() {
  return NelDialogo([](DialogoDiProva&, frmAvviaStampa& d) {
    return Coppia{Parte(Ritratto(d.cboPrinterNames), 88, 15, 98, 85)};
  });
}
Coppia AnelloNelDialogo() {
  return NelDialogo(
      [](DialogoDiProva&, frmAvviaStampa& d) { return ColFuoco(d.cmdChiudi, d.cmdStampa); });
}
Coppia AvvisoDelFoglio() {
  return NelDialogo([](DialogoDiProva&, frmAvviaStampa& d) {
    return Coppia{Parte(Ritratto(d.lblFuoriFoglio), 5, 10, 95, 90)};
  });
}

// A part of the box of a form, by hundredths of its width.
Coppia Casella(Banco& banco, int sinistra, int destra) {
  return {Parte(Ritratto(Chiamato(banco, "TestoInput")), sinistra, 20, destra, 80)};
}
Coppia Cursore() {
  Banco banco(kFinestra);
  banco.ambiente->stato.TipoEsercizio = 1;
  banco.mostra(forme::kFormNumeriTotale);
  return Casella(banco, 10, 90);
}
Coppia Matita() {
  Banco banco(kFinestra);
  Rispondi(banco, forme::kFormNumeriTotale, Risposta::Sbagliata);
  return Casella(banco, 75, 95);
}
Coppia CifreChiuse() {
  Banco banco(kFinestra);
  Rispondi(banco, forme::kFormNumeriTotaleScansione, Risposta::Sbagliata);
  return Casella(banco, 10, 70);
}
Coppia BordoDellaCasellaChiusa() {
  Banco banco(kFinestra);
  Rispondi(banco, forme::kFormNumeriTotaleScansione, Risposta::Sbagliata);
  const QImage casella = Ritratto(Chiamato(banco, "TestoInput"));
  return {casella.copy(4, 0, casella.width() - 8, 8)};
}

// Where an answer leaves its mark: the upper right of a button or cell, without its edge.
QImage Angolo(const Control& giudicato) {
  return Parte(Ritratto(giudicato), 65, 10, 95, 45);
}
Coppia SulNumero(int numero) {
  Banco banco(kFinestra);
  auto& forma = prova::apriBarre10(banco, 7, 3);
  for (const int provato : {5, 7}) banco.clicca(forma.PulsanteNumero[provato]);
  return {Angolo(forma.PulsanteNumero[numero])};
}
Coppia SullaCella(int numero) {
  Banco banco(kFinestra);
  banco.ambiente->stato.TipoEsercizio = 0;
  banco.sorte.scrivi({{46, 98}});
  auto& forma = banco.apri<somme::FormTabella>(forme::kFormTabella);
  for (const int provata : {12, 47}) banco.clicca(forma.Numero[provata]);
  return {Angolo(forma.Numero[numero])};
}

// The words of a counter while it is lit.
Coppia ConteggioAcceso() {
  Banco banco(kFinestra);
  banco.moto.voluto = true;
  FinoAllUltimoGesto(banco, forme::kFormNumeriTotale)();
  return {Parte(Ritratto(banco.forma<somme::FormaEsercizio>().EtichettaEsatti), 3, 15, 97, 85)};
}
// Its lit ground against the frame round it.
Coppia CorniceDelConteggioAcceso() {
  Banco banco(kFinestra);
  banco.moto.voluto = true;
  FinoAllUltimoGesto(banco, forme::kFormNumeriTotale)();
  return {Parte(Ritratto(banco.forma<somme::FormaEsercizio>().EtichettaEsatti), 60, 0, 100, 100)};
}

Coppia Verdetto(Risposta quale) {
  Banco banco(kFinestra);
  Rispondi(banco, forme::kFormNumeriTotale, quale);
  auto& forma = banco.forma<somme::FormaEsercizio>();
  return {Ritratto(quale == Risposta::Giusta ? forma.ImgSi : forma.ImgNo)};
}

// The ring of a scanned key round the button of a carry, on the form's ground.
Coppia SegnoDelCambio() {
  Banco banco(kFinestra);
  auto& forma = prova::scanditi::apriLU(banco, 47, 35);
  if (!prova::scanditi::unisciScandendo(banco, forma)) return {};
  QWidget* pulsante = forma.PulsanteCambio->widget();
  return Anello(*pulsante, kIntorno, [pulsante] { pulsante->clearFocus(); });
}

Coppia AnelloSu(std::string_view nome, const char* controllo, const char* altro) {
  Banco banco(kFinestra);
  prova::ComeDalMenu(*banco.ambiente, nome);
  banco.mostra(nome);
  return ColFuoco(Chiamato(banco, controllo), Chiamato(banco, altro));
}
Coppia AnelloSuBarre(const char* controllo) {
  return AnelloSu(forme::kFormBarre10, controllo, "PulsanteNumero(0)");
}

struct Segno {
  const char* nome;
  std::function<Coppia()> guarda;
  double almeno = kSegno;
};
const std::vector<Segno>& Segni() {
  static const std::vector<Segno> tutti{
      {"the dot of an option", Pallino},
      {"the ring of an option", CerchioDellOpzione},
      {"the tick of a box", Spunta},
      {"the arrows of millimetres", FrecceDeiMillimetri},
      {"the arrow of a list", FrecciaDellElenco},
      {"the focus in a dialog", AnelloNelDialogo},
      {"the warning of a sheet", AvvisoDelFoglio, kTesto},
      {"the caret", Cursore},
      {"the pencil of a closed box", Matita},
      {"the digits of a closed box", CifreChiuse, kTesto},
      {"the edge of a closed box", BordoDellaCasellaChiusa},
      {"a number tried in vain", [] { return SulNumero(5); }},
      {"the right number", [] { return SulNumero(7); }},
      {"a wrong cell", [] { return SullaCella(12); }},
      {"the right cell", [] { return SullaCella(47); }},
      {"the words of a lit counter", ConteggioAcceso, kTesto},
      {"the frame of a lit counter", CorniceDelConteggioAcceso},
      {"the tick of a verdict", [] { return Verdetto(Risposta::Giusta); }},
      {"the cross of a verdict", [] { return Verdetto(Risposta::Sbagliata); }},
      {"the scanning mark of a carry", SegnoDelCambio},
      {"the focus on a red number", [] { return AnelloSuBarre("PulsanteNumero(4)"); }},
      {"the focus on help", [] { return AnelloSuBarre("PulsanteAiuto"); }},
      {"the focus on a box",
       [] { return AnelloSu(forme::kFormBarre10Tastiera, "TestoInput", "PulsanteAiuto"); }},
      {"the focus on a cell",
       [] { return AnelloSu(forme::kFormTabella, "Numero(44)", "Numero(46)"); }},
      {"the focus on hundreds",
       [] { return AnelloSu(forme::kFormHLU, "PulsanteH", "PulsanteConferma"); }},
      {"the focus on tens",
       [] { return AnelloSu(forme::kFormLU, "PulsanteDa", "PulsanteConferma"); }},
      {"the focus on units",
       [] { return AnelloSu(forme::kFormLU, "PulsanteU", "PulsanteConferma"); }},
  };
  return tutti;
}

}  // namespace

// Every mark by which a pupil knows which one, and whether it was right, stands out of what it lies
// on: measured on what is painted.
class SegniLeggibiliTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void everyMarkStandsOutOfItsGround_data() {
    QTest::addColumn<int>("quale");
    for (int i = 0; i < int(Segni().size()); ++i) QTest::newRow(Segni()[size_t(i)].nome) << i;
  }
  void everyMarkStandsOutOfItsGround() {
    QFETCH(int, quale);
    const Segno& segno = Segni()[size_t(quale)];
    const double spicca = Spicca(segno.guarda());
    QVERIFY2(spicca >= segno.almeno, qPrintable(QString::number(spicca)));
  }

  // So that nobody takes it for a digit.
  void aLongNumberKeepsClearOfThePencilOfItsBox() {
    Banco banco({800, 600});
    Rispondi(banco, forme::kFormAbacoScansione, Risposta::Sbagliata);
    const QImage casella = Parte(Ritratto(Chiamato(banco, "TestoInput")), 3, 10, 97, 90);
    const auto vuota = [&](int x) {
      for (int y = 0; y < casella.height(); ++y) {
        if (casella.pixelColor(x, y).lightness() < 100) return false;
      }
      return true;
    };
    int x = casella.width() - 1;
    while (vuota(x)) --x;
    while (!vuota(x)) --x;
    int vuote = 0;
    for (; vuota(x); --x) ++vuote;
    QVERIFY2(vuote * 5 >= casella.height(), qPrintable(QString::number(vuote)));
  }

  // Families and levels, on the tints of their menus.
  void everyPictureOfAMenuStandsOutOfItsButton_data() {
    QTest::addColumn<QByteArray>("menu");
    for (const auto menu :
         {forme::kFormMenu, forme::kFormMenuPLU, forme::kFormMenuTabella, forme::kFormMenuBarre}) {
      const QByteArray nome(menu.data(), qsizetype(menu.size()));
      QTest::newRow(nome.constData()) << nome;
    }
  }
  void everyPictureOfAMenuStandsOutOfItsButton() {
    QFETCH(QByteArray, menu);
    Banco banco(kFinestra);
    banco.mostra(menu.toStdString());
    int quanti = 0;
    for (Control* uno : banco.ambiente->fondo.forms().current()->controls()) {
      if (dynamic_cast<const platform::Button*>(uno) == nullptr || !uno->isVisible()) continue;
      ++quanti;
      uno->widget()->clearFocus();
      const double spicca = Spicca({Parte(Ritratto(*uno), 3, 12, 32, 85)});
      QVERIFY2(spicca >= kSegno, qPrintable(uno->name() + u' ' + QString::number(spicca)));
    }
    QVERIFY(quanti >= 3);
  }
};

const prova::Iscrizione<SegniLeggibiliTest, QApplication> kIscritta;

}  // namespace segni_leggibili_test

#include "segni_leggibili_test.moc"
