#pragma once

#include <QString>

#include "printing/oggetto_da_stampare.h"

namespace somme::inline stampa {

// What is to be printed, and how large it is meant.
struct RichiestaDiStampa {
  OggettoDaStampare oggetto;
  qint32 sinistra = 0;  // all in millimetres
  qint32 alto = 0;
  qint32 larghezza = 0;  // only their proportion is used
  qint32 altezza = 0;
  qint32 orientamento = 0;  // 1 or 2, or as the printer has it
  QString titolo;           // the object's name, where it is empty
  float scala = 0;          // never read
  // Of a picture box: captured as it stands; else the picture that it keeps is taken.
  bool usaImmagine = false;
};

}  // namespace somme::inline stampa
