// What the built bundle shows to the outside.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>

#include "World.h"

namespace host {
namespace {

TEST(Bundle, ExportsItsEntryAndNothingElse) {
  const std::string library = (corvaneBundle() / "Contents/Linux/corvane.so").string();
  FILE* pipe = popen(("nm -D --defined-only '" + library + "'").c_str(), "r");
  ASSERT_NE(pipe, nullptr);
  std::string symbols;
  std::array<char, 256> line{};
  while (std::fgets(line.data(), static_cast<int>(line.size()), pipe) != nullptr) symbols += line.data();
  ASSERT_EQ(pclose(pipe), 0);
  EXPECT_EQ(symbols.substr(symbols.find(' ')), " T PluginMain\n");
}

TEST(Bundle, CarriesItsVersionStamp) {
  const std::string code = readText(corvaneBundle() / "Contents/Linux/corvane.so");
  EXPECT_NE(code.find("\n***HMXVERSIONINFO***1.00.1.1__corvane__Oct 31 2022__17:56:30\n"), std::string::npos);
}

}  // namespace
}  // namespace host
