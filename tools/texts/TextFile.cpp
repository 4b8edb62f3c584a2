#include "TextFile.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "KeyForm.h"
#include "RDB.h"
#include "RDB_Reader.h"
#include "RDB_Tokens.h"

namespace texts {
namespace {

namespace fs = std::filesystem;

std::string Content(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// The texts are those that the database has, the keys those that it was given.
std::vector<TextEntry> Entries(const std::string& content, const RDB_Database* database) {
  std::vector<TextEntry> entries;
  RDB_Reader reader(content.data(), content.size());
  RDB_Tokens tokens(reader);
  std::string key;
  std::string value;
  while (tokens.Read(RDB_Tokens::Mode::kKey, key)) {
    const auto line = static_cast<std::size_t>(1 + std::count(content.data(), reader.Next(), '\n'));
    if (!tokens.ReadSeparator() || !tokens.Read(RDB_Tokens::Mode::kValue, value)) break;
    const RDB_Text text = RDB_GetString(database, key.c_str());
    entries.push_back({CanonicalKey(key), text ? text.get() : "", line});
  }
  return entries;
}

}  // namespace

TextFile ReadTextFile(const fs::path& folder, const std::string& name) {
  TextFile file;
  file.name = name;
  if (!fs::is_regular_file(folder / name)) {
    file.fault = "cannot be read";
    return file;
  }
  const RDB_Handle database = RDB_Create();
  RDB_LoadText(database.get(), (folder / name).c_str());
  if (rdbError != kRDBNoError) file.fault = "has a syntax error";
  file.entries = Entries(Content(folder / name), database.get());
  return file;
}

}  // namespace texts
