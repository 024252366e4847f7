#pragma once

#include <QString>
#include <memory>

#include "platform/flash/budget.h"
#include "platform/flash/movie.h"

namespace platform::flash {

// Reads a movie from the disk, no more of it than limits::fileBytes. Throws MovieError when there
// is no such file, it cannot be read, or it is no movie.
[[nodiscard]] std::shared_ptr<const Movie> loadMovie(const QString& path,
                                                     Budget::Clock clock = Budget::processorTime);

}  // namespace platform::flash
