// Makes the picture files of a bundle from its SVG icons.
#include <iostream>

#include "Run.h"

int main(int argc, char** argv) {
  return icons::run({argv + 1, argv + argc}, std::cerr);
}
