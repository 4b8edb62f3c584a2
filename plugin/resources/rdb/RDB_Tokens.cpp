#include "RDB_Tokens.h"

#include "RDB_Bytes.h"
#include "RDB_Words.h"

namespace {

constexpr std::array<bool, 256> kIsPlain = RDB_MakePlainBytes();

const char* EndOfPlain(const char* begin, const char* end) {
  while (begin != end && kIsPlain[static_cast<unsigned char>(*begin)]) ++begin;
  return begin;
}

}  // namespace

bool RDB_Tokens::Read(Mode mode, std::string& token) {
  token.clear();
  if (!SkipToToken()) return false;
  bool isQuoted = false;
  for (;;) {
    AppendPlain(token, isQuoted);
    const int byte = reader_.Get();
    if (byte == RDB_Reader::kNone) return true;
    if (byte == '"') {
      isQuoted = !isQuoted;
    } else if (byte == '\\') {
      AppendEscape(mode, token);
    } else if (!isQuoted && IsEnd(byte)) {
      return true;
    } else if (!isQuoted && (byte == '#' || byte == ';')) {
      SkipToEndOfToken();
      return true;
    } else if (!isQuoted && byte == '+') {
      SkipSpace();
    } else if (isQuoted || byte != '/' || !SkipIfBlockComment()) {
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

void RDB_Tokens::SkipLine() {
  int byte = reader_.Get();
  while (byte != RDB_Reader::kNone && byte != '\n' && byte != '\r') byte = reader_.Get();
}

void RDB_Tokens::SkipSpace() {
  while (RDB_IsSpace(reader_.Peek())) reader_.Get();
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
  int byte = reader_.Get();
  while (byte != RDB_Reader::kNone && !(before == '*' && byte == '/')) {
    before = byte;
    byte = reader_.Get();
  }
}

// A comment inside a token ends where the token would: what stands behind that is the next token.
void RDB_Tokens::SkipToEndOfToken() {
  int byte = reader_.Get();
  while (byte != RDB_Reader::kNone && !IsEnd(byte)) byte = reader_.Get();
}

// Puts a separator back, and not white space.
bool RDB_Tokens::IsEnd(int byte) {
  const bool isSeparator = byte == ':' || byte == '=';
  if (isSeparator) reader_.PutBack();
  return isSeparator || RDB_IsSpace(byte);
}

void RDB_Tokens::AppendPlain(std::string& token, bool isQuoted) {
  const char* const begin = reader_.Next();
  const char* const end =
      isQuoted ? RDB_FindByte<'"', '\\'>(begin, reader_.End()) : EndOfPlain(begin, reader_.End());
  token.append(begin, static_cast<std::size_t>(end - begin));
  reader_.SkipTo(end);
}

void RDB_Tokens::AppendEscape(Mode mode, std::string& token) {
  const int byte = reader_.Get();
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
