// What a fuzz program is asked to do with one input; the name is libFuzzer's.
#pragma once

#include <cstddef>
#include <cstdint>

// Returns 0; an input that shows a fault ends the program.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
