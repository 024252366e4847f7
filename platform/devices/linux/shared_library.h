#pragma once

#include <dlfcn.h>

namespace platform::inline devices {

// A library that is loaded when it is first needed, and stays to the end of the process.
class SharedLibrary {
 public:
  // file: as the dynamic loader finds it; it may be missing.
  explicit SharedLibrary(const char* file)
      : handle_(::dlopen(file, RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE)) {}

  // Whether the library has a function of that name, which is then `function`.
  template <typename Function>
  [[nodiscard]] bool find(const char* name, Function& function) const {
    if (handle_ == nullptr) return false;
    function = reinterpret_cast<Function>(::dlsym(handle_, name));
    return function != nullptr;
  }

 private:
  void* handle_;
};

}  // namespace platform::inline devices
