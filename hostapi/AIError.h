// What the host's text, path and artboard classes throw when a suite call fails.
#pragma once

#include <exception>

#include "AITypes.h"

namespace ai {

class Error : public std::exception {
 public:
  explicit Error(AIErr resultCode) noexcept : code(resultCode) {}
  const char* what() const noexcept override { return "AI Exception"; }

  AIErr code;  // what the failing call returned
};

inline void ThrowOnError(AIErr resultCode) {
  if (resultCode != kNoErr) throw Error(resultCode);
}

}  // namespace ai
