// Marks a text of the interface that is looked up elsewhere than where it is written.
#pragma once

// Gives back `text`. The texts that Localize and its relatives are called with directly need no mark; all
// others are marked with this, so that they are found when the translations are checked.
constexpr const char* TextKey(const char* text) {
  return text;
}
