// The object a message is for.
#pragma once

#include <algorithm>
#include <memory>

// The first object of a range of owning pointers that carries `handle` in its field `field`. Null if
// there is none: a null handle names nothing, and empty places are passed over.
template <typename Iterator, typename Object, typename Handle>
Object* FindByHandle(Iterator first, Iterator last, Handle Object::*field, Handle handle) {
  if (handle == nullptr) return nullptr;
  const Iterator found = std::find_if(first, last, [&](const std::unique_ptr<Object>& object) {
    return object != nullptr && object.get()->*field == handle;
  });
  return found == last ? nullptr : found->get();
}
