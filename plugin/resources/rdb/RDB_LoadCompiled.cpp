#include "RDB_LoadCompiled.h"

#include <cstring>
#include <string>
#include <vector>

#include "RDB_Database.h"
#include "RDB_KeySplitter.h"
#include "RDB_Types.h"

namespace {

constexpr char kWord[] = "RVRDB";
constexpr std::size_t kWordSize = sizeof kWord - 1;
constexpr unsigned char kVersion[] = {1, 0};

// Numbers have 32 bits, the highest byte first.
constexpr std::size_t kNumberSize = 4;

unsigned NumberAt(const char* bytes) {
  unsigned number = 0;
  for (std::size_t at = 0; at < kNumberSize; ++at)
    number = number << 8 | static_cast<unsigned char>(bytes[at]);
  return number;
}

// What stands in front of a node's name and value.
struct Record {
  static constexpr std::size_t kSize = 1 + 4 * kNumberSize;
  char kind;
  unsigned type;
  unsigned nameLength;
  unsigned valueSize;
  unsigned childCount;
};

// Every step gives the code of what is wrong with the file, and throws std::bad_alloc.
class CompiledLoad {
 public:
  explicit CompiledLoad(RDB_Reader& reader) : reader_(reader) {}

  RDB_Error ReadFront(RDB_Node& root) {
    RDB_Error error = ReadHead();
    if (error == kRDBNoError) error = ReadTypes();
    return error == kRDBNoError ? ReadRoot(root) : error;
  }

  // Depth first, with the number of records still to come of each open node.
  RDB_Error ReadChildren(RDB_Node& root) {
    RDB_Node* parent = &root;
    while (!open_.empty()) {
      if (open_.back() == 0) {
        open_.pop_back();
        parent = parent->parent;
        continue;
      }
      --open_.back();
      const RDB_Error error = ReadChild(parent);
      if (error != kRDBNoError) return error;
    }
    return kRDBNoError;
  }

 private:
  RDB_Error ReadHead() {
    char head[kWordSize + sizeof kVersion + kNumberSize];
    if (!reader_.Get(head, sizeof head)) return kRDBBadFile;
    if (std::memcmp(head, kWord, kWordSize) != 0) return kRDBBadHead;
    if (std::memcmp(head + kWordSize, kVersion, sizeof kVersion) != 0) return kRDBBadVersion;
    typeCount_ = NumberAt(head + kWordSize + sizeof kVersion);
    return kRDBNoError;
  }

  RDB_Error ReadTypes() {
    std::string name;
    for (unsigned at = 0; at < typeCount_; ++at) {
      char length[kNumberSize];
      if (!reader_.Get(length, sizeof length) || !GetBytes(NumberAt(length), name)) return kRDBBadHead;
      name.resize(std::strlen(name.c_str()));
      types_.push_back(RDB_TypeIndex(name));
    }
    return kRDBNoError;
  }

  // The root keeps its own name.
  RDB_Error ReadRoot(RDB_Node& root) {
    Record record;
    RDB_ValueRef value;
    const RDB_Error error = ReadRecord(record, value);
    if (error != kRDBNoError) return error;
    root.value = std::move(value);
    open_.push_back(record.childCount);
    return kRDBNoError;
  }

  // Adds a child to `parent`, which becomes that child.
  RDB_Error ReadChild(RDB_Node*& parent) {
    Record record;
    RDB_ValueRef value;
    const RDB_Error error = ReadRecord(record, value);
    if (error != kRDBNoError) return error;
    RDB_KeyPart part = RDB_PartOfName(name_.c_str());
    if (record.kind == 1) part.slot = kRDBStar;
    if (record.kind == 2) part.slot = kRDBDots;
    open_.push_back(record.childCount);
    parent = &parent->MakeChild(part);
    parent->value = std::move(value);
    return kRDBNoError;
  }

  // Its name is left in `name_`.
  RDB_Error ReadRecord(Record& record, RDB_ValueRef& value) {
    char bytes[Record::kSize];
    if (!reader_.Get(bytes, sizeof bytes)) return kRDBBadFile;
    record = {bytes[0], NumberAt(bytes + 1), NumberAt(bytes + 5), NumberAt(bytes + 9), NumberAt(bytes + 13)};
    if (record.type >= typeCount_) return kRDBBadTypeIndex;
    if (record.nameLength == 0 || !GetBytes(record.nameLength, name_)) return kRDBBadFile;
    if (record.valueSize == 0) return kRDBNoError;
    // What a file says of its sizes is believed only as far as the file goes.
    if (record.valueSize > reader_.Remaining()) return kRDBBadFile;
    value = RDB_ValueRef(types_[record.type], record.valueSize);
    return reader_.Get(value.Data(), record.valueSize) ? kRDBNoError : kRDBBadFile;
  }

  bool GetBytes(std::size_t size, std::string& bytes) {
    if (size > reader_.Remaining()) return false;
    bytes.resize(size);
    return reader_.Get(bytes.data(), size);
  }

  RDB_Reader& reader_;
  unsigned typeCount_ = 0;
  std::vector<unsigned> types_;  // from the file's indices to the process's
  std::vector<unsigned> open_;
  std::string name_;
};

}  // namespace

RDB_Handle RDB_ReadCompiled(RDB_Reader& reader) {
  RDB_Handle db = RDB_Create();
  if (!db) return db;
  bool isFrontSound = false;
  RDB_CatchOutOfMemory([&] {
    CompiledLoad load(reader);
    rdbError = load.ReadFront(db->root);
    isFrontSound = rdbError == kRDBNoError;
    if (isFrontSound) rdbError = load.ReadChildren(db->root);
  });
  if (!isFrontSound) db.reset();
  return db;
}

RDB_Handle RDB_LoadCompiled(const char* path) {
  rdbError = kRDBNoError;
  RDB_File file(path);
  if (!file.IsOpen()) {
    rdbError = kRDBBadFile;
    return nullptr;
  }
  RDB_Handle db;
  RDB_CatchOutOfMemory([&] {
    RDB_Reader reader(file);
    db = RDB_ReadCompiled(reader);
  });
  return db;
}
