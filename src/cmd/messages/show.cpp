#include "cmd/messages/show.hpp"

#include "fl/i18n/MessageCatalog.hpp"
#include "services/io/uout.hpp"
#include "zx/errors.hpp"

namespace zex_cmd {

void emitWarning(const MessageRecord& record) {
  zxWarningMsgId(record);
}

ustring rendered(const MessageRecord& record) {
  return fl::i18n::MessageCatalog::get_message(record, fl::i18n::ZwLocale::global());
}

void printMessage(const MessageRecord& record) {
  services::io::uout() << rendered(record) << u"\n";
}

}  // namespace zex_cmd
