#include "tests/tools/swf/passeggiata.h"

#include <zlib.h>

#include <algorithm>
#include <stdexcept>

namespace prove {
namespace {

class Lettore {
 public:
  explicit Lettore(std::span<const std::uint8_t> byte) : byte_(byte) {}

  int u8() {
    allinea();
    if (dove_ >= byte_.size()) throw std::runtime_error("past the end");
    return byte_[dove_++];
  }
  int u16() {
    const int basso = u8();
    return basso | u8() << 8;
  }
  std::uint32_t u32() {
    const auto basso = static_cast<std::uint32_t>(u16());
    return basso | static_cast<std::uint32_t>(u16()) << 16;
  }
  std::string testo() {
    std::string esito;
    while (const int c = u8()) esito += static_cast<char>(c);
    return esito;
  }
  int bit(int quanti) {
    int esito = 0;
    for (int i = 0; i < quanti; ++i) {
      if (dove_ >= byte_.size()) throw std::runtime_error("past the end");
      esito = esito << 1 | (byte_[dove_] >> (7 - bit_) & 1);
      if (++bit_ == 8) {
        bit_ = 0;
        ++dove_;
      }
    }
    return esito;
  }
  int conSegno(int quanti) {
    const int valore = bit(quanti);
    return quanti > 0 && (valore >> (quanti - 1)) ? valore - (1 << quanti) : valore;
  }
  void allinea() {
    if (bit_ > 0) ++dove_;
    bit_ = 0;
  }
  std::span<const std::uint8_t> prendi(std::size_t quanti) {
    allinea();
    if (quanti > byte_.size() - dove_) throw std::runtime_error("past the end");
    dove_ += quanti;
    return byte_.subspan(dove_ - quanti, quanti);
  }
  std::span<const std::uint8_t> resto() { return prendi(byte_.size() - dove_); }
  [[nodiscard]] bool finito() const { return dove_ >= byte_.size(); }
  [[nodiscard]] std::size_t dove() const { return dove_; }

