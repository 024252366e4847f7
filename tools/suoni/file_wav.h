#pragma once

#include <cstdint>
#include <filesystem>
#include <span>

namespace suoni {

// Writes a WAV file of 16-bit stereo samples, left and right by turns. False when the file cannot
// be written in full.
[[nodiscard]] bool ScriviWav(const std::filesystem::path& file,
                             std::span<const std::int16_t> campioni, int frequenza);

}  // namespace suoni
