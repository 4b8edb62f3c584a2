// The character encoding of a file: which bytes stand for which characters.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace host {

class SvgEncoding {
 public:
  static constexpr std::int32_t kNone = -1;
  using Table = std::array<std::int32_t, 256>;  // byte to character; kNone where there is none

  SvgEncoding() = default;  // UTF-8
  static SvgEncoding utf16(bool bigEndian);
  // US-ASCII, ISO-8859-x and windows-125x (also as cp125x), in either case; nullopt for other names.
  static std::optional<SvgEncoding> singleByte(std::string_view name);
  // UTF-16 if the bytes begin with its byte order mark, or with a "<" of two bytes.
  static std::optional<SvgEncoding> utf16From(std::string_view bytes);

  const Table& table() const { return table_; }  // of a single-byte encoding
  std::size_t unitSize() const { return kind_ == Kind::Utf16Big || kind_ == Kind::Utf16Little ? 2 : 1; }
  // The code unit at `offset`; 0 behind the end.
  char16_t unitAt(std::string_view bytes, std::size_t offset) const {
    if (unitSize() == 1) return offset < bytes.size() ? static_cast<unsigned char>(bytes[offset]) : u'\0';
    return wideUnitAt(bytes, offset);
  }

  std::string toUtf8(std::string_view bytes) const;
  // What the encoding lacks becomes a character reference such as "&#8364;".
  std::string fromUtf8(std::string_view text) const;

 private:
  enum class Kind : std::uint8_t { Utf8, Utf16Big, Utf16Little, SingleByte };

  char16_t wideUnitAt(std::string_view bytes, std::size_t offset) const;
  void appendWide(std::string& bytes, char32_t character) const;
  void appendSingle(std::string& bytes, char32_t character) const;

  Kind kind_ = Kind::Utf8;
  Table table_{};
};

}  // namespace host
