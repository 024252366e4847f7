#pragma once

#include <QString>
#include <exception>

namespace platform::inline base {

// A failure of the run-time that a handler may ignore on purpose (by catching exactly this type);
// one that nobody takes ends the program with the run-time's own box.
class RunTimeError final : public std::exception {
 public:
  // The numbers that the program can meet.
  enum Number : int {
    InvalidCall = 5,
    Overflow = 6,
    FileNotFound = 53,
    PrinterError = 482,
    ConnectionState = 40006,
  };

  explicit RunTimeError(Number number) noexcept : number_(number) {}

  [[nodiscard]] int number() const noexcept { return number_; }
  // The sentence that belongs to the number, in Italian, as the box shows it.
  [[nodiscard]] QString description() const;
  // The whole text of the box: a line with the number, an empty line, the description.
  [[nodiscard]] QString boxText() const;
  [[nodiscard]] const char* what() const noexcept override { return "run-time error"; }

 private:
  Number number_;
};

}  // namespace platform::inline base
