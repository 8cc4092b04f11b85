#include "support/RecordingServices.hpp"

#include "fl/i18n/MessageCatalog.hpp"
#include "fl/i18n/strings.hpp"
#include "standalone/StandaloneServices.hpp"

namespace zex_test {

namespace {

std::string inPseudoLocale(const resource_core::BaseMsgID& record) {
  return fl::i18n::to_string(fl::i18n::MessageCatalog::get_message(record, fl::i18n::ZwLocale("id")));
}

}  // namespace

RecordingServices::RecordingServices() : previous_(host::installServices(this)) {}

RecordingServices::~RecordingServices() {
  host::installServices(previous_);
}

void RecordingServices::showWarning(const resource_core::BaseMsgID& record) {
  warnings.push_back(inPseudoLocale(record));
}

void RecordingServices::noteError(const foundation::core::except::IUserException& error) {
  const auto* withId = dynamic_cast<const foundation::core::except::IMsgIDException*>(&error);
  errors.push_back(withId == nullptr ? std::string("no identifier") : withId->message().identifier());
}

host::ShellResult RecordingServices::runShellLine(const fl::ustring& line, bool calledFromHost) {
  shellLines.push_back(fl::i18n::to_string(line));
  return host::standalone::StandaloneServices().runShellLine(line, calledFromHost);
}

std::string renderedFailure(const foundation::core::except::IMsgIDException& failure) {
  return inPseudoLocale(failure.message());
}

}  // namespace zex_test
