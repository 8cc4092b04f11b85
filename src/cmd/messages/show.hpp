#pragma once

#include "cmd/messages/MessageRecord.hpp"

namespace zex_cmd {

/// Hands a warning to the host. The command goes on.
void emitWarning(const MessageRecord& record);

/// The words for a record in the host's locale.
ustring rendered(const MessageRecord& record);

/// Writes the words and a line feed on the host's output channel.
void printMessage(const MessageRecord& record);

}  // namespace zex_cmd
