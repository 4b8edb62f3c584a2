#include "RDB_LoadText.h"

#include <charconv>
#include <cstdio>
#include <cstring>

#include "RDB_KeySplitter.h"
#include "RDB_PlainEntry.h"
#include "RDB_Put.h"
#include "RDB_Tokens.h"

namespace {

constexpr std::size_t kFirstTokenSize = 1024;

// Reads entries into a database until one fails.
class TextLoad {
 public:
  TextLoad(RDB_Database& db, RDB_Reader& reader) : db_(db), reader_(reader), tokens_(reader) {}

  void Run() {
    try {
      key_.reserve(kFirstTokenSize);
      value_.reserve(kFirstTokenSize);
      while (ReadEntry()) {
      }
    } catch (const std::bad_alloc&) {
      Fail(kRDBOutOfMemory, "Out of Memory Error");
    }
  }

  const char* Message() const { return message_; }

 private:
  bool ReadEntry() {
    RDB_PlainEntry plain;
    if (plain.Read(reader_.Next(), reader_.End())) {
      Store(plain);
      reader_.SkipTo(plain.end);
      return true;
    }
    if (!ReadToken(RDB_Tokens::Mode::kKey, key_)) return false;
    if (!tokens_.ReadSeparator()) return Fail(kRDBBadFile, "No ':' separator");
    if (!ReadToken(RDB_Tokens::Mode::kValue, value_)) return false;
    // Both are C strings from here on: a NUL written as an escape ends them.
    RDB_MakeNode(db_, key_.data(), std::strlen(key_.c_str())).value = RDB_ValueRef(value_.c_str());
    return true;
  }

  void Store(const RDB_PlainEntry& entry) {
    RDB_Node* node = nullptr;
    if (entry.isName) {
      node = &db_.root.FindOrMakeChild(RDB_PartOfName(entry.key));
    } else {
      key_ = entry.key;
      node = &RDB_MakeNode(db_, key_.data(), key_.size());
    }
    node->value = RDB_ValueRef(entry.value);
  }

  bool ReadToken(RDB_Tokens::Mode mode, std::string& token) {
    if (tokens_.Read(mode, token)) return true;
    if (reader_.HasFailed()) Fail(kRDBBadFile, "Premature END-OF-FILE");
    return false;
  }

  bool Fail(RDB_Error code, const char* message) {
    rdbError = code;
    message_ = message;
    return false;
  }

  RDB_Database& db_;
  RDB_Reader& reader_;
  RDB_Tokens tokens_;
  std::string key_;
  std::string value_;
  const char* message_ = "Syntax error";
};

// Piece by piece, for there may be no memory left to put it together.
void Report(const char* message, const char* path, unsigned long line) {
  char digits[24];
  char* const end = std::to_chars(digits, digits + sizeof digits - 1, line).ptr;
  *end = '\0';
  const char* const pieces[] = {message, " detected in file ", path, " at line ", digits, ".\n"};
  for (const char* piece : pieces) std::fputs(piece, stderr);
}

}  // namespace

void RDB_ReadText(RDB_Database& db, RDB_Reader& reader, const char* path) {
  rdbError = kRDBNoError;
  TextLoad load(db, reader);
  load.Run();
  if (!reader.IsAtEnd() && rdbError != kRDBNoError) Report(load.Message(), path, reader.CountLines());
}

void RDB_LoadText(RDB_Database* db, const char* path) {
  if (!RDB_Begin(db)) return;
  RDB_File file(path);
  if (!file.IsOpen()) {
    rdbError = kRDBBadFile;
    return;
  }
  RDB_CatchOutOfMemory([&] {
    RDB_Reader reader(file);
    RDB_ReadText(*db, reader, path);
  });
}
