#include "host/Services.hpp"
#include "zx/errors.hpp"

void matrix::detail::do_legacy_zx_error(const foundation::core::except::IUserException& error) {
  host::services().noteError(error);
}

void zxWarningMsgId(const resource_core::BaseMsgID& record) {
  host::services().showWarning(record);
}
