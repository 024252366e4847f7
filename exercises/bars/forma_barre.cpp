#include "exercises/bars/forma_barre.h"

#include <algorithm>
#include <array>

#include "platform/base/numbers.h"

namespace somme::inline barre {

using namespace disegno;
using platform::leadingBlank;
using platform::plain;
using platform::toInt16;

namespace {

// One for each term, in their order.
constexpr auto kDomande = std::to_array<DomandaBarre>({
    {Termine::Primo, &StringheCondivise::ConsegnaBarre2, kCiano},
    {Termine::Secondo, &StringheCondivise::ConsegnaBarre3, kVerdeScuro},
    {Termine::Totale, &StringheCondivise::ConsegnaBarre1, kRosso},
});

constexpr std::size_t Indice(Termine termine) {
  return static_cast<std::size_t>(termine);
}

// The gap above the first row of help squares; the second row has none.
constexpr int kStacco = 10;

FormDesign Disegno(std::string_view nome, const VarianteBarre& variante) {
  return {.name = nome,
          .caption = kTitoloProgramma,
          .width = variante.larghezza,
          .height = variante.altezza,
          .back = kGialloPallido,
          .tables = variante.tavole};
}

}  // namespace

FormaBarre::FormaBarre(Ambiente& ambiente, std::string_view nome, const VarianteBarre& variante,
                       PartitaBarre::Vuoto vuoto)
    : FormaEsercizio(ambiente, Disegno(nome, variante)),
      variante_(variante),
      partita_(stato(), vuoto) {
  mnuRossa.onClick([this] { ScegliTipo(kTrovaRossa); });
  mnuGiallaVerde.onClick([this] { ScegliTipo(kTrovaGiallaVerde); });
  mnuTutteBarre.onClick([this] { ScegliTipo(kTrovaUna); });
}

void FormaBarre::onLoad() {
  FormaEsercizio::onLoad();
  ScriviEsatti();
  ScriviErrati();
  stato().TipoEsercizio = kTrovaRossa;
}

void FormaBarre::IniziaAttivazione() {
  LeggiMisure();
  PosaSegno();
  MisuraAiuti();
  ScriviTitolo();
  CreaAiuti();
  ColoraTermini();
  IniziaCasi();
}

void FormaBarre::LeggiMisure() {
  Unita = toInt16(n1.height());
  OrigineY = toInt16(n1.top());
  OrigineX = toInt16(n1.left());
  n2.setHeight(Unita);
  n3.setHeight(Unita);
}

void FormaBarre::PosaSegno() {
  if (!Line1) return;
  Line1->setX1(FineDi(PartitaBarre::kDecina));
  Line1->setX2(FineDi(PartitaBarre::kDecina));
}

void FormaBarre::MisuraAiuti() {
  for (platform::Label* primo : {&aiuto1[0], &aiuto2[0], &aiuto3[0]}) {
    primo->setWidth(Unita);
    primo->setHeight(Unita);
  }
}

void FormaBarre::ScriviTitolo() {
  IniziaElenco(QStringLiteral("     ") + stringhe().TitoloBarre + stringhe().Trattino +
               stringhe().*variante_.titolo);
}

void FormaBarre::CreaAiuti() {
  for (int i = 1; i < scheda().portata; ++i) {
    aiuto1.load(i);
    aiuto2.load(i);
    aiuto3.load(i);
  }
}

void FormaBarre::ColoraTermini(std::optional<platform::Rgb> primo) {
  for (const DomandaBarre& domanda : kDomande) {
    Scritto(domanda.termine).setForeColor(domanda.colore);
  }
  if (primo) Scritto(Termine::Primo).setForeColor(*primo);
}

void FormaBarre::ScegliTipo(TipoBarre tipo) {
  stato().TipoEsercizio = tipo;
  mnuRossa.setChecked(tipo == kTrovaRossa);
  mnuGiallaVerde.setChecked(tipo == kTrovaGiallaVerde);
  mnuTutteBarre.setChecked(tipo == kTrovaUna);
  NuovoCaso();
}

void FormaBarre::GeneraPerTipo() {
  const bool estratto =
      partita_.NuovoCaso(stato().TipoEsercizio, stato().LimiteEsercizio, ambiente().servizi.sorte);
  if (estratto) MostraCaso();
}

void FormaBarre::GeneraCaso1() {
  partita_.ChiediTotale(stato().LimiteEsercizio, ambiente().servizi.sorte);
  MostraCaso();
}

void FormaBarre::GeneraCaso2() {
  partita_.ChiediAddendo(stato().LimiteEsercizio, ambiente().servizi.sorte);
  MostraCaso();
}

void FormaBarre::MostraCaso() {
  const DomandaBarre& domanda = kDomande[Indice(*partita_.Chiesto())];
  const qint16 fineDelPrimo = FineDi(partita_.Numero(Termine::Primo));
  const qint16 altoTotale = toInt16(OrigineY + Unita);
  MettiBarra(Termine::Primo, OrigineX, OrigineY);
  MettiBarra(Termine::Secondo, fineDelPrimo, OrigineY);
  MettiBarra(Termine::Totale, OrigineX, altoTotale);
  const QString& consegna = stringhe().*domanda.consegna;
  Label3.setCaption(consegna);
  Chiedi(domanda);
  for (const DomandaBarre& d : kDomande) {
    const bool chiesto = d.termine == domanda.termine;
    Scritto(d.termine).setCaption(chiesto ? QString() : plain(partita_.Numero(d.termine)));
  }
  DiciDomanda(QStringLiteral("%1 + %2 = %3. %4")
                  .arg(DettoDi(Termine::Primo), DettoDi(Termine::Secondo), DettoDi(Termine::Totale),
                       consegna));
}

void FormaBarre::MettiBarra(Termine termine, int sinistra, int alto) {
  platform::Label& barra = Barra(termine);
  barra.setPlace(sinistra, alto, Lungo(partita_.Numero(termine)), barra.height());
  barra.setCaption(DettoDi(termine));
}

QString FormaBarre::DettoDi(Termine termine) const {
  return termine == partita_.Chiesto() ? QStringLiteral("?")
                                       : leadingBlank(partita_.Numero(termine));
}

void FormaBarre::CopriTermine(platform::TextBox& casella, const DomandaBarre& domanda) {
  const platform::Label& vuoto = Scritto(domanda.termine);
  casella.setPlace(vuoto.left(), vuoto.top(), vuoto.width(), vuoto.height());
  casella.setForeColor(vuoto.foreColor());
}

void FormaBarre::MostraNumeri() {
  for (const DomandaBarre& domanda : kDomande) {
    Barra(domanda.termine).setCaption(leadingBlank(partita_.Numero(domanda.termine)));
  }
}

void FormaBarre::ScriviSomma() {
  for (const DomandaBarre& domanda : kDomande) {
    Scritto(domanda.termine).setCaption(plain(partita_.Numero(domanda.termine)));
  }
}

void FormaBarre::AggiungiAllElenco() {
  AggiungiRiga(QStringLiteral("    %1 + %2 = %3")
                   .arg(leadingBlank(partita_.Numero(Termine::Primo)),
                        leadingBlank(partita_.Numero(Termine::Secondo)),
                        leadingBlank(partita_.Numero(Termine::Totale))));
}

void FormaBarre::NascondiAiuti() {
  for (platform::ControlArray<platform::Label>* quadretti : {&aiuto1, &aiuto3, &aiuto2}) {
    quadretti->forEach([](platform::Label& quadretto) { quadretto.setVisible(false); });
  }
}

void FormaBarre::NascondiSegno() {
  if (Line1) Line1->setVisible(false);
}

void FormaBarre::MostraAiuto() {
  if (Line1 && PartitaBarre::HaIlSegno(stato().LimiteEsercizio)) Line1->setVisible(true);
  const qint16 primo = partita_.Numero(Termine::Primo);
  const int altoAddendi = toInt16(Lungo(2) + OrigineY + kStacco);
  MettiQuadretti(aiuto1, primo, OrigineX, altoAddendi);
  MettiQuadretti(aiuto2, partita_.Numero(Termine::Secondo), FineDi(primo), altoAddendi);
  MettiQuadretti(aiuto3, partita_.Numero(Termine::Totale), OrigineX, toInt16(Lungo(3) + OrigineY));
  DiciQuadretti();
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

// One by one, so that they are counted by ear as the others count them by eye.
void FormaBarre::DiciQuadretti() {
  const std::optional<Termine> chiesto = partita_.Chiesto();
  if (!chiesto) return;
  const QStringList quadretti(partita_.Atteso(), QStringLiteral("1"));
  announce(QStringLiteral("%1: %2").arg(
      Barra(*chiesto).toolTip(),
      quadretti.isEmpty() ? QStringLiteral("0") : quadretti.join(QStringLiteral(", "))));
}

platform::Label& FormaBarre::Barra(Termine termine) {
  const std::array barre{&n1, &n2, &n3};
  return *barre[Indice(termine)];
}

// In `Label4` the signs stand between the terms.
platform::Label& FormaBarre::Scritto(Termine termine) {
  return Label4[2 * static_cast<int>(termine)];
}

qint16 FormaBarre::Lungo(int unita) const {
  return toInt16(int(Unita) * unita);
}

qint16 FormaBarre::FineDi(int unita) const {
  return toInt16(Lungo(unita) + OrigineX);
}

}  // namespace somme::inline barre
