#pragma once

namespace platform::inline forms {

// From here on the toolkit does not tell on the error stream that a screen reader has ended while a
// key was on its way past it: the key comes all the same. Every other message goes where it went.
void silenceLostReaders();

}  // namespace platform::inline forms
