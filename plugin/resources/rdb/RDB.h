// Texts by key: a tree of key components, filled from text files, in which both wildcards may stand.
//
// A key is a path of components separated by dots, "Date.Months.Long.1". A backslash takes the next byte as
// it is. A stored component "*" matches any one component; a stored "." (spelled ".." at the start or end of
// a key, "..." between two components) matches any run of them, an empty one only in front of a component.
// Bytes are not interpreted; by convention they are UTF-8. All on one thread.
#pragma once

#include <cstddef>
#include <memory>
#include <new>

struct RDB_Database;

enum RDB_Error : int {
  kRDBNoError = 0,
  kRDBOutOfMemory = 1,
  kRDBBadHandle = 2,
  kRDBBadKey = 3,       // a null key, or no memory for one with an empty component
  kRDBBadFile = 4,      // not opened, not read, cut short, or a syntax error
  kRDBBadHead = 5,      // compiled file: wrong head or damaged type table
  kRDBBadVersion = 6,   // compiled file
  kRDBBadTypeIndex = 7  // compiled file
};

// What became of the last operation. Every one resets it at its start, but for RDB_Destroy, which leaves it
// as it was unless the handle is bad.
extern int rdbError;

void RDB_Destroy(RDB_Database* db);

struct RDB_Destroyer {
  void operator()(RDB_Database* db) const { RDB_Destroy(db); }
};
struct RDB_Freer {
  void operator()(void* memory) const { ::operator delete(memory); }
};
using RDB_Handle = std::unique_ptr<RDB_Database, RDB_Destroyer>;
using RDB_Text = std::unique_ptr<char[], RDB_Freer>;

// Types of values are indices into a table of names that lives as long as the process.
constexpr unsigned kRDBNoType = 0;
constexpr unsigned kRDBString = 1;  // data is the text with its NUL

// One component of a key. `slot` is its bucket: 0 to 255 by hash, kRDBStar or kRDBDots for the wildcards.
struct RDB_KeyPart {
  unsigned slot;
  unsigned hash;       // of the name, also of a wildcard's
  std::size_t length;  // of the name, in bytes
  const char* name;    // unescaped; null in the part that closes the list
};
constexpr unsigned kRDBStar = 256;
constexpr unsigned kRDBDots = 257;
using RDB_Key = std::unique_ptr<RDB_KeyPart[], RDB_Freer>;  // its names lie in the same block

// Null with kRDBOutOfMemory or kRDBBadKey.
RDB_Key RDB_ParseKey(const char* key);

// A null `db`, or one that is no database, makes every operation do nothing but set kRDBBadHandle.

// Null with kRDBOutOfMemory.
RDB_Handle RDB_Create();
// Adds the entries of a text file, replacing those of the same key. A syntax error is told on standard error
// with path and line; the entries before it stay. A key without a value at the very end of the file is
// dropped in silence, though with kRDBBadFile. Only regular files are opened.
void RDB_LoadText(RDB_Database* db, const char* path);
// Null if head, type table or root are not sound. Damage further down leaves what was read so far, and its
// code in rdbError. Only regular files are opened.
RDB_Handle RDB_LoadCompiled(const char* path);
// Adds `source` to `target`, `source` winning. `source` stays as it is; the two share their values.
void RDB_Merge(RDB_Database* target, const RDB_Database* source);
// From each text to the last component of its key, below the same leading components. Nothing below a node
// with a text is looked at.
RDB_Handle RDB_Invert(const RDB_Database* db);

// Stores a copy. `size` 0 or null `data` takes the value away. The empty key addresses the root. Without
// memory for it the old value stays.
void RDB_Put(RDB_Database* db, const char* key, unsigned type, unsigned size, const void* data);
void RDB_PutString(RDB_Database* db, const char* key, const char* text);

// At each component an exact match is preferred to "*" and that to ".", and a dead end goes back to the next
// choice. `data` becomes a fresh copy, closed by a NUL beyond `size`; null, with type and size 0, where there
// is no value.
void RDB_Get(const RDB_Database* db, const char* key, unsigned& type, unsigned& size, RDB_Text& data);
// Null when absent or no string.
RDB_Text RDB_GetString(const RDB_Database* db, const char* key);
// RDB_GetString for the key of the one component `text`, below the component `group` if that is not null,
// both unescaped. Nothing is copied: the result is the database's own, until that changes. `length`, if not
// null, becomes its bytes without the NUL.
const char* RDB_FindString(const RDB_Database* db, const char* group, const char* text,
                           std::size_t* length = nullptr);
