#pragma once

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

/// Makes sure that the host does not hold the product: unloads it or, where it is locked, raises
/// "TESSEL:zex:Locked". `product` is the text of EXE, quoted or not. Does nothing in a host without a dispatcher.
void releaseLoadedProduct(const ustring& product);

/// Tells the host's path manager that a folder has a new product. `product` as above.
void notifyPathManager(const ustring& product);

}  // namespace zex_cmd
