#pragma once

#include <string>

#include "cmd/messages/MessageRecord.hpp"
#include "cmd/messages/error_tags.hpp"

/// The errors. Each is raised by `raiseTyped`, which throws the exception type of its tag. Arguments stand in the
/// order of the placeholders in the catalogue.
namespace zex_cmd::msg {

/// A record that knows the tag of the exception it is raised as.
template <class Tag>
struct ErrorRecord : MessageRecord {
  using MessageRecord::MessageRecord;
};

inline ErrorRecord<TESSEL::zex::UnknownSwitch> UnknownSwitch(const ustring& token) {
  return {"TESSEL:zex", "UnknownSwitch", {token}};
}
inline ErrorRecord<TESSEL::zex::UnknownSwitch> UnknownSwitch(const std::string& token) {
  return {"TESSEL:zex", "UnknownSwitch", {token}};
}
inline ErrorRecord<TESSEL::zex::IncompatibleSwitches> IncompatibleSwitches(const std::string& first,
                                                                           const std::string& second) {
  return {"TESSEL:zex", "IncompatibleSwitches", {first, second}};
}
inline ErrorRecord<TESSEL::zex::UnknownExt> UnknownExt(const std::string& extension) {
  return {"TESSEL:zex", "UnknownExt", {extension}};
}
inline ErrorRecord<TESSEL::zex::UnknownLanguage> UnknownLanguage(const std::string& word) {
  return {"TESSEL:zex", "UnknownLanguage", {word}};
}
inline ErrorRecord<TESSEL::zex::MixLang> MixLang(const std::string& first, const std::string& second) {
  return {"TESSEL:zex", "MixLang", {first, second}};
}
inline ErrorRecord<TESSEL::zex::AccessDenied> AccessDenied(const ustring& path) {
  return {"TESSEL:zex", "AccessDenied", {path}};
}
inline ErrorRecord<TESSEL::zex::ErrOption> ErrOption(const ustring& token) {
  return {"TESSEL:zex", "ErrOption", {token}};
}
inline ErrorRecord<TESSEL::zex::FileCannotOpen> FileCannotOpen(const ustring& path) {
  return {"TESSEL:zex", "FileCannotOpen", {path}};
}
inline ErrorRecord<TESSEL::zex::NotADirectory> NotADirectory(const ustring& path) {
  return {"TESSEL:zex", "NotADirectory", {path}};
}
inline ErrorRecord<TESSEL::zex::UnknownClient> UnknownClient(const ustring& client) {
  return {"TESSEL:zex", "UnknownClient", {client}};
}
inline ErrorRecord<TESSEL::zex::UnknownClient> UnknownClient(const std::string& client) {
  return {"TESSEL:zex", "UnknownClient", {client}};
}
inline ErrorRecord<TESSEL::zex::SrcNotFound> SrcNotFound(const ustring& path, const ustring& samePath) {
  return {"TESSEL:zex", "SrcNotFound", {path, samePath}};
}
inline ErrorRecord<TESSEL::zex::ErrorFortranR2018a> ErrorFortranR2018a() {
  return {"TESSEL:zex", "ErrorFortranR2018a", {}};
}
inline ErrorRecord<TESSEL::zex::FileSystemException> FileSystemException(const std::string& text) {
  return {"TESSEL:zex", "FileSystemException", {text}};
}
inline ErrorRecord<TESSEL::zex::Error> Error(const ustring& text) {
  return {"TESSEL:zex", "Error", {text}};
}
inline ErrorRecord<TESSEL::zex::FileNameConversionFailed> FileNameConversionFailed() {
  return {"TESSEL:zex", "FileNameConversionFailed", {}};
}
inline ErrorRecord<TESSEL::zex::FileNameTooLarge> FileNameTooLarge() {
  return {"TESSEL:zex", "FileNameTooLarge", {}};
}
inline ErrorRecord<TESSEL::zex::OutOfMemory> OutOfMemory() {
  return {"TESSEL:zex", "OutOfMemory", {}};
}
inline ErrorRecord<TESSEL::zex::ZexDoubleHandle> ZexDoubleHandle(const std::string& define) {
  return {"TESSEL:zex", "ZexDoubleHandle", {define}};
}
inline ErrorRecord<TESSEL::zex::Locked> Locked(const ustring& product) {
  return {"TESSEL:zex", "Locked", {product}};
}
inline ErrorRecord<TESSEL::zex::ZXSeparateComplexNotSupported> ZXSeparateComplexNotSupported(const ustring& name) {
  return {"TESSEL:zex", "ZXSeparateComplexNotSupported", {name}};
}
inline ErrorRecord<TESSEL::zex::UndocumentedNotSupported> UndocumentedNotSupported(const ustring& name) {
  return {"TESSEL:zex", "UndocumentedNotSupported", {name}};
}
inline ErrorRecord<TESSEL::zex::ZexSetTrapFlagNotSupported> ZexSetTrapFlagNotSupported() {
  return {"TESSEL:zex", "ZexSetTrapFlagNotSupported", {}};
}
inline ErrorRecord<TESSEL::zex::ZexErrorCode> ZexErrorCode(const ustring& program, const std::string& code) {
  return {"TESSEL:zex", "ZexErrorCode", {program, code}};
}
inline ErrorRecord<TESSEL::zex::ErrXMLAttr> ErrXMLAttr(const ustring& key, const ustring& document) {
  return {"TESSEL:zex", "ErrXMLAttr", {key, document}};
}
inline ErrorRecord<TESSEL::zex::ErrXMLAttr> ErrXMLAttr(const std::string& key, const ustring& document) {
  return {"TESSEL:zex", "ErrXMLAttr", {key, document}};
}
inline ErrorRecord<TESSEL::zex::LibNotFound> LibNotFound(const ustring& library, const ustring& secondTried,
                                                         const ustring& firstTried) {
  return {"TESSEL:zex", "LibNotFound", {library, secondTried, firstTried}};
}
inline ErrorRecord<TESSEL::zex::MultipleOrZeroCompiler> MultipleOrZeroCompiler() {
  return {"TESSEL:zex", "MultipleOrZeroCompiler", {}};
}
inline ErrorRecord<TESSEL::zex::NoCompilerFound> NoCompilerFound() {
  return {"TESSEL:zex", "NoCompilerFound", {}};
}
inline ErrorRecord<TESSEL::zex::NoCompilerFound_Win64> NoCompilerFound_Win64() {
  return {"TESSEL:zex", "NoCompilerFound_Win64", {}};
}
inline ErrorRecord<TESSEL::zex::NoCompilerFound_link> NoCompilerFound_link() {
  return {"TESSEL:zex", "NoCompilerFound_link", {}};
}
inline ErrorRecord<TESSEL::zex::NoCompilerFound_link_Win64> NoCompilerFound_link_Win64() {
  return {"TESSEL:zex", "NoCompilerFound_link_Win64", {}};
}
inline ErrorRecord<TESSEL::zex::FailSetEnv> FailSetEnv(const std::string& variable) {
  return {"TESSEL:zex", "FailSetEnv", {variable}};
}
inline ErrorRecord<TESSEL::zex::InvalidXML> InvalidXML(const ustring& document) {
  return {"TESSEL:zex", "InvalidXML", {document}};
}
inline ErrorRecord<TESSEL::zex::XMLWriteFailed> XMLWriteFailed(const ustring& path) {
  return {"TESSEL:zex", "XMLWriteFailed", {path}};
}
inline ErrorRecord<TESSEL::zex::XMLWriteFailedWithMsg> XMLWriteFailedWithMsg(const ustring& path,
                                                                             const std::string& text) {
  return {"TESSEL:zex", "XMLWriteFailedWithMsg", {path, text}};
}
inline ErrorRecord<TESSEL::zex::NotConfiguredToUse> NotConfiguredToUse(const ustring& client,
                                                                       const ustring& compiler) {
  return {"TESSEL:zex", "NotConfiguredToUse", {client, compiler}};
}
inline ErrorRecord<TESSEL::zex::CircRef> CircRef(const ustring& from, const ustring& to) {
  return {"TESSEL:zex", "CircRef", {from, to}};
}

inline ErrorRecord<TESSEL::legacy_two_part::minrhs> minrhs() {
  return {"TESSEL:legacy_two_part", "minrhs", {}};
}

inline ErrorRecord<TESSEL::string::MissingNotSupported> MissingNotSupported() {
  return {"TESSEL:string", "MissingNotSupported", {}};
}
inline ErrorRecord<TESSEL::string::MustBeStringScalarOrCharacterVector> MustBeStringScalarOrCharacterVector() {
  return {"TESSEL:string", "MustBeStringScalarOrCharacterVector", {}};
}

}  // namespace zex_cmd::msg
