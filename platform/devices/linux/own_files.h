#pragma once

namespace platform::inline devices {

// Gives the calling thread, and the threads that it starts from then on, a table of open files of
// their own: nothing stands in it but /dev/null in the place of input, output and the error stream.
// What a library writes there for itself on such a thread reaches nobody, whatever it is and
// however it writes, while the rest of the program keeps its streams; and nothing that the rest
// closes stays open. A number of an open file means nothing on the other side.
//
// False where the system cannot do that (Linux before 5.9): the thread's streams are then the
// program's, as before.
bool takeOwnFiles();

}  // namespace platform::inline devices
