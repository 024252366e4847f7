#pragma once

#include <cstddef>
#include <exception>

namespace platform::flash {

// A place of a movie's file that cannot be read. The innermost reader knows what is wrong and where
// in its own bytes; whoever cut those bytes out adds the tag and makes the offset one of the movie.
class MovieError final : public std::exception {
 public:
  // what: a sentence with static lifetime. offset: bytes from the start of what is being read.
  MovieError(const char* what, std::size_t offset) noexcept : what_(what), offset_(offset) {}

  [[nodiscard]] const char* what() const noexcept override { return what_; }
  // Bytes from the start of the uncompressed movie.
  [[nodiscard]] std::size_t offset() const noexcept { return offset_; }
  // The code of the tag that cannot be read; -1 for the frame of the tags itself and the header.
  [[nodiscard]] int tag() const noexcept { return tag_; }

  // The same fault, as a fault of a tag whose body begins at bodyOffset.
  [[nodiscard]] MovieError inTag(int tag, std::size_t bodyOffset) const noexcept {
    MovieError error(what_, bodyOffset + offset_);
    error.tag_ = tag;
    return error;
  }

 private:
  const char* what_;
  std::size_t offset_;
  int tag_ = -1;
};

}  // namespace platform::flash
