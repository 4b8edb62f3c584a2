// An environment variable for the length of a test.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace host {

// Sets a variable, or unsets it for a null value, and puts back what was before.
class Variable {
 public:
  Variable(const char* name, const char* value) : name_(name) {
    if (const char* former = std::getenv(name)) former_ = former;
    set(value);
  }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;
  ~Variable() { set(former_ ? former_->c_str() : nullptr); }

 private:
  void set(const char* value) const {
    if (value != nullptr) {
      setenv(name_, value, 1);
    } else {
      unsetenv(name_);
    }
  }

  const char* name_;
  std::optional<std::string> former_;
};

}  // namespace host
