#include "RDB_Database.h"

#include <cstring>

#include "RDB_KeySplitter.h"

int rdbError = kRDBNoError;

namespace {

constexpr char kRootName[] = "RVRDB";

}  // namespace

RDB_Database::RDB_Database() : root(RDB_PartOfName(kRootName), kRootName, nullptr) {
  static_assert(sizeof kRDBMarker == sizeof marker, "the marker fills its field");
  std::memcpy(marker, kRDBMarker, sizeof marker);
}

RDB_Handle RDB_Create() {
  rdbError = kRDBNoError;
  RDB_Handle db;
  RDB_CatchOutOfMemory([&db] { db.reset(std::make_unique<RDB_Database>().release()); });
  return db;
}

void RDB_Destroy(RDB_Database* db) {
  const std::unique_ptr<RDB_Database> owned(RDB_IsDatabase(db) ? db : nullptr);
}
