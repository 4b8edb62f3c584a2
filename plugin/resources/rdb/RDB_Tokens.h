// The keys and values of a text file, token by token.
#pragma once

#include <string>

#include "RDB_Reader.h"

// A token ends at white space, ":" or "=". In front of it may stand comments: /* so */, and from "#" or ";"
// to the end of the line.
class RDB_Tokens {
 public:
  // In a key the backslash of an escape is kept, for the one who takes the key apart.
  enum class Mode { kKey, kValue };

  // `reader` is not owned.
  explicit RDB_Tokens(RDB_Reader& reader) : reader_(reader) {}

  // Replaces `token`. False if there is none, be it for the end or for a read error. Throws std::bad_alloc.
  bool Read(Mode mode, std::string& token);
  // Takes white space and the ":" or "=" behind it; false if something else stands there.
  bool ReadSeparator();

 private:
  bool SkipToToken();
  void SkipLine();
  void SkipSpace();
  void SkipBlockComment();
  bool SkipIfBlockComment();
  void SkipToEndOfToken();
  void AppendPlain(std::string& token, bool isQuoted);
  bool IsEnd(int byte);
  void AppendEscape(Mode mode, std::string& token);
  char ReadOctal(int digit);

  RDB_Reader& reader_;
};
