// Any bytes as what HelpiKeys says, message after message. The first byte of each message is how
// long it is, 255 for all the rest; what the reader makes of it is held against its own words here.
#include <cstdint>
#include <cstdlib>
#include <optional>

#include "app/shared/foglio_tasti.h"
#include "input/segnali_helpikeys.h"
#include "platform/base/run_time_error.h"

using somme::SegnaliHelpiKeys;
using somme::Tastiera;

namespace {

// Ends the run where a promise is broken; assert() would not in an optimised build.
void require(bool promise) {
  if (!promise) std::abort();
}

bool isBetween(int number, int from, int to) {
  return number >= from && number <= to;
}

// The key of the sheet with digits under a cell, told without any table.
int digitKey(int column, int row) {
  const int across = column < 2 || column > 23 || (column - 2) % 6 > 3 ? -1 : (column - 2) / 6;
  const int down = isBetween(row, 2, 6)     ? 0
                   : isBetween(row, 7, 11)  ? 1
                   : isBetween(row, 13, 16) ? 2
                   : isBetween(row, 18, 22) ? 3
                                            : -1;
  return across < 0 || down < 0 ? 0 : down * 4 + across + 1;
}

void checkMaps(int column, int row) {
  require(somme::kTastieraCifre.Posto(column, row) == digitKey(column, row));
  for (const Tastiera* map :
       {&somme::kTastieraCifre, &somme::kTastieraBlocchi, &somme::kTastieraAbaco}) {
    const int key = map->Posto(column, row);
    require(isBetween(key, 0, map->Posti()));
    if (key == 0) continue;
    require(map->CelleDi(key).colonne.contiene(column) && map->CelleDi(key).righe.contiene(row));
  }
}

void read(SegnaliHelpiKeys& signals, QByteArrayView message) {
  using Kind = SegnaliHelpiKeys::Tipo;
  const bool before = signals.HelpiKeysConnesso;
  const bool isOk = message.size() == 2 && message[0] == 'O' && message[1] == 'K';
  const bool isDropped = !before || (message.size() > 2 && message[2] == '2');
  std::optional<SegnaliHelpiKeys::Segnale> signal;
  try {
    signal = signals.Leggi(message);
  } catch (const platform::RunTimeError& error) {
    require(error.number() == platform::RunTimeError::InvalidCall);
  }
  require(signals.HelpiKeysConnesso == (before != isOk));
  require(signal.has_value() == (isOk || isDropped || message.size() >= 2));
  if (!signal) return;
  if (isOk) {
    require(signal->tipo == (before ? Kind::Nulla : Kind::Pronta));
  } else if (isDropped) {
    require(signal->tipo == Kind::Nulla);
  } else {
    require(signal->tipo == Kind::Tocco);
    require(isBetween(signal->cella.colonna, -64, 191) && isBetween(signal->cella.riga, -64, 191));
    checkMaps(signal->cella.colonna, signal->cella.riga);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  SegnaliHelpiKeys signals;
  while (size > 0) {
    std::size_t length = data[0];
    ++data;
    --size;
    if (length == 255 || length > size) length = size;
    read(signals, QByteArrayView(data, static_cast<qsizetype>(length)));
    data += length;
    size -= length;
  }
  return 0;
}
