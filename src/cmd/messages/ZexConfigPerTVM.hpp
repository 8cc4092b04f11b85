#pragma once

#include <string>

#include "cmd/messages/MessageRecord.hpp"

namespace zex_cmd {

/// What outlives a command on one virtual machine: the verbose flags and the report texts.
struct ZexConfigPerTVM {
  bool verboseEnabled = false;  ///< texts given to `logVerbose` are looked at only when this is true
  bool verboseEcho = false;     ///< true: `logVerbose` prints at once; false: it appends to `verboseText`
  ustring reportText;           ///< part of the compiler list report; no command adds to it
  ustring verboseText;          ///< buffered verbose text
  std::string locationTrace;    ///< diagnostics of the location finder, each ended by a line feed

  static ZexConfigPerTVM& current();
};

/// Empties the three texts. The flags stay.
void resetReportBuffers();

/// Verbose text: printed or buffered, as the flags say; dropped when `text` is empty or verbose output is off.
void logVerbose(const ustring& text, bool addNewline);

/// Renders a record for `logVerbose`, if anyone looks.
void logMessage(const MessageRecord& record, bool addNewline);

}  // namespace zex_cmd
