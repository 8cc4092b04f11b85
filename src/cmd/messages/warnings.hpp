#pragma once

#include <string>

#include "cmd/messages/MessageRecord.hpp"

/// The warnings, shown by `emitWarning`. They never stop a command. A pair with "_link" differs only in how the
/// catalogue words it: ask `utPrintfIsHot`.
namespace zex_cmd::msg {

inline MessageRecord NotAnOption(const ustring& token) {
  return {"TESSEL:zex", "NotAnOption", {token}};
}
inline MessageRecord FortranLargeArrayDimsWarn() {
  return {"TESSEL:zex", "FortranLargeArrayDimsWarn", {}};
}
inline MessageRecord FortranLargeArrayDimsWarn_link() {
  return {"TESSEL:zex", "FortranLargeArrayDimsWarn_link", {}};
}
inline MessageRecord IgnoreOutput() {
  return {"TESSEL:zex", "IgnoreOutput", {}};
}
inline MessageRecord SameObject(const ustring& first, const ustring& second) {
  return {"TESSEL:zex", "SameObject", {first, second}};
}
inline MessageRecord GccVersion(const ustring& found, const std::string& supported) {
  return {"TESSEL:zex", "GccVersion", {found, supported}};
}
inline MessageRecord GccVersion_link(const ustring& found, const std::string& supported) {
  return {"TESSEL:zex", "GccVersion_link", {found, supported}};
}
inline MessageRecord MinGWVersion() {
  return {"TESSEL:zex", "MinGWVersion", {}};
}
inline MessageRecord MinGWVersion_link() {
  return {"TESSEL:zex", "MinGWVersion_link", {}};
}
inline MessageRecord InvalidMinGWConfig() {
  return {"TESSEL:zex", "InvalidMinGWConfig", {}};
}
inline MessageRecord InvalidMinGWConfig_link() {
  return {"TESSEL:zex", "InvalidMinGWConfig_link", {}};
}
inline MessageRecord Warn(const std::string& text) {
  return {"TESSEL:zex", "Warn", {text}};
}
inline MessageRecord NoAlternativeCompilerFound(const ustring& compiler) {
  return {"TESSEL:zex", "NoAlternativeCompilerFound", {compiler}};
}
inline MessageRecord UnsupportedCompiler(const ustring& compiler) {
  return {"TESSEL:zex", "UnsupportedCompiler", {compiler}};
}
inline MessageRecord LongEnv(const std::string& variable) {
  return {"TESSEL:zex", "LongEnv", {variable}};
}
inline MessageRecord LongEnv_link(const std::string& variable) {
  return {"TESSEL:zex", "LongEnv_link", {variable}};
}

}  // namespace zex_cmd::msg
