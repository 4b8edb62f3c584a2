// What the plug-in's own wrappers throw.
#pragma once

#include <string>
#include <utility>

namespace Vandrell::AIPluginWrappers::Exceptions {

class Exception {
 public:
  explicit Exception(std::string text) : message(std::move(text)) {}
  Exception(const Exception&) = default;
  Exception& operator=(const Exception&) = default;
  virtual ~Exception() = default;

  virtual const std::string& GetMessage() const { return message; }

 private:
  std::string message;
};

// A value outside what there is; the normal end of a walk over the artboards.
class ParameterError : public Exception {
 public:
  ParameterError() : Exception("Parameter Error") {}
};

}  // namespace Vandrell::AIPluginWrappers::Exceptions
