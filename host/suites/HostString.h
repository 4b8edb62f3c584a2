// The string that stands behind a plug-in's string handle.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "Utf8.h"

namespace host {

// Always valid UTF-8.
class HostString {
 public:
  HostString() = default;
  explicit HostString(std::string_view bytes) { assign(bytes); }

  void assign(std::string_view bytes) {
    text_ = validUtf8(bytes);
    utf16Units_ = utf16Length(text_);
  }

  const std::string& text() const { return text_; }
  std::size_t utf16Units() const { return utf16Units_; }

 private:
  std::string text_;
  std::size_t utf16Units_ = 0;
};

}  // namespace host
