// What holds for every document.
#pragma once

#include "Document.h"

// Ends the program unless the tree hangs together and everything in it can be drawn.
void ExpectSound(const host::Document& document);
