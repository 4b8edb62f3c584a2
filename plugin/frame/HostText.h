// Comparison of callers and selectors as the host does it.
#pragma once

bool IsEqual(const char* a, const char* b);
