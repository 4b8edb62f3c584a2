#include "SvgEncoding.h"

#include <iconv.h>

#include <algorithm>

#include "Utf8Characters.h"

namespace host {
namespace {

std::string upperCase(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return upper;
}

// The converter's name of an encoding that files may name; empty for others.
std::string converterName(std::string_view name) {
  std::string upper = upperCase(name);
  const auto startsWith = [&upper](std::string_view prefix) {
    return upper.compare(0, prefix.size(), prefix) == 0;
  };
  const auto digitsFrom = [&upper](std::size_t from) {
    return upper.size() > from && upper.find_first_not_of("0123456789", from) == std::string::npos;
  };
  if (upper == "US-ASCII" || upper == "ASCII") return "US-ASCII";
  if (startsWith("ISO-8859-") && digitsFrom(9)) return upper;
  if (startsWith("ISO8859-") && digitsFrom(8)) return "ISO-8859-" + upper.substr(8);
  if (startsWith("WINDOWS-125") && digitsFrom(8)) return "CP" + upper.substr(8);
  if (startsWith("CP125") && digitsFrom(2)) return upper;
  return {};
}

class Converter {
 public:
  explicit Converter(const char* from) : handle_(iconv_open("UTF-32LE", from)) {}
  ~Converter() {
    if (isOpen()) iconv_close(handle_);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  bool isOpen() const { return reinterpret_cast<std::intptr_t>(handle_) != -1; }
  std::int32_t character(unsigned char byte) const {
    char in = static_cast<char>(byte);
    unsigned char out[4] = {};
    char* inAt = &in;
    char* outAt = reinterpret_cast<char*>(out);
    std::size_t inLeft = 1;
    std::size_t outLeft = sizeof out;
    iconv(handle_, nullptr, nullptr, nullptr, nullptr);
    const std::size_t result = iconv(handle_, &inAt, &inLeft, &outAt, &outLeft);
    if (result == static_cast<std::size_t>(-1) || outLeft != 0) return SvgEncoding::kNone;
    return out[0] | (out[1] << 8) | (out[2] << 16);
  }

 private:
  iconv_t handle_;
};

}  // namespace

SvgEncoding SvgEncoding::utf16(bool bigEndian) {
  SvgEncoding encoding;
  encoding.kind_ = bigEndian ? Kind::Utf16Big : Kind::Utf16Little;
  return encoding;
}

std::optional<SvgEncoding> SvgEncoding::singleByte(std::string_view name) {
  const std::string known = converterName(name);
  if (known.empty()) return std::nullopt;
  const Converter converter(known.c_str());
  if (!converter.isOpen()) return std::nullopt;
  SvgEncoding encoding;
  encoding.kind_ = Kind::SingleByte;
  for (std::size_t byte = 0; byte < 256; ++byte) {
    encoding.table_[byte] = converter.character(static_cast<unsigned char>(byte));
  }
  return encoding;
}

std::optional<SvgEncoding> SvgEncoding::utf16From(std::string_view bytes) {
  using namespace std::string_view_literals;
  const auto starts = bytes.substr(0, 2);
  if (starts == "\xFE\xFF"sv || starts == "\0<"sv) return utf16(true);
  if (starts == "\xFF\xFE"sv || starts == "<\0"sv) return utf16(false);
  return std::nullopt;
}

char16_t SvgEncoding::wideUnitAt(std::string_view bytes, std::size_t offset) const {
  if (offset + 1 >= bytes.size()) return u'\0';
  const auto first = static_cast<unsigned char>(bytes[offset]);
  const auto second = static_cast<unsigned char>(bytes[offset + 1]);
  const int unit = kind_ == Kind::Utf16Big ? (first << 8) | second : (second << 8) | first;
  return static_cast<char16_t>(unit);
}

std::string SvgEncoding::toUtf8(std::string_view bytes) const {
  if (kind_ == Kind::Utf8) return std::string(bytes);
  std::string text;
  text.reserve(bytes.size());
  for (std::size_t at = 0; at < bytes.size(); at += unitSize()) {
    const char16_t unit = unitAt(bytes, at);
    if (kind_ == Kind::SingleByte) {
      const std::int32_t character = table_[unit];
      appendUtf8(text, character < 0 ? kReplacementCharacter : static_cast<char32_t>(character));
      continue;
    }
    const char16_t low = unitAt(bytes, at + 2);
    if ((unit & 0xFC00) == 0xD800 && (low & 0xFC00) == 0xDC00) {
      appendUtf8(text, 0x10000 + ((unit & 0x3FFU) << 10) + (low & 0x3FFU));
      at += 2;
    } else {
      appendUtf8(text, unit);
    }
  }
  return text;
}

std::string SvgEncoding::fromUtf8(std::string_view text) const {
  if (kind_ == Kind::Utf8) return std::string(text);
  std::string bytes;
  bytes.reserve(text.size() * unitSize());
  while (!text.empty()) {
    const char32_t character = takeUtf8(text);
    if (kind_ == Kind::SingleByte) {
      appendSingle(bytes, character);
    } else {
      appendWide(bytes, character);
    }
  }
  return bytes;
}

void SvgEncoding::appendWide(std::string& bytes, char32_t character) const {
  const auto put = [&](char32_t unit) {
    const char high = static_cast<char>(unit >> 8);
    const char low = static_cast<char>(unit & 0xFF);
    bytes.push_back(kind_ == Kind::Utf16Big ? high : low);
    bytes.push_back(kind_ == Kind::Utf16Big ? low : high);
  };
  if (character < 0x10000) {
    put(character);
    return;
  }
  put(0xD800 + ((character - 0x10000) >> 10));
  put(0xDC00 + ((character - 0x10000) & 0x3FF));
}

void SvgEncoding::appendSingle(std::string& bytes, char32_t character) const {
  const auto wanted = static_cast<std::int32_t>(character);
  if (character < 0x80 && table_[character] == wanted) {
    bytes.push_back(static_cast<char>(character));
    return;
  }
  const auto found = std::find(table_.begin(), table_.end(), wanted);
  if (found != table_.end()) {
    bytes.push_back(static_cast<char>(found - table_.begin()));
  } else {
    bytes += "&#" + std::to_string(character) + ";";
  }
}

}  // namespace host
