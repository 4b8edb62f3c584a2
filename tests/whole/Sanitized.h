// CORVANE_ADDRESS_SANITIZER is defined where AddressSanitizer is at work, and all takes many times as long.
#pragma once

#if defined(__SANITIZE_ADDRESS__)
#define CORVANE_ADDRESS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define CORVANE_ADDRESS_SANITIZER
#endif
#endif
