#include "Listing.h"

#include <gtest/gtest.h>

#include "Soundness.h"

namespace {

void Append(const RDB_KeyPart& part, std::string& path) {
  if (!path.empty()) path += '/';
  path += part.slot >= kRDBStar ? "<" + std::string(part.name) + ">" : std::string(part.name);
}

}  // namespace

std::string Listing(const RDB_Database* db) {
  const char* const unsound = WhatIsUnsound(*db);
  EXPECT_EQ(unsound, nullptr) << unsound;
  std::string listing;
  for (const RDB_Node* node : NodesWithValue(*db)) {
    std::string path;
    for (const RDB_KeyPart& part : PathTo(*node)) Append(part, path);
    listing += (listing.empty() ? "" : ", ") + path + "=" + node->value->Data();
  }
  return listing;
}

std::string PartsListing(const char* key) {
  const RDB_Key parts = RDB_ParseKey(key);
  std::string listing;
  for (const RDB_KeyPart* part = parts.get(); part->name != nullptr; ++part) {
    listing += part == parts.get() ? "" : "/";
    listing +=
        part->slot >= kRDBStar ? "<" + std::string(part->name) + ">" : "'" + std::string(part->name) + "'";
  }
  return listing;
}
