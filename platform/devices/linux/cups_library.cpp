#include "platform/devices/linux/cups_library.h"

#include "platform/devices/linux/shared_library.h"

namespace platform::inline devices {

std::optional<CupsLibrary> CupsLibrary::load(const char* file) {
  const SharedLibrary library(file);
  CupsLibrary cups;
  const bool complete = library.find("cupsSetPasswordCB2", cups.setPasswordCB2) &&
                        library.find("cupsEnumDests", cups.enumDests) &&
                        library.find("cupsGetNamedDest", cups.getNamedDest) &&
                        library.find("cupsFreeDests", cups.freeDests) &&
                        library.find("cupsCopyDestInfo", cups.copyDestInfo) &&
                        library.find("cupsFreeDestInfo", cups.freeDestInfo) &&
                        library.find("cupsGetDestMediaCount", cups.getDestMediaCount) &&
                        library.find("cupsGetDestMediaByIndex", cups.getDestMediaByIndex) &&
                        library.find("cupsGetDestMediaByName", cups.getDestMediaByName) &&
                        library.find("cupsGetDestMediaDefault", cups.getDestMediaDefault) &&
                        library.find("cupsFindDestSupported", cups.findDestSupported) &&
                        library.find("cupsFindDestDefault", cups.findDestDefault) &&
                        library.find("pwgMediaForPPD", cups.mediaForPPD) &&
                        library.find("ippContainsString", cups.containsString) &&
                        library.find("ippGetInteger", cups.getInteger) &&
                        library.find("ippGetString", cups.getString) &&
                        library.find("cupsGetOption", cups.getOption) &&
                        library.find("cupsAddOption", cups.addOption) &&
                        library.find("cupsFreeOptions", cups.freeOptions) &&
                        library.find("cupsCreateDestJob", cups.createDestJob) &&
                        library.find("cupsStartDestDocument", cups.startDestDocument) &&
                        library.find("cupsWriteRequestData", cups.writeRequestData) &&
                        library.find("cupsFinishDestDocument", cups.finishDestDocument) &&
                        library.find("cupsCancelDestJob", cups.cancelDestJob);
  return complete ? std::optional(cups) : std::nullopt;
}

}  // namespace platform::inline devices
