// Basic types and the message head that every message between a host and a plug-in begins with.
#pragma once

#include <cstdint>

using SPErr = std::int32_t;  // 0 is success; other codes are mostly four characters, read big-endian

// Four characters as a big-endian 32-bit code: 'SPCk' is FourCharCode("SPCk").
constexpr std::uint32_t FourCharCode(const char (&text)[5]) {
  std::uint32_t code = 0;
  for (int i = 0; i < 4; ++i) code = (code << 8) | static_cast<unsigned char>(text[i]);
  return code;
}

constexpr SPErr ErrorCode(const char (&text)[5]) {
  return static_cast<SPErr>(FourCharCode(text));
}

constexpr SPErr kSPNoError = 0;
constexpr SPErr kSPSuiteNotFoundError = ErrorCode("S!Fd");  // no suite of that name and version
constexpr SPErr kSPBadParameterError = ErrorCode("Parm");   // a null out-parameter, an unknown reference
constexpr SPErr kSPOutOfMemoryError = ErrorCode("!MEM");
constexpr SPErr kSPUnsupportedError = ErrorCode("!UNS");
constexpr SPErr kSPCanceledByHostError = ErrorCode("Refu");  // the host was told to refuse this call
constexpr SPErr kSPExceptionError = ErrorCode("Excp");       // an exception ended the message

// Opaque references, given out by the host; they stay valid for the host's life.
using SPPluginRef = struct SPPluginRecord*;
using SPAccessRef = struct SPAccessRecord*;

struct SPBasicSuite;

constexpr std::uint32_t kSPValidSPMessageData = FourCharCode("SPCk");

// Head of every message record. The host owns the record; it is valid for the length of the call.
struct SPMessageData {
  std::uint32_t SPCheck;      // kSPValidSPMessageData in a well-formed message
  SPPluginRef self;           // the plug-in the message goes to
  void* globals;              // for the plug-in's use; kept by the host from message to message
  const SPBasicSuite* basic;  // the way to all other suites; never null
};

// The one exported function of a plug-in. A result of 0 means handled, or nobody's.
using SPPluginMain = SPErr (*)(const char* caller, const char* selector, void* message);
constexpr char kSPPluginMainName[] = "PluginMain";

// Messages that begin and end a plug-in's life.
constexpr char kSPInterfaceCaller[] = "SP Interface";
constexpr char kSPInterfaceStartupSelector[] = "Startup";    // non-zero: the plug-in stays out
constexpr char kSPInterfaceShutdownSelector[] = "Shutdown";  // last message; the library stays mapped
