#pragma once

#include "fl/ustring.hpp"

namespace tool {

/// Compares the interface records in a product, as `zex` does after a link; for products that another program
/// linked. The file is read and never loaded, so it may be for another system. Raises
/// "TESSEL:zexrun:ProductNotFound" and "TESSEL:zexrun:RecordsDisagree", the latter also for a file without
/// records.
void checkProduct(const fl::ustring& product);

}  // namespace tool
