#include "tools/manuale/scene_esercizi.h"

#include <QPainter>
#include <QPainterPath>
#include <array>
#include <cmath>
#include <span>

#include "app/shared/mod_language_support.h"
#include "app/shared/nomi_forme.h"
#include "cases/chiavi.h"
#include "exercises/abacus/forma_abaco_tastiera.h"
#include "exercises/bars/forma_barre_pulsanti.h"
#include "exercises/bars/forma_barre_tastiera.h"
#include "exercises/blocks/forma_blocchi_tastiera.h"
#include "exercises/numbers/forma_numeri_tastiera.h"
#include "exercises/table/form_tabella.h"
#include "tools/manuale/scene.h"

namespace manuale {

using namespace somme;
using prova::Banco;

namespace {

// The beginning of the record's heading, as the family menus write it.
QString Titolo(Banco& banco, std::string_view inizio, std::string_view gruppo,
               const QString& livello) {
  return TestoLingua(*banco.ambiente, inizio) + TestoLingua(*banco.ambiente, gruppo) + livello;
}

template <class F>
F& Barre(Banco& banco, std::string_view nome, int limite, int totale, int addendo1) {
  banco.ambiente->stato.LimiteEsercizio = limite;
  banco.sorte.scrivi({{totale - 1, limite}, {addendo1, totale}});
  return banco.apri<F>(nome);
}

void Costruisci(Banco& banco, const platform::Button& pulsante, int quanti) {
  for (int i = 0; i < quanti; ++i) banco.clicca(pulsante);
}
FormaBlocchiTastiera& LU(Banco& banco, int totale, int addendo1) {
  banco.ambiente->stato.TipoEsercizio = 3;
  banco.sorte.scrivi({{totale - 1, 99}, {addendo1, totale}});
  return banco.apri<FormaBlocchiTastiera>(forme::kFormLU);
}
FormaAbacoTastiera& Abaco(Banco& banco, qint16 tipo, int limite, int totale, int addendo1) {
  banco.ambiente->stato.TipoEsercizio = tipo;
  banco.sorte.scrivi({{totale - 1, limite}, {addendo1, totale}});
  return banco.apri<FormaAbacoTastiera>(forme::kFormAbaco);
}
// Puts `quante` of the waiting beads of a kind, from the number `da` on, onto their spike.
void Infila(Banco& banco, FormaAbacoTastiera& forma, const char* palline, int da, int quante) {
  for (int i = da; i < da + quante; ++i) {
    banco.cliccaClip(forma.ShockwaveFlash1, QLatin1String(palline) + QString::number(i));
  }
}
FormaNumeriTastiera& Numeri(Banco& banco) {
  banco.ambiente->stato.TipoEsercizio = 7;
  banco.ambiente->stato.TitoloEsercizio =
      Titolo(banco, chiavi::kTitoloNumeri, chiavi::kNumeriEntro99,
             TestoLingua(*banco.ambiente, chiavi::kTipoConESenzaCambi));
  banco.sorte.scrivi({{74, 99}, {47, 75}, {38, 99}, {21, 39}});
  return banco.apri<FormaNumeriTastiera>(forme::kFormNumeriTotale);
}
// The way along neighbouring cells, over the picture of the form: a ring round the first, and a hop
// beside the numbers to each of the next.
void Percorso(QImage& ritratto, FormTabella& forma, std::span<const int> celle) {
  // Parts of a cell's height.
  constexpr double kSpessore = 0.08;
  constexpr double kAnello = 0.36;
  constexpr double kSopra = 0.28;  // from the middle of a cell to the ends of a hop above a number
  constexpr double kAccanto = 0.36;  // and beside one, which is wider than high
  // From the ends to where the hop would go if it were not round: beside a number it keeps clear of
  // the one in the next column.
  constexpr double kArco = 0.4;
  constexpr double kArcoAccanto = 0.2;
  constexpr double kPunta = 0.17;
  const QColor colore(200, 60, 0);
  // Of the digits, which a blank in front of them moves to the right.
  const auto mezzo = [&forma](int cella) {
    const QWidget* widget = forma.Numero[cella].widget();
    const QString scritta = forma.Numero[cella].caption();
    const QString vuoto = scritta.left(scritta.size() - scritta.trimmed().size());
    return QPointF(widget->mapTo(widget->window(), widget->rect().center())) +
           QPointF(QFontMetricsF(widget->font()).horizontalAdvance(vuoto) / 2, 0);
  };
  const double unita = forma.Numero[celle.front()].widget()->height();
  QPainter pennello(&ritratto);
  pennello.setRenderHint(QPainter::Antialiasing);
  pennello.setPen(QPen(colore, kSpessore * unita, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  pennello.drawEllipse(mezzo(celle.front()), kAnello * unita, kAnello * unita);
  for (std::size_t i = 1; i < celle.size(); ++i) {
    const QLineF passo(mezzo(celle[i - 1]), mezzo(celle[i]));
    const QPointF verso = (passo.p2() - passo.p1()) / passo.length();
    const QPointF fuori(-verso.y(), -verso.x());  // above on the way right, left on that down
    const bool giu = verso.y() > 0.5;
    const double piede = (giu ? kAccanto : kSopra) * unita;
    const QPointF arrivo = passo.p2() + fuori * piede;
    const QPointF cima = passo.center() + fuori * (piede + (giu ? kArcoAccanto : kArco) * unita);
    QPainterPath salto(passo.p1() + fuori * (i == 1 ? kAnello * unita : piede));
    salto.quadTo(cima, arrivo);
    pennello.setBrush(Qt::NoBrush);
    pennello.drawPath(salto);
    const QPointF indietro = cima - arrivo;
    const QPointF lato(indietro.y(), -indietro.x());
    const double misura = kPunta * unita / std::hypot(indietro.x(), indietro.y());
    pennello.setBrush(colore);
    pennello.drawConvexPolygon(QPolygonF({arrivo, arrivo + (indietro + lato * 0.7) * misura,
                                          arrivo + (indietro - lato * 0.7) * misura}));
  }
}

}  // namespace

void Barre10(Banco& banco) {
  Barre<FormaBarrePulsanti>(banco, forme::kFormBarre10, 10, 7, 3);
}
void Barre10Aiuto(Banco& banco) {
  auto& forma = Barre<FormaBarrePulsanti>(banco, forme::kFormBarre10, 10, 7, 3);
  banco.clicca(forma.PulsanteNumero[6]);
  banco.clicca(forma.PulsanteAiuto);
}
void Barre10Giusto(Banco& banco) {
  auto& forma = Barre<FormaBarrePulsanti>(banco, forme::kFormBarre10, 10, 7, 3);
  banco.clicca(forma.PulsanteNumero[7]);
}
void Barre10Sbagliato(Banco& banco) {
  auto& forma = Barre<FormaBarrePulsanti>(banco, forme::kFormBarre10, 10, 7, 3);
  banco.clicca(forma.PulsanteNumero[6]);
}
void Barre20Aiuto(Banco& banco) {
  auto& forma = Barre<FormaBarreTastiera>(banco, forme::kFormBarre20, 20, 15, 8);
  banco.clicca(forma.PulsanteAiuto);
  banco.clicca(forma.TestoInput);
}

void Blocchi99(Banco& banco) {
  auto& forma = LU(banco, 52, 27);
  Costruisci(banco, forma.pulsanti.PulsanteDa, 2);
  Costruisci(banco, forma.pulsanti.PulsanteU, 7);
  banco.clicca(forma.pulsanti.PulsanteConferma);
  Costruisci(banco, forma.pulsanti.PulsanteDa, 1);
}
FormaBlocchiTastiera& BlocchiUniti(Banco& banco) {
  auto& forma = LU(banco, 52, 27);
  Costruisci(banco, forma.pulsanti.PulsanteDa, 2);
  Costruisci(banco, forma.pulsanti.PulsanteU, 7);
  banco.clicca(forma.pulsanti.PulsanteConferma);
  Costruisci(banco, forma.pulsanti.PulsanteDa, 2);
  Costruisci(banco, forma.pulsanti.PulsanteU, 5);
  banco.clicca(forma.pulsanti.PulsanteConferma);
  banco.tempo.advance(3);
  return forma;
}
void BlocchiCambio(Banco& banco) {
  BlocchiUniti(banco);
}
void BlocchiCambiato(Banco& banco) {
  auto& forma = BlocchiUniti(banco);
  banco.clicca(*forma.PulsanteCambio);
  banco.scrivi(QStringLiteral("52"));
}
void Blocchi999(Banco& banco) {
  banco.ambiente->stato.TipoEsercizio = 6;
  banco.sorte.scrivi({{365 - 1, 988}, {142, 365}});
  auto& forma = banco.apri<FormaBlocchiTastiera>(forme::kFormHLU);
  Costruisci(banco, *forma.pulsanti.PulsanteH, 1);
  Costruisci(banco, forma.pulsanti.PulsanteDa, 4);
  Costruisci(banco, forma.pulsanti.PulsanteU, 2);
  banco.clicca(forma.pulsanti.PulsanteConferma);
  Costruisci(banco, *forma.pulsanti.PulsanteH, 2);
}

void AbacoDieciUnita(Banco& banco) {
  auto& forma = Abaco(banco, 3, 99, 43, 28);
  Infila(banco, forma, "daa", 0, 2);
  Infila(banco, forma, "ua", 0, 10);
}
void AbacoCambiato(Banco& banco) {
  auto& forma = Abaco(banco, 3, 99, 43, 28);
  Infila(banco, forma, "daa", 0, 3);
  Infila(banco, forma, "ua", 0, 10);
  banco.clicca(forma.PulsanteCambioUDa);
  Infila(banco, forma, "ua", 0, 3);
  banco.scrivi(QStringLiteral("43"));
}

QImage Tabella(Banco& banco) {
  banco.ambiente->stato.TipoEsercizio = 10;
  banco.sorte.scrivi({{46, 99}, {12, 99}});
  auto& forma = banco.apri<FormTabella>(forme::kFormTabella);
  forma.mnuFacile.click();
  banco.clicca(forma.Numero[58]);
  QImage ritratto = Ritratto(banco);
  Percorso(ritratto, forma, std::to_array({46, 56, 57, 58}));
  return ritratto;
}

void NumeriTotale(Banco& banco) {
  Numeri(banco);
  banco.scrivi(QStringLiteral("75"));
}
void NumeriSbagliato(Banco& banco) {
  Numeri(banco);
  banco.scrivi(QStringLiteral("65"));
  banco.batti(Qt::Key_Return);
}
void NumeriElenco(Banco& banco) {
  auto& forma = Numeri(banco);
  banco.scrivi(QStringLiteral("75"));
  banco.batti(Qt::Key_Return);
  banco.clicca(forma.PulsanteAvanti);
  banco.scrivi(QStringLiteral("39"));
  banco.batti(Qt::Key_Return);
  forma.mnuStampa.click();
}
void NumeriAddendo(Banco& banco) {
  banco.ambiente->stato.TipoEsercizio = 1;
  banco.mostra(forme::kFormNumeriAddendo);
}
}  // namespace manuale
