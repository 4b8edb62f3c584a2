// The program `icon-files` without its process.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace icons {

// `arguments` are LIST RESOURCES, to write the files of a bundle into its folder of resources, or
// LIST --sheet FILE.png, to draw a contact sheet. Returns the exit code: 0 done; 1 a fault in the list, a
// source or a folder, told as one sentence on `errors`; 2 wrong usage.
int run(const std::vector<std::string>& arguments, std::ostream& errors);

}  // namespace icons
