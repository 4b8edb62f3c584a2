#include "RDB_Tokens.h"

#include "RDB_ByteClass.h"

namespace {

constexpr std::array<RDB_ByteClass, 256> kByteClasses = RDB_MakeByteClasses();

}  // namespace

bool RDB_Tokens::Read(Mode mode, std::string& token) {
  token.clear();
  if (!SkipToToken()) return false;
  bool isQuoted = false;
  for (;;) {
    AppendPlain(token, isQuoted);
    const int byte = GetCounted();
    if (byte == RDB_Reader::kNone) return true;
    if (byte == '"') {
      isQuoted = !isQuoted;
    } else if (byte == '\\') {
      AppendEscape(mode, token);
    } else if (isQuoted) {
      token += static_cast<char>(byte);
    } else if (IsEnd(byte)) {
      return true;
    } else if (byte == '#' || byte == ';') {
      SkipToEndOfToken();
      return true;
    } else if (byte == '+') {
      SkipSpace();
    } else if (byte != '/' || !SkipIfBlockComment()) {
      token += static_cast<char>(byte);
    }
  }
}

bool RDB_Tokens::ReadSeparator() {
  SkipSpace();
  const int byte = reader_.Get();
  return byte == ':' || byte == '=';
}

bool RDB_Tokens::SkipToToken() {
  for (;;) {
    SkipSpace();
    const int byte = reader_.Get();
    if (byte == RDB_Reader::kNone) return false;
    if (byte == '#' || byte == ';') {
      SkipLine();
    } else if (byte != '/' || !SkipIfBlockComment()) {
      reader_.PutBack();
      return true;
    }
  }
}

int RDB_Tokens::GetCounted() {
  const int byte = reader_.Get();
  if (byte == '\n') ++line_;
  return byte;
}

void RDB_Tokens::SkipLine() {
  int byte = GetCounted();
  while (byte != RDB_Reader::kNone && byte != '\n' && byte != '\r') byte = GetCounted();
}

void RDB_Tokens::SkipSpace() {
  while (RDB_IsSpace(reader_.Peek())) GetCounted();
}

// Behind a "/". True if that began a comment.
bool RDB_Tokens::SkipIfBlockComment() {
  if (reader_.Peek() != '*') return false;
  reader_.Get();
  SkipBlockComment();
  return true;
}

void RDB_Tokens::SkipBlockComment() {
  int before = 0;
  int byte = GetCounted();
  while (byte != RDB_Reader::kNone && !(before == '*' && byte == '/')) {
    before = byte;
    byte = GetCounted();
  }
}

// A comment inside a token ends where the token would: what stands behind that is the next token.
void RDB_Tokens::SkipToEndOfToken() {
  int byte = GetCounted();
  while (byte != RDB_Reader::kNone && !IsEnd(byte)) byte = GetCounted();
}

// Puts a separator back, and not white space.
bool RDB_Tokens::IsEnd(int byte) {
  const bool isSeparator = byte == ':' || byte == '=';
  if (isSeparator) reader_.PutBack();
  return isSeparator || RDB_IsSpace(byte);
}

void RDB_Tokens::AppendPlain(std::string& token, bool isQuoted) {
  const RDB_ByteClass lastPlain = isQuoted ? kRDBPlainInQuotes : kRDBPlain;
  const char* const begin = reader_.Next();
  const char* end = begin;
  while (end != reader_.End() && kByteClasses[static_cast<unsigned char>(*end)] <= lastPlain) ++end;
  token.append(begin, end);
  reader_.SkipTo(end);
}

void RDB_Tokens::AppendEscape(Mode mode, std::string& token) {
  const int byte = GetCounted();
  if (byte == RDB_Reader::kNone) return;
  if (mode == Mode::kKey) token += '\\';
  switch (byte) {
    case 'n':
      token += '\n';
      break;
    case 't':
      token += '\t';
      break;
    case 'r':
      token += '\r';
      break;
    default:
      token += RDB_IsOctal(byte) ? ReadOctal(byte) : static_cast<char>(byte);
  }
}

// All digits there are; of what they say the low byte counts.
char RDB_Tokens::ReadOctal(int digit) {
  unsigned value = static_cast<unsigned>(digit - '0');
  while (RDB_IsOctal(reader_.Peek())) value = value * 8 + static_cast<unsigned>(reader_.Get() - '0');
  return static_cast<char>(value & 0xFFu);
}
