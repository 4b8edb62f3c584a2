#include "Listing.h"

#include <gtest/gtest.h>

#include <iterator>
#include <sstream>

#include "RDB_LoadText.h"
#include "Soundness.h"

RDB_Handle DatabaseOf(std::string_view text) {
  RDB_Handle db = RDB_Create();
  RDB_Reader reader(text.data(), text.size());
  RDB_ReadText(*db, reader, "some.asc");
  return db;
}

std::string Listing(const RDB_Database* db) {
  const char* const unsound = WhatIsUnsound(*db);
  EXPECT_EQ(unsound, nullptr) << unsound;
  std::string listing;
  for (const RDB_Node* node : NodesWithValue(*db)) {
    std::string path;
    for (const RDB_KeyPart& part : PathTo(*node)) {
      const std::string name = part.name;
      path += (path.empty() ? "" : "/") + (part.slot >= kRDBStar ? '<' + name + '>' : name);
    }
    listing += (listing.empty() ? "" : ", ") + path + "=" + node->value->Data();
  }
  return listing;
}

std::vector<std::string> Words(const std::string& text) {
  std::istringstream stream(text);
  return {std::istream_iterator<std::string>(stream), {}};
}
