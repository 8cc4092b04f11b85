#pragma once

#include <string>

#include "cmd/messages/MessageRecord.hpp"

/// The notices, shown by `printMessage` whatever the verbosity. Of a pair, "_link" or "_bold" is for an output
/// that can show it: ask `utPrintfIsHot`.
namespace zex_cmd::msg {

inline MessageRecord Verbose() {
  return {"TESSEL:zex", "Verbose", {}};
}
inline MessageRecord Building(const ustring& compiler) {
  return {"TESSEL:zex", "Building", {compiler}};
}
inline MessageRecord Complete() {
  return {"TESSEL:zex", "Complete", {}};
}
inline MessageRecord FileRenamed(const ustring& path, const ustring& backup) {
  return {"TESSEL:zex", "FileRenamed", {path, backup}};
}
inline MessageRecord MultiCompilers(const std::string& language) {
  return {"TESSEL:zex", "MultiCompilers", {language}};
}
inline MessageRecord MultiCompilers_link(const std::string& language) {
  return {"TESSEL:zex", "MultiCompilers_link", {language}};
}
inline MessageRecord NoLangSelected(const std::string& client, const std::string& sameClient) {
  return {"TESSEL:zex", "NoLangSelected", {client, sameClient}};
}
inline MessageRecord NoLangSelected_link(const std::string& client, const std::string& sameClient,
                                         const std::string& sameClient2, const std::string& sameClient3) {
  return {"TESSEL:zex", "NoLangSelected_link", {client, sameClient, sameClient2, sameClient3}};
}
inline MessageRecord ConfiguredToUse(const ustring& client, const ustring& compiler, const ustring& language) {
  return {"TESSEL:zex", "ConfiguredToUse", {client, compiler, language}};
}
inline MessageRecord ConfiguredToUse_bold(const ustring& client, const ustring& compiler,
                                          const ustring& language) {
  return {"TESSEL:zex", "ConfiguredToUse_bold", {client, compiler, language}};
}
inline MessageRecord LargeArrayDimsSetupWarn() {
  return {"TESSEL:zex", "LargeArrayDimsSetupWarn", {}};
}
inline MessageRecord LargeArrayDimsSetupWarn_link() {
  return {"TESSEL:zex", "LargeArrayDimsSetupWarn_link", {}};
}

}  // namespace zex_cmd::msg
