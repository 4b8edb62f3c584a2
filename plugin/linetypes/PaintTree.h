// What the trees of paints and of custom colour definitions are put together from.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>

#include "AITypes.h"
#include "LineTypeTree.h"

namespace Vandrell::Corvane {

void PutInteger(LineTypeTree& tree, const char* key, std::int32_t value);

// A subtree with a child of empty key for each component.
void PutComponents(LineTypeTree& tree, const char* key, std::initializer_list<AIReal> components);

// Throw a boost::property_tree::ptree_error for a key that is missing and for text that is no such number.
std::int32_t GetInt32(const LineTypeTree& tree, const char* key);
std::int16_t GetInt16(const LineTypeTree& tree, const char* key);

constexpr std::size_t kMaxComponents = 4;

// The first `count` children under the key, whatever their own keys are; the rest is 0. All children must
// be numbers. Fewer than `count` throw with the text `tooFew`.
std::array<AIReal, kMaxComponents> GetComponents(const LineTypeTree& tree, const char* key, std::size_t count,
                                                 const char* tooFew);

}  // namespace Vandrell::Corvane
