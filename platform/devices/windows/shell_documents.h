#pragma once

#include "platform/base/services.h"

namespace platform::inline devices {

// Opens a document with the program that the system has for its kind, from a thread of its own: a
// program that is slow to come up holds nobody up. Where the document or such a program is missing
// nothing happens.
class ShellDocuments final : public Documents {
 public:
  void open(const QString& path) override;
};

}  // namespace platform::inline devices
