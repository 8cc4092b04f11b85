#include "cmd/messages/ZexConfigPerTVM.hpp"

#include "cmd/messages/PerMachineRecord.hpp"
#include "cmd/messages/show.hpp"
#include "services/io/uout.hpp"

namespace zex_cmd {

ZexConfigPerTVM& ZexConfigPerTVM::current() {
  return perMachineRecord<ZexConfigPerTVM>();
}

void resetReportBuffers() {
  ZexConfigPerTVM& config = ZexConfigPerTVM::current();
  config.reportText.clear();
  config.verboseText.clear();
  config.locationTrace.clear();
}

void logVerbose(const ustring& text, bool addNewline) {
  ZexConfigPerTVM& config = ZexConfigPerTVM::current();
  if (!config.verboseEnabled || text.empty()) return;
  const ustring whole = addNewline ? text + u"\n" : text;
  if (config.verboseEcho) {
    services::io::uout() << whole;
  } else {
    config.verboseText += whole;
  }
}

void logMessage(const MessageRecord& record, bool addNewline) {
  // Rendering is not free, and most commands run without -v.
  if (!ZexConfigPerTVM::current().verboseEnabled) return;
  logVerbose(rendered(record), addNewline);
}

}  // namespace zex_cmd
