#pragma once

#include <memory>

#include "platform/flash/budget.h"
#include "platform/flash/byte_reader.h"
#include "platform/flash/movie.h"

namespace platform::flash {

// Reads a movie out of the bytes of its file. Tags that are unknown are skipped; one that cannot be
// read is left out and told among the movie's faults; a file that breaks off gives what it holds up
// to there. Throws MovieError only for bytes that are no movie at all (unpacked_file.h says which).
// Time and memory are bounded (limits::loading): a movie that needs more is cut off where it
// stands.
[[nodiscard]] std::shared_ptr<const Movie> readMovie(Bytes file,
                                                     Budget::Clock clock = Budget::processorTime);

}  // namespace platform::flash
