#include "printing/nome_formato_carta.h"

#include <algorithm>
#include <array>

namespace somme::inline stampa {

namespace {

struct Formato {
  int codice;
  const char* nome;
};

constexpr auto kFormati = std::to_array<Formato>({
    {1, "Letter"},
    {2, "Letter Small"},
    {3, "Tabloid"},
    {4, "Ledger"},
    {5, "Legal"},
    {6, "Statement"},
    {7, "Executive"},
    {8, "A3"},
    {9, "A4"},
    {10, "A4 Small"},
    {11, "A5"},
    {12, "B4"},
    {13, "B5"},
    {14, "Folio"},
    {15, "Quarto"},
    {16, "10X14"},
    {17, "11X17"},
    {18, "Note"},
    {19, "Envelope 9"},
    {20, "Envelope 10"},
    {21, "Envelope 11"},
    {22, "Envelope 12"},
    {23, "Envelope 14"},
    {24, "C Sheet"},
    {25, "D Sheet"},
    {26, "E Sheet"},
    {27, "Envelope DL"},
    {28, "Envelope C5"},
    {29, "Envelope C3"},
    {30, "Envelope C4"},
    {31, "Envelope C6"},
    {32, "Envelope C65"},
    {33, "Envelope B4"},
    {34, "Envelope B5"},
    {35, "Envelope B6"},
    {36, "Envelope Italy"},
    {37, "Envelope Monarch"},
    {38, "Envelope Personal"},
    {39, "Fanfold US"},
    {40, "Fanfold Std. German"},
    {41, "Fanfold Lgl. German"},
    {42, "ISO B4"},
    {43, "Japanese Postcard"},
    {44, "9X11"},
    {45, "10X11"},
    {46, "15X11"},
    {47, "Envelope Invite"},
    {50, "Letter Extra"},
    {51, "Legal Extra"},
    {52, "Tabloid Extra"},
    {53, "A4 Extra"},
    {54, "Letter Transverse"},
    {55, "A4 Transverse"},
    {56, "Letter Extra Transverse"},
    {57, "A Plus"},
    {58, "B Plus"},
    {59, "Letter Plus"},
    {60, "A4 Plus"},
    {61, "A5 Transverse"},
    {62, "B5 Transverse"},
    {63, "A3 Extra"},
    {64, "A5 Extra"},
    {65, "B5 Extra"},
    {66, "A2"},
    {67, "A3 Transverse"},
    {68, "A3 Extra Transverse"},
    {256, "User"},
});

}  // namespace

QString NomeFormatoCarta(int codice) {
  const auto trovato =
      std::find_if(kFormati.begin(), kFormati.end(),
                   [codice](const Formato& formato) { return formato.codice == codice; });
  return QString::fromLatin1(trovato == kFormati.end() ? "Unknown" : trovato->nome);
}

QString NomeDellaCarta(const platform::Paper& carta) {
  if (carta.code != 0) return NomeFormatoCarta(carta.code);
  return QStringLiteral("%1 (%2 x %3 mm)")
      .arg(carta.media)
      .arg(qRound(carta.width))
      .arg(qRound(carta.height));
}

}  // namespace somme::inline stampa
