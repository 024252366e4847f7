#pragma once

#include <exception>
#include <initializer_list>
#include <vector>

#include "platform/base/chance.h"

// Thrown by a scripted source that is asked for more than its script has.
struct EndOfScript : std::exception {
  [[nodiscard]] const char* what() const noexcept override { return "end of script"; }
};

// What one draw shall give: `result` where the caller asks for one of `of` numbers. A caller that
// asks for another range gets another number, which a test notices.
struct Draw {
  int result;
  int of;
};

// A source of chance that gives what a test has written down, then throws. With thenEver() it goes
// on with one fraction until the caller has drawn a given number of times in all.
class ScriptedChance final : public platform::Chance {
 public:
  ScriptedChance(std::initializer_list<Draw> draws) {
    for (const Draw& draw : draws) add(draw);
  }
  explicit ScriptedChance(const std::vector<Draw>& draws) {
    for (const Draw& draw : draws) add(draw);
  }

  void thenEver(float fraction, int draws) {
    forever_ = fraction;
    draws_ = draws;
  }

  [[nodiscard]] bool isUsedUp() const { return drawn_ == static_cast<int>(fractions_.size()); }
  [[nodiscard]] int drawn() const { return drawn_; }

  [[nodiscard]] float fraction() override {
    const auto index = static_cast<std::size_t>(drawn_);
    if (index >= fractions_.size() && drawn_ >= draws_) throw EndOfScript();
    ++drawn_;
    return index < fractions_.size() ? fractions_[index] : forever_;
  }

 private:
  // The middle of the part of 0 to 1 that gives the result.
  void add(const Draw& draw) {
    fractions_.push_back(static_cast<float>((draw.result + 0.5) / static_cast<double>(draw.of)));
  }

  std::vector<float> fractions_;
  int drawn_ = 0;
  float forever_ = 0;
  int draws_ = 0;
};
