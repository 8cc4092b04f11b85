#pragma once

#include <string>

#include "cmd/messages/MessageRecord.hpp"

/// The lines of verbose output, handed to `logVerbose` by `logMessage`.
namespace zex_cmd::msg {

inline MessageRecord DeleteTmpFile(const ustring& path) {
  return {"TESSEL:zex", "DeleteTmpFile", {path}};
}
inline MessageRecord RecompileVer(const ustring& flag) {
  return {"TESSEL:zex", "RecompileVer", {flag}};
}
inline MessageRecord CreateRSPFile(const ustring& program, const ustring& fileName, const ustring& sameProgram) {
  return {"TESSEL:zex", "CreateRSPFile", {program, fileName, sameProgram}};
}
inline MessageRecord SFunctionMsg() {
  return {"TESSEL:zex", "SFunctionMsg", {}};
}
inline MessageRecord LookforImplicitSel() {
  return {"TESSEL:zex", "LookforImplicitSel", {}};
}
inline MessageRecord SetEnv(const std::string& variable, const ustring& value) {
  return {"TESSEL:zex", "SetEnv", {variable, value}};
}
inline MessageRecord LookingCompiler(const ustring& compiler) {
  return {"TESSEL:zex", "LookingCompiler", {compiler}};
}
inline MessageRecord InstalledCompiler(const ustring& compiler) {
  return {"TESSEL:zex", "InstalledCompiler", {compiler}};
}
inline MessageRecord NotInstalledCompiler(const ustring& compiler) {
  return {"TESSEL:zex", "NotInstalledCompiler", {compiler}};
}
inline MessageRecord LookingRegistry(const std::string& root, const ustring& key, const ustring& name) {
  return {"TESSEL:zex", "LookingRegistry", {root, key, name}};
}
inline MessageRecord LookingEnv(const ustring& variable) {
  return {"TESSEL:zex", "LookingEnv", {variable}};
}
inline MessageRecord LookingFile(const ustring& path) {
  return {"TESSEL:zex", "LookingFile", {path}};
}
inline MessageRecord LookingFolder(const ustring& path) {
  return {"TESSEL:zex", "LookingFolder", {path}};
}
inline MessageRecord ExecutingCmd(const ustring& command) {
  return {"TESSEL:zex", "ExecutingCmd", {command}};
}
inline MessageRecord YesValue(const ustring& value) {
  return {"TESSEL:zex", "YesValue", {value}};
}
inline MessageRecord Yes() {
  return {"TESSEL:zex", "Yes", {}};
}
inline MessageRecord No() {
  return {"TESSEL:zex", "No", {}};
}

}  // namespace zex_cmd::msg
