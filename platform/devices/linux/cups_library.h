#pragma once

#include <cups/cups.h>

#include <optional>

namespace platform::inline devices {

// What the program uses of CUPS' client library, found when a printer is first asked for, so that
// no start loads it. Once loaded it stays, since threads of ours may be waiting in it.
struct CupsLibrary {
  // file: the shared library as the dynamic loader finds it. Nothing where it, or a function of it,
  // is missing.
  [[nodiscard]] static std::optional<CupsLibrary> load(const char* file = "libcups.so.2");

  decltype(&cupsSetPasswordCB2) setPasswordCB2 = nullptr;
  decltype(&cupsEnumDests) enumDests = nullptr;
  decltype(&cupsGetNamedDest) getNamedDest = nullptr;
  decltype(&cupsFreeDests) freeDests = nullptr;
  decltype(&cupsCopyDestInfo) copyDestInfo = nullptr;
  decltype(&cupsFreeDestInfo) freeDestInfo = nullptr;
  decltype(&cupsGetDestMediaCount) getDestMediaCount = nullptr;
  decltype(&cupsGetDestMediaByIndex) getDestMediaByIndex = nullptr;
  decltype(&cupsGetDestMediaByName) getDestMediaByName = nullptr;
  decltype(&cupsGetDestMediaDefault) getDestMediaDefault = nullptr;
  decltype(&cupsFindDestSupported) findDestSupported = nullptr;
  decltype(&cupsFindDestDefault) findDestDefault = nullptr;
  decltype(&pwgMediaForPPD) mediaForPPD = nullptr;
  decltype(&ippContainsString) containsString = nullptr;
  decltype(&ippGetInteger) getInteger = nullptr;
  decltype(&ippGetString) getString = nullptr;
  decltype(&cupsGetOption) getOption = nullptr;
  decltype(&cupsAddOption) addOption = nullptr;
  decltype(&cupsFreeOptions) freeOptions = nullptr;
  decltype(&cupsCreateDestJob) createDestJob = nullptr;
  decltype(&cupsStartDestDocument) startDestDocument = nullptr;
  decltype(&cupsWriteRequestData) writeRequestData = nullptr;
  decltype(&cupsFinishDestDocument) finishDestDocument = nullptr;
  decltype(&cupsCancelDestJob) cancelDestJob = nullptr;
};

}  // namespace platform::inline devices
