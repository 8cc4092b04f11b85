#pragma once

#include <vector>

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

class ZexArgs;
class ZexOpt;
class ZexVarResolver;

/// Settles which of the formatter's patterns each -l library means, by looking for the file in the document's
/// search path, and rewrites the commands and LINKLIBS to it. Without a search path the text stays as it is.
/// Raises "TESSEL:zex:LibNotFound".
void resolveLibraries(ZexOpt& option, const ZexVarResolver& resolver, const ZexArgs& args);

/// The folders of the document's LibrarySearchPath, then those of -L, then the current folder; empty where the
/// document has no search path, even if -L names folders.
std::vector<ustring> librarySearchPath(const ZexOpt& option, const ZexArgs& args);

}  // namespace zex_cmd
