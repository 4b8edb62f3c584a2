// Reading the text form.
#pragma once

#include "RDB_Database.h"
#include "RDB_Reader.h"

// RDB_LoadText with the file open; `path` is for the message only. Leaves its code in rdbError.
void RDB_ReadText(RDB_Database& db, RDB_Reader& reader, const char* path);
