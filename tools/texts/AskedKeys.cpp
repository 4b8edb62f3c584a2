#include "AskedKeys.h"

#include "KeyForm.h"

namespace texts {

void AskFor(AskedKeys& keys, const AskedKey& asked) {
  const auto [known, isNew] = keys.emplace(KeyOfText(asked.english), asked);
  if (!isNew && known->second.kind == AskedKey::Kind::Text) known->second = asked;
}

}  // namespace texts
