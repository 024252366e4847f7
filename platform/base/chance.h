#pragma once

#include <cstdint>
#include <random>

namespace platform::inline base {

// The one source of chance of a program. Who draws gets it handed in, so that a test can script it.
class Chance {
 public:
  virtual ~Chance() = default;

  // The next fraction: at least 0, below 1.
  [[nodiscard]] virtual float fraction() = 0;
  // Starts the sequence that belongs to the seed; a scripted source has none.
  virtual void seed(std::uint64_t /*seed*/) {}
};

// A uniform sequence from a seed; the same seed gives the same sequence on every machine.
class SeededChance final : public Chance {
 public:
  explicit SeededChance(std::uint64_t seed) : engine_(seed) {}

  void seed(std::uint64_t seed) override { engine_.seed(seed); }

  // 24 bits of the engine fill the mantissa of a float exactly, so that 1 is never reached.
  [[nodiscard]] float fraction() override {
    return static_cast<float>(engine_() >> 40U) * 0x1.0p-24F;
  }

 private:
  std::mt19937_64 engine_;
};

}  // namespace platform::inline base
