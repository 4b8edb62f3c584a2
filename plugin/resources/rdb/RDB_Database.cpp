#include "RDB_Database.h"

#include <cstring>

#include "RDB_KeySplitter.h"

int rdbError = kRDBNoError;

namespace {

constexpr char kMarker[] = "-RVRDB-";
constexpr char kRootName[] = "RVRDB";

}  // namespace

RDB_Database::RDB_Database() : root(RDB_PartOfName(kRootName), kRootName, nullptr) {
  static_assert(sizeof kMarker == sizeof marker, "the marker fills its field");
  std::memcpy(marker, kMarker, sizeof marker);
}

bool RDB_IsDatabase(const RDB_Database* db) {
  const bool isOne = db != nullptr && std::memcmp(db->marker, kMarker, sizeof kMarker) == 0;
  if (!isOne) rdbError = kRDBBadHandle;
  return isOne;
}

bool RDB_Begin(const RDB_Database* db) {
  rdbError = kRDBNoError;
  return RDB_IsDatabase(db);
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
