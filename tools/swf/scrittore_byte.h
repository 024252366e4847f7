#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace somme::swf {

// The bytes of a file or of one of its tags, as they grow. Whole numbers are stored with the low
// byte first; bit fields with the high bit first, as the format mixes both. Every byte-sized write
// starts at a whole byte: open bits before it are filled up with zeros.
class ScrittoreByte {
 public:
  void u8(std::uint32_t valore);
  void u16(std::uint32_t valore);
  void u32(std::uint32_t valore);
  // The characters, then a zero. Throws std::invalid_argument where the text holds a zero itself.
  void testo(std::string_view testo);
  void aggiungi(std::span<const std::uint8_t> byte);

  // The low `quanti` bits (0 to 32) of the value.
  void bit(std::uint32_t valore, int quanti);
  // The same in two's complement. Throws std::out_of_range where the value needs more bits.
  void bitConSegno(std::int32_t valore, int quanti);
  void allinea();

  [[nodiscard]] const std::vector<std::uint8_t>& byte() const { return byte_; }

  // How many bits the value needs, with its sign; 0 needs none, as a field of no bits is read as
  // 0.
  [[nodiscard]] static int bitOccorrenti(std::int32_t valore);
  // How many bits an index up to the value needs.
  [[nodiscard]] static int bitSenzaSegno(std::uint32_t valore);

 private:
  std::vector<std::uint8_t> byte_;
  int liberi_ = 0;  // bits still free in the last byte
};

}  // namespace somme::swf
