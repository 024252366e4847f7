#include "file_wav.h"

#include <fstream>
#include <string>
#include <string_view>

namespace suoni {

namespace {

constexpr std::uint32_t kCanali = 2;
constexpr std::uint32_t kByteCampione = 2;
// What the RIFF length counts besides the samples: "WAVE", the whole format chunk, the head of the
// data chunk.
constexpr std::uint32_t kIntestazione = 4 + 8 + 16 + 8;

// A number of the given bytes, lowest byte first, whatever the order of the machine.
void Metti(std::string& dati, std::uint32_t valore, std::uint32_t byte) {
  for (std::uint32_t i = 0; i < byte; ++i) dati += char(valore >> (8 * i) & 0xff);
}

}  // namespace

bool ScriviWav(const std::filesystem::path& file, std::span<const std::int16_t> campioni,
               int frequenza) {
  const auto lunghezza = std::uint32_t(campioni.size() * kByteCampione);
  std::string dati;
  dati.reserve(8 + kIntestazione + lunghezza);
  dati += std::string_view("RIFF");
  Metti(dati, kIntestazione + lunghezza, 4);
  dati += std::string_view("WAVEfmt ");
  Metti(dati, 16, 4);  // length of the format chunk
  Metti(dati, 1, 2);   // PCM
  Metti(dati, kCanali, 2);
  Metti(dati, std::uint32_t(frequenza), 4);
  Metti(dati, std::uint32_t(frequenza) * kCanali * kByteCampione, 4);  // bytes in a second
  Metti(dati, kCanali * kByteCampione, 2);                             // bytes of one moment
  Metti(dati, 8 * kByteCampione, 2);                                   // bits of a sample
  dati += std::string_view("data");
  Metti(dati, lunghezza, 4);
  for (const std::int16_t campione : campioni) Metti(dati, std::uint16_t(campione), kByteCampione);

  std::ofstream uscita(file, std::ios::binary);
  uscita.write(dati.data(), std::streamsize(dati.size()));
  uscita.close();
  return uscita.good();
}

}  // namespace suoni
