// Reading the compiled form.
#pragma once

#include "RDB.h"
#include "RDB_Reader.h"

// RDB_LoadCompiled with the file open. Leaves its code in rdbError.
RDB_Handle RDB_ReadCompiled(RDB_Reader& reader);
