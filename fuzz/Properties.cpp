#include "Properties.h"

#include <cstring>

#include "Expect.h"
#include "RDB_Lookup.h"
#include "Soundness.h"

namespace {

void ExpectSound(const RDB_Database& db) {
  const char* const unsound = WhatIsUnsound(db);
  Expect(unsound == nullptr, unsound);
}

// Only where no two nodes of a bucket have one name: the second of them is never found.
void ExpectAnswers(const RDB_Database& db) {
  for (const RDB_Node* node : NodesWithValue(db)) {
    const std::vector<RDB_KeyPart> path = PathTo(*node);
    Expect(RDB_Lookup(db.root, path.data(), path.size()) == node,
           "a stored key is answered by its own value");
  }
}

void ExpectInversion(const RDB_Database& db) {
  const RDB_Handle inverted = RDB_Invert(&db);
  Expect(rdbError == kRDBNoError, "inverting gives no error");
  ExpectSound(*inverted);
  ExpectAnswers(*inverted);
  Expect(NodesWithValue(*inverted).size() <= NodesWithValue(db).size(), "one entry for a text at most");
}

}  // namespace

void ExpectProperties(const RDB_Database& db) {
  ExpectSound(db);
  const RDB_Handle copy = RDB_Create();
  RDB_Merge(copy.get(), &db);
  ExpectSound(*copy);
  ExpectAnswers(*copy);
  const std::size_t values = NodesWithValue(*copy).size();
  Expect(values <= NodesWithValue(db).size(), "merging adds nothing");
  RDB_Merge(copy.get(), &db);
  ExpectSound(*copy);
  Expect(NodesWithValue(*copy).size() == values, "merging again changes nothing");
  ExpectInversion(*copy);
  ExpectInversion(db);
}
