#include "exercises/bars/forma_barre.h"

#include <algorithm>
#include <array>

#include "cases/casuale.h"
#include "platform/base/numbers.h"

namespace somme {

using namespace disegno;
using platform::leadingBlank;
using platform::plain;
using platform::toInt16;

namespace {

constexpr int kPrimoTermine = 0;
constexpr int kSecondoTermine = 2;
constexpr int kTermineTotale = 4;

constexpr DomandaBarre kChiediTotale{kTermineTotale, &StringheCondivise::ConsegnaBarre1, kRosso};
constexpr DomandaBarre kChiediSecondo{kSecondoTermine, &StringheCondivise::ConsegnaBarre3,
                                      kVerdeScuro};
constexpr DomandaBarre kChiediPrimo{kPrimoTermine, &StringheCondivise::ConsegnaBarre2, kCiano};

enum TipiDiEsercizio : qint16 { kTrovaRossa = 1, kTrovaGiallaVerde = 2, kTrovaUna = 3 };

// The gap above the first row of help squares; the second row has none.
constexpr int kStacco = 10;

}  // namespace

FormaBarre::FormaBarre(Ambiente& ambiente, const platform::FormDesign& disegno,
                       const PortataBarre& portata)
    : FormaEsercizio(ambiente, disegno), portata_(portata) {
  mnuRossa.onClick([this] { ScegliTipo(kTrovaRossa); });
  mnuGiallaVerde.onClick([this] { ScegliTipo(kTrovaGiallaVerde); });
  mnuTutteBarre.onClick([this] { ScegliTipo(kTrovaUna); });
}

void FormaBarre::IniziaEsercizio() {
  ScriviEsatti();
  ScriviErrati();
  stato().TipoEsercizio = kTrovaRossa;
}

void FormaBarre::ScegliTipo(qint16 tipo) {
  stato().TipoEsercizio = tipo;
  mnuRossa.setChecked(tipo == kTrovaRossa);
  mnuGiallaVerde.setChecked(tipo == kTrovaGiallaVerde);
  mnuTutteBarre.setChecked(tipo == kTrovaUna);
  NuovoCaso();
}

void FormaBarre::GeneraPerTipo() {
  switch (stato().TipoEsercizio) {
    case kTrovaRossa:
      GeneraCaso1();
      break;
    case kTrovaGiallaVerde:
      GeneraCaso2();
      break;
    case kTrovaUna:
      if (Casuale(ambiente().servizi.sorte, 2) + 1 == 1) {
        GeneraCaso1();
      } else {
        GeneraCaso2();
      }
      break;
    default:
      break;
  }
}

void FormaBarre::EstraiCaso() {
  platform::Chance& sorte = ambiente().servizi.sorte;
  stato().Totale = toInt16(Casuale(sorte, stato().LimiteEsercizio) + 1);
  stato().Addendo1 = toInt16(Casuale(sorte, stato().Totale));
  stato().Addendo2 = toInt16(stato().Totale - stato().Addendo1);
}

void FormaBarre::GeneraCaso1() {
  EstraiCaso();
  MostraCaso(kChiediTotale);
}

void FormaBarre::GeneraCaso2() {
  const int nascosto = Casuale(ambiente().servizi.sorte, 2) + 1;
  EstraiCaso();
  MostraCaso(nascosto == 1 ? kChiediSecondo : kChiediPrimo);
}

qint16 FormaBarre::Lungo(int unita) const {
  return toInt16(int(Unita) * unita);
}

qint16 FormaBarre::FineDi(int unita) const {
  return toInt16(Lungo(unita) + OrigineX);
}

void FormaBarre::MostraCaso(const DomandaBarre& domanda) {
  const Caso& caso = stato();
  struct Barra {
    platform::Label& barra;
    int termine;
    qint16 numero;
    int sinistra;
    int alto;
  };
  const std::array barre{
      Barra{n1, kPrimoTermine, caso.Addendo1, OrigineX, OrigineY},
      Barra{n2, kSecondoTermine, caso.Addendo2, FineDi(caso.Addendo1), OrigineY},
      Barra{n3, kTermineTotale, caso.Totale, OrigineX, toInt16(OrigineY + Unita)},
  };
  for (const Barra& b : barre) {
    const bool chiesta = b.termine == domanda.termine;
    b.barra.setPlace(b.sinistra, b.alto, Lungo(b.numero), b.barra.height());
    b.barra.setCaption(chiesta ? QStringLiteral("?") : leadingBlank(b.numero));
  }
  Label3.setCaption(stringhe().*domanda.consegna);
  for (const Barra& b : barre) {
    if (b.termine != domanda.termine) continue;
    RisultatoAtteso = b.numero;
    barraChiesta_ = &b.barra;
  }
  Chiedi(domanda);
  for (const Barra& b : barre) {
    Label4[b.termine].setCaption(b.termine == domanda.termine ? QString() : plain(b.numero));
  }
  DiciDomanda(QStringLiteral("%1 + %2 = %3. %4")
                  .arg(n1.caption(), n2.caption(), n3.caption(), Label3.caption()));
}

void FormaBarre::MostraNumeri() {
  n1.setCaption(leadingBlank(stato().Addendo1));
  n2.setCaption(leadingBlank(stato().Addendo2));
  n3.setCaption(leadingBlank(stato().Totale));
}

void FormaBarre::AggiungiAllElenco() {
  AggiungiRiga(QStringLiteral("    %1 + %2 = %3").arg(n1.caption(), n2.caption(), n3.caption()));
}

void FormaBarre::ScriviSomma() {
  Label4[kPrimoTermine].setCaption(plain(stato().Addendo1));
  Label4[kSecondoTermine].setCaption(plain(stato().Addendo2));
  Label4[kTermineTotale].setCaption(plain(stato().Totale));
}

void FormaBarre::NascondiAiuti() {
  for (platform::ControlArray<platform::Label>* quadretti : {&aiuto1, &aiuto3, &aiuto2}) {
    quadretti->forEach([](platform::Label& quadretto) { quadretto.setVisible(false); });
  }
}

void FormaBarre::MettiQuadretti(platform::ControlArray<platform::Label>& quadretti, int quanti,
                                int sinistra, int alto) {
  // A touch may ask for them before the first activation has made them.
  for (int i = 0; i < std::min(quanti, quadretti.count()); ++i) {
    platform::Label& quadretto = quadretti[i];
    quadretto.setTop(alto);
    quadretto.setLeft(toInt16(Lungo(i) + sinistra));
    quadretto.setVisible(true);
  }
}

void FormaBarre::MostraAiuto() {
  const int altoAddendi = toInt16(Lungo(2) + OrigineY + kStacco);
  MettiQuadretti(aiuto1, stato().Addendo1, OrigineX, altoAddendi);
  MettiQuadretti(aiuto2, stato().Addendo2, FineDi(stato().Addendo1), altoAddendi);
  MettiQuadretti(aiuto3, stato().Totale, OrigineX, toInt16(Lungo(3) + OrigineY));
  DiciQuadretti();
}

// One by one, so that they are counted by ear as the others count them by eye.
void FormaBarre::DiciQuadretti() {
  if (barraChiesta_ == nullptr) return;
  const QStringList quadretti(RisultatoAtteso, QStringLiteral("1"));
  announce(QStringLiteral("%1: %2").arg(
      barraChiesta_->toolTip(),
      quadretti.isEmpty() ? QStringLiteral("0") : quadretti.join(QStringLiteral(", "))));
}

void FormaBarre::LeggiMisure() {
  Unita = toInt16(n1.height());
  OrigineY = toInt16(n1.top());
  OrigineX = toInt16(n1.left());
  n2.setHeight(Unita);
  n3.setHeight(Unita);
}

void FormaBarre::MisuraAiuti() {
  for (platform::Label* primo : {&aiuto1[0], &aiuto2[0], &aiuto3[0]}) {
    primo->setWidth(Unita);
    primo->setHeight(Unita);
  }
}

void FormaBarre::ScriviTitolo() {
  IniziaElenco(QStringLiteral("     ") + stringhe().TitoloBarre + stringhe().Trattino +
               stringhe().*portata_.titolo);
}

void FormaBarre::CreaAiuti() {
  for (int i = 1; i < portata_.aiuti; ++i) {
    aiuto1.load(i);
    aiuto2.load(i);
    aiuto3.load(i);
  }
}

void FormaBarre::ColoraTermini(std::optional<platform::Rgb> primo) {
  for (const DomandaBarre& domanda : {kChiediPrimo, kChiediSecondo, kChiediTotale}) {
    Label4[domanda.termine].setForeColor(domanda.colore);
  }
  if (primo) Label4[kPrimoTermine].setForeColor(*primo);
}

}  // namespace somme
