#include "FailureSentence.h"

#include <exception>

#include "Utf8.h"

namespace host {
namespace {

std::string reasonOf() {
  try {
    throw;
  } catch (const std::exception& failure) {
    return validUtf8(failure.what());
  } catch (...) {
    return {};
  }
}

}  // namespace

std::string failureSentence() {
  std::string reason = reasonOf();
  while (!reason.empty() && reason.back() == '.') reason.pop_back();
  return reason.empty() ? "A plug-in failed." : "A plug-in failed: " + reason + ".";
}

}  // namespace host
