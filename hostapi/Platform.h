// What the plug-in asks of the operating system. The host's process provides these functions.
#pragma once

#include <cstddef>
#include <cstdint>

constexpr std::uint32_t kShiftKeyModifier = 0x200;
constexpr std::uint32_t kOptionKeyModifier = 0x800;
constexpr std::uint32_t kCommandKeyModifier = 0x100;

// Modifier keys held down now, a sum of the bits above.
std::uint32_t GetCurrentKeyModifiers();

// The user's preferred language as a tag such as "de" or "pt-BR", NUL-terminated, in a buffer of `size`
// bytes. False, with the buffer left alone, if the user prefers none or the tag does not fit.
bool CopyPreferredLanguage(char* tag, std::size_t size);

enum class NormalFormResult {
  Done,
  NotUTF8,  // the text was left as it is
  TooLong   // the normal form does not fit; the text was left as it is
};
// Puts NUL-terminated UTF-8 into Unicode normal form C, in its buffer of `size` bytes.
NormalFormResult NormalizeFormC(char* text, std::size_t size);

// A bundle is a folder with Contents/Resources in it. There lie its files, in English or in no language, and
// one folder "<localisation>.lproj" for each further language; underscores and hyphens in the name of a
// localisation are alike ("pt_BR", "pt-BR").
bool IsBundle(const char* folder);

// Looks for the file "<name>.<extension>", or `name` alone with a null or empty extension, in one folder:
// that of `localisation`, or with null the one that the bundle's own choice leads to. This is the
// localisation of the first of the user's languages that the bundle has, in that region or, failing that,
// in another, and the resource folder itself for English and for users of other languages. Letters of file
// names count in their case. Gives the absolute path, NUL-terminated UTF-8, in a buffer of `size` bytes.
// False, with the buffer left alone, if there is no such file or its path does not fit.
bool CopyBundleResourcePath(const char* bundle, const char* name, const char* extension,
                            const char* localisation, char* path, std::size_t size);

constexpr std::int16_t kLocalDomain = -32765;                    // of this machine, for all its users
constexpr std::uint32_t kSharedUserDataFolderType = 0x73646174;  // "sdat": for what plug-ins share

// The absolute path of a folder, NUL-terminated UTF-8 without a "/" at its end, in a buffer of `size` bytes.
// The folder is there then, and all users may write into it. False, with the buffer left alone, for other
// folders than that of the two constants, if it can be neither found nor made, and if the path does not fit.
bool FSFindFolder(std::int16_t domain, std::uint32_t type, char* path, std::size_t size);
