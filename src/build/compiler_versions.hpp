#pragma once

namespace zex_cmd {

class ZexOpt;

/// Warns where the program of a document named "gcc" or "g++" is of another version than this release supports.
/// Made on "glnxa64" alone. Only versions of single digits are recognised; any other draws no warning, which is
/// settled.
void checkGccVersion(const ZexOpt& option, bool calledFromHost);

/// Warns where a MinGW document's compiler, or what the document says of it, is not of the supported version.
void checkMinGwVersion(const ZexOpt& option, bool calledFromHost);

}  // namespace zex_cmd
