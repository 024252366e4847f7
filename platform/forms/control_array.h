#pragma once

#include <functional>
#include <map>
#include <memory>

#include "platform/forms/control.h"

namespace platform::inline forms {

// Makes a hidden control at run time as a copy of another as that stands now: place, look, words.
// Called by control arrays only.
void buildCopy(Control& copy, const Control& original, int index);
// Takes a control that is to be destroyed off its form's list. Called by control arrays only.
void takeOff(Control& control);

// Controls under one name with an index, as `PulsanteNumero(3)`. Elements come from the design rows
// or are made at run time.
template <class T>
class ControlArray {
 public:
  explicit ControlArray(ControlHost& host) : host_(host) {}

  // An element that exists; asking for another is a mistake in the program.
  [[nodiscard]] T& operator[](int index) { return *elements_.at(index); }
  [[nodiscard]] const T& operator[](int index) const { return *elements_.at(index); }
  [[nodiscard]] bool contains(int index) const { return elements_.contains(index); }
  [[nodiscard]] int count() const { return static_cast<int>(elements_.size()); }

  // Element `index`, which is made first where it is missing: for the design rows.
  [[nodiscard]] T& element(int index) {
    std::unique_ptr<T>& place = elements_[index];
    if (!place) place = std::make_unique<T>(host_);
    return *place;
  }

  // Makes an element at run time as a hidden copy of element 0. One that exists stays as it is.
  T& load(int index) {
    if (contains(index)) return (*this)[index];
    T& copy = element(index);
    buildCopy(copy, (*this)[0], index);
    return copy;
  }

  // Destroys an element that was made at run time; without it nothing happens.
  void unload(int index) {
    if (!contains(index)) return;
    takeOff((*this)[index]);
    elements_.erase(index);
  }

  // In the order of the indices.
  void forEach(const std::function<void(T&)>& action) {
    for (auto& [index, control] : elements_) action(*control);
  }

 private:
  ControlHost& host_;
  std::map<int, std::unique_ptr<T>> elements_;
};

}  // namespace platform::inline forms
