// Arbitrary bytes as a text file.
#include <cstdint>
#include <string>
#include <vector>

#include "Expect.h"
#include "FuzzTarget.h"
#include "Properties.h"
#include "RDB_LoadText.h"
#include "RDB_PlainEntry.h"
#include "RDB_Tokens.h"
#include "Soundness.h"

namespace {

// Errors are told on standard error, which is none of the input's business here.
void Read(RDB_Database& db, const std::string& text) {
  RDB_Reader reader(text.data(), text.size());
  RDB_ReadText(db, reader, "input");
}

std::vector<std::string> Texts(const RDB_Database& db) {
  std::vector<std::string> texts;
  for (const RDB_Node* node : NodesWithValue(db)) texts.emplace_back(node->value->Data());
  return texts;
}

// The short way of reading an entry and the long one.
void ExpectSameEntry(const std::string& text) {
  RDB_PlainEntry plain;
  if (!plain.Read(text.data(), text.data() + text.size())) return;
  RDB_Reader reader(text.data(), text.size());
  RDB_Tokens tokens(reader);
  std::string key, value;
  Expect(tokens.Read(RDB_Tokens::Mode::kKey, key) && key == plain.key, "both ways give the same key");
  Expect(tokens.ReadSeparator(), "both ways see the separator");
  Expect(tokens.Read(RDB_Tokens::Mode::kValue, value) && value == plain.value,
         "both ways give the same value");
  Expect(reader.Next() == plain.end, "both ways end at the same place");
  const RDB_Key parts = RDB_ParseKey(key.c_str());
  Expect(!plain.isName || (parts[0].name == key && parts[0].slot < kRDBStar && parts[1].name == nullptr),
         "a key that is a name is one component");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  ExpectSameEntry(text);
  const RDB_Handle db = RDB_Create();
  Read(*db, text);
  const std::vector<std::string> texts = Texts(*db);
  ExpectProperties(*db);
  Read(*db, text);
  Expect(Texts(*db) == texts, "reading a file again changes nothing");
  return 0;
}
