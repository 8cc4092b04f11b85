#include "support/RecordingServices.hpp"

#include <algorithm>
#include <iterator>

#include "fl/i18n/MessageCatalog.hpp"
#include "korvane/String.hpp"
#include "standalone/StandaloneServices.hpp"
#include "support/platform.hpp"
#include "support/texts.hpp"

namespace zex_test {

namespace {

std::string textOrMark(const zxArray* value) {
  if (!Korvane::String::isString(value)) return "?";
  const std::optional<fl::ustring> text = Korvane::String::getString(value);
  return text ? utf8(*text) : "missing";
}

std::string inPseudoLocale(const resource_core::BaseMsgID& record) {
  return toldMessage(utf8(fl::i18n::MessageCatalog::get_message(record, fl::i18n::ZwLocale("id"))));
}

}  // namespace

void RecordingServices::showWarning(const resource_core::BaseMsgID& record) {
  warnings.push_back(inPseudoLocale(record));
}

void RecordingServices::noteError(const foundation::core::except::IUserException& error) {
  const auto* withId = dynamic_cast<const foundation::core::except::IMsgIDException*>(&error);
  errors.push_back(withId == nullptr ? std::string("no identifier") : withId->message().identifier());
}

host::ShellResult RecordingServices::runShellLine(const fl::ustring& line, bool calledFromHost) {
  shellLines.push_back(utf8(line));
  shellFlags.push_back(calledFromHost);
  return host::standalone::StandaloneServices().runShellLine(line, calledFromHost);
}

zxArray* RecordingServices::callFunction(const std::string& name, int outputCount, zxArray* outputs[],
                                         int inputCount, zxArray* inputs[]) {
  std::vector<std::string> call = {name};
  std::transform(inputs, inputs + inputCount, std::back_inserter(call), textOrMark);
  calls.push_back(std::move(call));
  if (name == "getfield") return Services::callFunction(name, outputCount, outputs, inputCount, inputs);
  return failure ? host::standalone::handedOver({host::standalone::HostValue::ExceptionObject{*failure}})
                 : nullptr;
}

std::string failureOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const foundation::core::except::IMsgIDException& failure) {
    return inPseudoLocale(failure.message());
  } catch (const std::exception& failure) {
    return failure.what();
  }
  return "no error";
}

}  // namespace zex_test