 private:
  std::span<const std::uint8_t> byte_;
  std::size_t dove_ = 0;
  int bit_ = 0;
};

Rettangolo rettangolo(Lettore& l) {
  const int n = l.bit(5);
  Rettangolo r;
  r.xMinimo = l.conSegno(n);
  r.xMassimo = l.conSegno(n);
  r.yMinimo = l.conSegno(n);
  r.yMassimo = l.conSegno(n);
  l.allinea();
  return r;
}

// Reads a matrix for its translation.
void matrice(Lettore& l, double& x, double& y) {
  for (int i = 0; i < 2; ++i) {
    if (l.bit(1) == 0) continue;
    const int n = l.bit(5);
    l.conSegno(n);
    l.conSegno(n);
  }
  const int n = l.bit(5);
  x = l.conSegno(n);
  y = l.conSegno(n);
  l.allinea();
}

void trasformaColore(Lettore& l) {
  const int gruppi = l.bit(1) + l.bit(1);
  const int n = l.bit(4);
  for (int i = 0; i < gruppi * 4; ++i) l.conSegno(n);
  l.allinea();
}

Posto posto(const Byte& corpo, int fotogramma) {
  Lettore l(corpo);
  const int segni = l.u8();
  Posto p;
  p.fotogramma = fotogramma;
  p.profondita = l.u16();
  if (segni & 0x02) p.carattere = l.u16();
  if (segni & 0x04) matrice(l, p.x, p.y);
  if (segni & 0x08) trasformaColore(l);
  if (segni & 0x10) l.u16();
  if (segni & 0x20) p.nome = l.testo();
  if (!l.finito()) throw std::runtime_error("a placement with bytes left over");
  return p;
}

Sequenza sequenza(const std::vector<Etichetta>& etichette, int dichiarati) {
  Sequenza s;
  s.dichiarati = dichiarati;
  for (const auto& e : etichette) {
    if (e.codice == 1) ++s.mostrati;
    if (e.codice == 26) s.posti.push_back(posto(e.corpo, s.mostrati + 1));
    if (e.codice == 12) s.blocchi.push_back({s.mostrati + 1, azioni(e.corpo)});
  }
  if (etichette.empty() || etichette.back().codice != 0) {
    throw std::runtime_error("a timeline without its end");
  }
  return s;
}

PulsanteLetto pulsante(Lettore& l) {
  PulsanteLetto p;
  l.u8();
  const std::size_t daQui = l.dove();
  const int distanza = l.u16();
  while (const int stati = l.u8()) {
    p.aspetti.push_back({stati, l.u16()});
    l.u16();
    double x = 0, y = 0;
    matrice(l, x, y);
    trasformaColore(l);
  }
  if (distanza == 0) return p;
  if (l.dove() != daQui + static_cast<std::size_t>(distanza)) {
    throw std::runtime_error("a button's actions are not where it says");
  }
  if (l.u16() != 0) throw std::runtime_error("more than one condition");
  p.condizioni = l.u16();
  p.azioni = azioni(l.resto());
  return p;
}

Byte disteso(const Byte& file, std::uint32_t lunghezza) {
  if (file[0] == 'F') return {file.begin() + 8, file.end()};
  Byte esito(lunghezza + 1000);
  uLongf misura = esito.size();
  if (uncompress(esito.data(), &misura, file.data() + 8, file.size() - 8) != Z_OK) {
    throw std::runtime_error("not compressed as the head says");
  }
  esito.resize(misura);
  return esito;
}

void interpreta(FilmatoLetto& f, const Etichetta& e) {
  Lettore l(e.corpo);
  if (e.codice == 32) {
    const int numero = l.u16();
    f.forme[numero] = rettangolo(l);
  } else if (e.codice == 34) {
    const int numero = l.u16();
    f.pulsanti[numero] = pulsante(l);
  } else if (e.codice == 39) {
    const int numero = l.u16();
    const int fotogrammi = l.u16();
    f.clip[numero] = sequenza(etichette(l.resto()), fotogrammi);
  }
}

}  // namespace

Byte bit(const char* campi) {
  Byte esito;
  int quanti = 0;
  for (const char* c = campi; *c != 0; ++c) {
    if (*c == ' ') continue;
    if (quanti % 8 == 0) esito.push_back(0);
    if (*c == '1') esito.back() = static_cast<std::uint8_t>(esito.back() | 0x80 >> (quanti % 8));
    ++quanti;
  }
  return esito;
}

std::vector<Etichetta> etichette(std::span<const std::uint8_t> byte) {
  Lettore l(byte);
  std::vector<Etichetta> esito;
  while (!l.finito()) {
    const int testa = l.u16();
    std::size_t misura = static_cast<std::size_t>(testa & 0x3F);
    if (misura == 0x3F) misura = l.u32();
    const auto corpo = l.prendi(misura);
    esito.push_back({testa >> 6, {corpo.begin(), corpo.end()}});
  }
  return esito;
}

std::vector<Azione> azioni(std::span<const std::uint8_t> byte) {
  Lettore l(byte);
  std::vector<Azione> esito;
  while (const int codice = l.u8()) {
    const auto dati = codice < 0x80 ? std::span<const std::uint8_t>()
                                    : l.prendi(static_cast<std::size_t>(l.u16()));
    esito.push_back({codice, {dati.begin(), dati.end()}});
  }
  if (!l.finito()) throw std::runtime_error("actions after their end");
  return esito;
}

std::string testo(const Byte& dati, std::size_t da) {
  return Lettore(std::span(dati).subspan(da)).testo();
}

std::vector<std::string> spinti(const std::vector<Azione>& azioni) {
  std::vector<std::string> esito;
  for (const auto& azione : azioni) {
    if (azione.codice == 0x96 && azione.dati.at(0) == 0) esito.push_back(testo(azione.dati, 1));
  }
  return esito;
}

std::optional<Posto> FilmatoLetto::posto(const std::string& nome) const {
  const auto trovato = std::ranges::find(scena.posti, nome, &Posto::nome);
  if (trovato == scena.posti.end()) return {};
  return *trovato;
}

FilmatoLetto leggi(const Byte& file) {
  FilmatoLetto f;
  Lettore testa(file);
  for (int i = 0; i < 3; ++i) f.firma += static_cast<char>(testa.u8());
  f.versione = testa.u8();
  f.lunghezza = testa.u32();
  const Byte dentro = disteso(file, f.lunghezza);
  f.disteso = static_cast<std::uint32_t>(dentro.size() + 8);
  Lettore l(dentro);
  f.palco = rettangolo(l);
  f.cadenza = l.u16() / 256.0;
  const int fotogrammi = l.u16();
  f.etichette = etichette(l.resto());
  f.scena = sequenza(f.etichette, fotogrammi);
  for (const auto& e : f.etichette) interpreta(f, e);
  return f;
}

}  // namespace prove
