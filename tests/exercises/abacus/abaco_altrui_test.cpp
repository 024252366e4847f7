#include "abaco_di_prova.h"

#include <QApplication>
#include "support/filmato_altrui.h"
#include "support/iscrizione.h"

namespace abaco_altrui_test {

using prova::BancoAbaco;
using prova::FilmatoAltrui;
using somme::swf::Azioni;
using somme::swf::Pulsante;

namespace {

// A square that says its clip's name and a word when it is clicked.
somme::swf::Carattere cheDice(FilmatoAltrui& filmato, const char* parola) {
  Azioni azioni;
  azioni.spingi("FSCommand:").spingi("this").leggiVariabile().spingi("_name").leggiMembro();
  azioni.unisciTesti().spingi(parola).comandoCalcolato();
  Pulsante pulsante;
  pulsante
      .mostra(Pulsante::Fermo | Pulsante::Puntato | Pulsante::Premuto | Pulsante::Sensibile, 1,
              filmato.quadro())
      .alRilascio(azioni);
  somme::swf::LineaTempo clip;
  clip.poni(1, filmato.filmato().definisci(pulsante)).mostra();
  return filmato.filmato().definisci(clip);
}

// An abacus of tens and units alone: nothing in it has the name of a greater kind.
QByteArray dueFerri() {
  FilmatoAltrui filmato;
  struct Fila {
    const char* clip;
    const char* parola;
  };
  constexpr auto kFile = std::to_array<Fila>({{"daa", "decinainattesa"},
                                              {"ua", "unitainattesa"},
                                              {"da", "decinainserita"},
                                              {"u", "unitainserita"}});
  int fila = 0;
  for (const auto& [clip, parola] : kFile) {
    filmato.falliDi(cheDice(filmato, parola));
    filmato.poni(clip, fila++, 0, 9);
  }
  filmato.ferma().mostra();
  return filmato.byte();
}

// One that speaks by itself as soon as it plays, a hundred times: of beads that are not there.
QByteArray cheParlaDaSolo() {
  FilmatoAltrui filmato;
  filmato.poni("ua", 0, 0, 9).poni("u", 1, 0, 9).mostra();
  for (int i = 0; i < 100; ++i) {
    filmato.scena().esegui(Azioni().comando("u0", "unitainserita"));
    filmato.scena().esegui(Azioni().comando("k0", "migliaioinserito"));
    filmato.mostra();
  }
  for (int i = 0; i < 100; ++i) {
    filmato.scena().esegui(Azioni().comando("ua3", "unitainattesa"));
    filmato.mostra();
  }
  filmato.ferma().mostra();
  return filmato.byte();
}

struct BancoAltrui : BancoAbaco {
  explicit BancoAltrui(const QByteArray& filmato) : BancoAbaco(3, caso(3, 82, 47)) {
    Banco::metti(QStringLiteral("swf/abaco.swf"), filmato);
    sorte.scrivi(caso(3, 82, 47));
    riattiva();
  }
};

}  // namespace

// The abacus with movies of another hand.
class AbacoAltruiTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void anAbacusOfTensAndUnitsAloneIsWorkedLikeTheWhole() {
    BancoAltrui banco(dueFerri());
    QCOMPARE(banco.visti("u"), QString());
    QCOMPARE(banco.visti("ua"), QString::fromLatin1(prova::kTutti));
    banco.metti("ua", 10);
    banco.tocca("daa", 4);
    QCOMPARE(banco.detto(), QStringLiteral("1 decina, 10 unità"));
    banco.clicca(banco.forma.PulsanteCambioUDa);
    QCOMPARE(banco.detto(), QStringLiteral("2 decine"));
    QCOMPARE(banco.visti("da"), QStringLiteral("0 1"));
    QCOMPARE(banco.visti("u"), QString());
    QCOMPARE(banco.visti("ua"), QString::fromLatin1(prova::kTutti));
    QCOMPARE(banco.visti("daa"), QStringLiteral("0 1 2 3 5 6 7 8"));
    banco.rispondi(QStringLiteral("82"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void aNewCaseInTheMiddleOfACarryLeavesItsAbacusAsTheCarryEnds() {
    BancoAltrui banco(dueFerri());
    banco.metti("ua", 10);
    banco.rispondi(QStringLiteral("82"));
    banco.sorte.scrivi(BancoAbaco::caso(3, 12, 7));
    banco.tempo.after(prova::nelPasso(50), [&] { banco.clicca(banco.forma.PulsanteAvanti); });
    banco.clicca(banco.forma.PulsanteCambioUDa);
    QCOMPARE(banco.detto(), QStringLiteral("1 decina"));
    QCOMPARE(banco.visti("da"), QStringLiteral("0"));
    QCOMPARE(banco.visti("u"), QString());
    banco.clicca(banco.forma.PulsanteCestino);
    QCOMPARE(banco.detto(), QStringLiteral("vuoto"));
    QCOMPARE(banco.visti("da"), QString());
  }

  void aMovieThatSpeaksOfBeadsThatAreNotThereTakesNoneAndPutsNoMoreThanThereAre() {
    BancoAltrui banco(cheParlaDaSolo());
    banco.tempo.advance(100.0 / FilmatoAltrui::kFrequenza);
    QCOMPARE(banco.forma.partita().Inserite().unita, 0);
    QCOMPARE(banco.forma.partita().Inserite().migliaia, 0);
    QCOMPARE(banco.detto(), QStringLiteral("vuoto"));
    banco.tempo.advance(5);
    QVERIFY(banco.forma.partita().Inserite().unita <= 11);
    QVERIFY(banco.forma.partita().Inserite().unita >= 10);
    QVERIFY(banco.messaggi.mostrati.empty());
    banco.clicca(banco.forma.PulsanteCestino);
    QCOMPARE(banco.detto(), QStringLiteral("vuoto"));
    banco.clicca(banco.forma.TestoInput);
    banco.rispondi(QStringLiteral("82"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }
};

const prova::Iscrizione<AbacoAltruiTest, QApplication> kIscritta;

}  // namespace abaco_altrui_test

#include "abaco_altrui_test.moc"
