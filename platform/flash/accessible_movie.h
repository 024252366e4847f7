#pragma once

namespace platform::flash {

class MovieView;

// Makes movie views graphics to assistive technology, and the clips that they offer buttons on
// them. May be called more than once.
void installMovieAccessibility();

// Tells assistive technology which of the clips that the view offers, and that it has asked for,
// have come and gone since the last call.
void tellOfferedClips(MovieView& view);

}  // namespace platform::flash
