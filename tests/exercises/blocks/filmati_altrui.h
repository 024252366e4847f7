#pragma once

#include "support/filmato_altrui.h"

// Joined boards of the blocks by other artists, as the bytes of their files.
namespace prova {

inline const QString kUnione = QStringLiteral("swf/unione.swf");
inline const QString kUnioneHDU = QStringLiteral("swf/unionehdau.swf");

// Rows of the boards.
inline constexpr int kFilaH = 0;
inline constexpr int kFilaDa = 1;
inline constexpr int kFilaU = 2;

// Where the longs and units of a joined board stand while it rests, up to 99 and up to 999.
inline FilmatoAltrui riposoLU() {
  FilmatoAltrui filmato;
  filmato.poni("da", kFilaDa, 1, 9).poni("u", kFilaU, 1, 19);
  return filmato;
}
inline FilmatoAltrui riposoHLU() {
  FilmatoAltrui filmato;
  filmato.poni("h", kFilaH, 1, 9).poni("da", kFilaDa, 1, 19).poni("u", kFilaU, 1, 19);
  return filmato;
}
// A movie that hides its own flats, as the one up to 999 must: the form never does.
inline somme::swf::Azioni nascondiPiatti() {
  somme::swf::Azioni azioni;
  for (int i = 1; i <= 9; ++i) {
    azioni.spingi("h" + std::to_string(i))
        .spingi(somme::swf::Proprieta::Visibile)
        .spingi(0)
        .scriviProprieta();
  }
  return azioni;
}

// A stretch that takes the ten units away, and says its word `parola` seconds after its start.
inline QByteArray cheToglieLeDieci(double parola) {
  FilmatoAltrui filmato = riposoLU();
  filmato.ferma().mostra();
  filmato.togli(kFilaU, 1, 10).finoA(2 + qRound(parola * FilmatoAltrui::kFrequenza));
  filmato.di("cambio").ferma().mostra();
  return filmato.byte();
}
// One that takes all blocks away for a picture without a name. They are back with frame 1.
inline QByteArray cheToglieTutto() {
  FilmatoAltrui filmato = riposoLU();
  filmato.ferma().mostra();
  filmato.togli(kFilaU, 1, 19).togli(kFilaDa, 1, 9);
  filmato.scena().poni(5, filmato.quadro());
  filmato.mostra(20).di("cambio").mostra(20);
  return filmato.byte();
}
// Stretches that have the ten back so many frames after their word, for whoever looks on.
inline QByteArray cheRimetteDopoLaParola(int dopo) {
  FilmatoAltrui filmato = riposoHLU();
  filmato.scena().esegui(nascondiPiatti());
  filmato.ferma().mostra();
  filmato.togli(kFilaU, 1, 10).mostra(20).di("cambiouda").mostra(dopo);
  filmato.poni("u", kFilaU, 1, 10).ferma().finoA(51);
  filmato.togli(kFilaDa, 1, 10).mostra(20).di("cambiodah").mostra(dopo);
  filmato.poni("da", kFilaDa, 1, 10).ferma().mostra();
  return filmato.byte();
}
// One whose second stretch begins with the whole board, as its artist drew it for frame 1.
inline QByteArray cheRicominciaIntero() {
  FilmatoAltrui filmato = riposoHLU();
  filmato.scena().esegui(nascondiPiatti());
  filmato.ferma().mostra();
  filmato.togli(kFilaU, 1, 19).mostra(20).di("cambiouda").ferma().finoA(51);
  filmato.poni("u", kFilaU, 1, 19).mostra(20).di("cambiodah").ferma().mostra();
  return filmato.byte();
}
// One that puts other flats down for the time of a stretch.
inline QByteArray cheScambiaIPiatti() {
  FilmatoAltrui filmato = riposoHLU();
  filmato.scena().esegui(nascondiPiatti());
  filmato.ferma().mostra();
  filmato.togli(kFilaH, 1, 9).mostra(60).di("cambiouda").ferma().mostra();
  return filmato.byte();
}
// One without a single name, that has frames and words all the same.
inline QByteArray senzaNomi() {
  FilmatoAltrui filmato;
  filmato.scena().poni(1, filmato.quadro());
  filmato.ferma().mostra(20).di("cambio").ferma().mostra();
  return filmato.byte();
}
// One whose word comes twice.
inline QByteArray cheParlaTroppo() {
  FilmatoAltrui filmato = riposoLU();
  filmato.ferma().mostra();
  filmato.mostra(20).di("cambio").di("cambio").mostra();
  return filmato.byte();
}
// One with a clip that goes on by itself and says the word once more, some 16 seconds after the
// movie was loaded.
inline QByteArray conUnEco() {
  FilmatoAltrui filmato = riposoLU();
  somme::swf::LineaTempo eco;
  eco.mostra(16 * FilmatoAltrui::kFrequenza);
  eco.esegui(somme::swf::Azioni().comando("echo", "cambio").ferma()).mostra();
  filmato.scena().poni(5, filmato.filmato().definisci(eco));
  filmato.ferma().mostra();
  filmato.mostra(20).di("cambio").mostra();
  return filmato.byte();
}

}  // namespace prova
