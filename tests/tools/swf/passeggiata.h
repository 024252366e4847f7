#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace prove {

using Byte = std::vector<std::uint8_t>;

// Bits as the format's description lists them, with blanks between the fields, in whole bytes.
[[nodiscard]] Byte bit(const char* campi);

// A walk through the bytes of a movie, written from the format's description and from nothing that
// the writer knows, that tests can look at what really stands in a file. Whatever does not fit
// (a wrong length, a tag past the end, an action cut off) throws std::runtime_error.
struct Etichetta {
  int codice = 0;
  Byte corpo;
};

// One of those that a PlaceObject2 tag puts down.
struct Posto {
  int fotogramma = 1;
  int profondita = 0;
  int carattere = 0;
  std::string nome;
  double x = 0;  // twips
  double y = 0;
};

struct Azione {
  int codice = 0;
  Byte dati;
};

struct Blocco {
  int fotogramma = 1;
  std::vector<Azione> azioni;
};

struct Rettangolo {
  int xMinimo = 0, xMassimo = 0, yMinimo = 0, yMassimo = 0;
  [[nodiscard]] int larghezza() const { return xMassimo - xMinimo; }
  [[nodiscard]] int altezza() const { return yMassimo - yMinimo; }
};

// A timeline: the root's or a clip's.
struct Sequenza {
  int dichiarati = 0;  // frames by its head
  int mostrati = 0;    // frames by its ShowFrame tags
  std::vector<Posto> posti;
  std::vector<Blocco> blocchi;
};

struct Aspetto {
  int stati = 0;
  int carattere = 0;
};

struct PulsanteLetto {
  std::vector<Aspetto> aspetti;
  int condizioni = 0;
  std::vector<Azione> azioni;
};

struct FilmatoLetto {
  std::string firma;
  int versione = 0;
  std::uint32_t lunghezza = 0;  // by the head, uncompressed
  std::uint32_t disteso = 0;    // really
  Rettangolo palco;
  double cadenza = 0;
  std::vector<Etichetta> etichette;
  Sequenza scena;
  std::map<int, Sequenza> clip;
  std::map<int, PulsanteLetto> pulsanti;
  std::map<int, Rettangolo> forme;  // the bounds that each shape claims

  [[nodiscard]] std::optional<Posto> posto(const std::string& nome) const;
};

[[nodiscard]] FilmatoLetto leggi(const Byte& file);
[[nodiscard]] std::vector<Etichetta> etichette(std::span<const std::uint8_t> byte);
[[nodiscard]] std::vector<Azione> azioni(std::span<const std::uint8_t> byte);

// The text at a place of an action's data.
[[nodiscard]] std::string testo(const Byte& dati, std::size_t da = 0);
// The texts that an action pushes, in their order.
[[nodiscard]] std::vector<std::string> spinti(const std::vector<Azione>& azioni);

}  // namespace prove
