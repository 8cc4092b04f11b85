#pragma once

#include "foundation/core/except/IException.hpp"
#include "host/visibility.hpp"
#include "resource_core/BaseMsgID.hpp"

namespace matrix::detail {

/// Tells the host of an error that is about to be thrown. A host with an error path of its own may not return.
ZEXHOST_API void do_legacy_zx_error(const foundation::core::except::IUserException& error);

}  // namespace matrix::detail

/// Hands a warning to the host, which decides whether and how it is shown.
ZEXHOST_API void zxWarningMsgId(const resource_core::BaseMsgID& record);
