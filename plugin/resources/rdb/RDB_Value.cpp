#include "RDB_Value.h"

#include <cstring>
#include <limits>
#include <new>

#include "RDB.h"

RDB_ValueRef::RDB_ValueRef(unsigned type, std::size_t size) {
  if (size > std::numeric_limits<unsigned>::max()) throw std::bad_alloc();
  void* const memory = ::operator new(sizeof(RDB_Value) + size + 1);
  value_ = new (memory) RDB_Value{1, type, static_cast<unsigned>(size)};
  value_->Data()[size] = '\0';
}

RDB_ValueRef::RDB_ValueRef(unsigned type, std::size_t size, const void* data) : RDB_ValueRef(type, size) {
  std::memcpy(value_->Data(), data, size);
}

RDB_ValueRef::RDB_ValueRef(std::string_view text) : RDB_ValueRef(kRDBString, text.size() + 1) {
  text.copy(value_->Data(), text.size());
  value_->Data()[text.size()] = '\0';
}

void RDB_ValueRef::Release() {
  if (value_ != nullptr && --value_->refCount == 0) ::operator delete(value_);
}
