#pragma once

#include "compilers/ZexCompilers.hpp"

namespace zex_cmd {

/// The first document whose field equals the value exactly, else an empty handle.
boost::shared_ptr<ZexOpt> findOptByField(const ZexOptList& list, const ustring& field, const ustring& value);

/// The installed document of least PRIORITY, the first among equals, else an empty handle. PRIORITY is compared as
/// text by code unit: "10" sorts before "9" and an empty text before all.
boost::shared_ptr<ZexOpt> lowestPriorityOpt(const ZexOptList& list);

/// Drops the documents that are not installed; the rest keeps its order.
void keepInstalled(ZexOptList& list);

}  // namespace zex_cmd
