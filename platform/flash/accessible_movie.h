#pragma once

namespace platform::flash {

// Makes movie views graphics to assistive technology. May be called more than once.
void installMovieAccessibility();

}  // namespace platform::flash
