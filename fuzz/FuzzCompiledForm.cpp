// Arbitrary bytes as a compiled file.
#include <cstdint>

#include "Expect.h"
#include "FuzzTarget.h"
#include "Properties.h"
#include "RDB_LoadCompiled.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  RDB_Reader reader(reinterpret_cast<const char*>(data), size);
  const RDB_Handle db = RDB_ReadCompiled(reader);
  const int error = rdbError;
  Expect(db || error != kRDBNoError, "no database without an error");
  Expect(error == kRDBNoError || error >= kRDBBadFile, "the error is one of a file");
  if (db) ExpectProperties(*db);
  return 0;
}
