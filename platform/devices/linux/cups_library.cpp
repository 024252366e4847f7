#include "platform/devices/linux/cups_library.h"

#include <dlfcn.h>

namespace platform {

namespace {

template <typename Function>
bool find(void* library, const char* name, Function& function) {
  function = reinterpret_cast<Function>(::dlsym(library, name));
  return function != nullptr;
}

}  // namespace

std::optional<CupsLibrary> CupsLibrary::load(const char* file) {
  void* library = ::dlopen(file, RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
  CupsLibrary cups;
  const bool complete = library != nullptr &&
                        find(library, "cupsSetPasswordCB2", cups.setPasswordCB2) &&
                        find(library, "cupsEnumDests", cups.enumDests) &&
                        find(library, "cupsGetNamedDest", cups.getNamedDest) &&
                        find(library, "cupsFreeDests", cups.freeDests) &&
                        find(library, "cupsCopyDestInfo", cups.copyDestInfo) &&
                        find(library, "cupsFreeDestInfo", cups.freeDestInfo) &&
                        find(library, "cupsGetDestMediaCount", cups.getDestMediaCount) &&
                        find(library, "cupsGetDestMediaByIndex", cups.getDestMediaByIndex) &&
                        find(library, "cupsGetDestMediaByName", cups.getDestMediaByName) &&
                        find(library, "cupsGetDestMediaDefault", cups.getDestMediaDefault) &&
                        find(library, "cupsFindDestSupported", cups.findDestSupported) &&
                        find(library, "cupsFindDestDefault", cups.findDestDefault) &&
                        find(library, "pwgMediaForPPD", cups.mediaForPPD) &&
                        find(library, "ippContainsString", cups.containsString) &&
                        find(library, "ippGetInteger", cups.getInteger) &&
                        find(library, "ippGetString", cups.getString) &&
                        find(library, "cupsGetOption", cups.getOption) &&
                        find(library, "cupsAddOption", cups.addOption) &&
                        find(library, "cupsFreeOptions", cups.freeOptions) &&
                        find(library, "cupsCreateDestJob", cups.createDestJob) &&
                        find(library, "cupsStartDestDocument", cups.startDestDocument) &&
                        find(library, "cupsWriteRequestData", cups.writeRequestData) &&
                        find(library, "cupsFinishDestDocument", cups.finishDestDocument) &&
                        find(library, "cupsCancelDestJob", cups.cancelDestJob);
  return complete ? std::optional(cups) : std::nullopt;
}

}  // namespace platform
