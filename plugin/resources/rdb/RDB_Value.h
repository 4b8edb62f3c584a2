// What a key stands for: bytes of a type, shared between the nodes of several databases.
#pragma once

#include <cstddef>
#include <string_view>

struct RDB_Value {
  unsigned refCount;
  unsigned type;
  unsigned size;  // bytes of data, never 0

  // Right behind this record, and closed by a NUL that `size` does not count.
  const char* Data() const { return reinterpret_cast<const char*>(this + 1); }
  char* Data() { return reinterpret_cast<char*>(this + 1); }
};

// One reference to a value, or none.
class RDB_ValueRef {
 public:
  RDB_ValueRef() = default;
  // Room for `size` bytes, which the caller fills before anyone else sees the value. Throws std::bad_alloc.
  RDB_ValueRef(unsigned type, std::size_t size);
  RDB_ValueRef(unsigned type, std::size_t size, const void* data);
  // A string.
  explicit RDB_ValueRef(std::string_view text);
  RDB_ValueRef(const RDB_ValueRef& other) : value_(other.value_) {
    if (value_ != nullptr) ++value_->refCount;
  }
  RDB_ValueRef(RDB_ValueRef&& other) noexcept : value_(other.value_) { other.value_ = nullptr; }
  RDB_ValueRef& operator=(RDB_ValueRef other) noexcept {
    RDB_Value* const old = value_;
    value_ = other.value_;
    other.value_ = old;
    return *this;
  }
  ~RDB_ValueRef() { Release(); }

  explicit operator bool() const { return value_ != nullptr; }
  const RDB_Value* operator->() const { return value_; }
  const RDB_Value& operator*() const { return *value_; }
  char* Data() { return value_->Data(); }

 private:
  void Release();

  RDB_Value* value_ = nullptr;
};
