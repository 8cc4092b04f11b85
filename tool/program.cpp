#include "program.hpp"

#include <cstdio>
#include <exception>

#include "cmd/ZexCmdFactory.hpp"
#include "environment.hpp"
#include "fl/i18n/MessageCatalog.hpp"
#include "fl/i18n/strings.hpp"
#include "foundation/core/except/IException.hpp"
#include "korvane/TException.hpp"
#include "standalone/StandaloneServices.hpp"
#include "standalone/interrupts.hpp"

namespace tool {

namespace {

constexpr int failed = 1;
constexpr int failedInside = 2;

void showError(const std::string& line) {
  std::fflush(stdout);
  std::fputs((line + "\n").c_str(), stderr);
}

std::string withoutLineEnd(std::string text) {
  while (!text.empty() && text.back() == '\n') text.pop_back();
  return text;
}

int showText(const std::string& name, const fl::ustring& text, const std::string& errorId) {
  showError(name + ": error: " + withoutLineEnd(fl::i18n::to_string(text)) + " [" + errorId + "]");
  return failed;
}

int showFailure(const std::string& name, const foundation::core::except::IMsgIDException& failure) {
  const fl::ustring text = fl::i18n::MessageCatalog::get_message(failure.message(), fl::i18n::ZwLocale::global());
  return showText(name, text, failure.error_id());
}

int showUsage(const std::string& name, const UsageError& failure) {
  showError(name + ": error: " + failure.what());
  return failed;
}

int showInternalError(const std::string& name, const std::string& text) {
  showError(name + ": internal error: " + text);
  return failedInside;
}

std::vector<fl::ustring> argumentsOf(int count, char** values) {
  std::vector<fl::ustring> arguments;
  for (int index = 1; index < count; ++index) arguments.push_back(fl::i18n::to_ustring(values[index]));
  if (arguments.size() == 1 && arguments.front() == u"--help") arguments.front() = u"-help";
  return arguments;
}

int runGuarded(const std::string& name, const std::vector<fl::ustring>& arguments, const Action& action) {
  try {
    action(arguments);
  } catch (const Korvane::TException::HostError& failure) {
    return showText(name, failure.text(), failure.error_id());
  } catch (const foundation::core::except::IMsgIDException& failure) {
    return showFailure(name, failure);
  } catch (const UsageError& failure) {
    return showUsage(name, failure);
  } catch (const std::exception& failure) {
    return showInternalError(name, failure.what());
  } catch (...) {
    return showInternalError(name, "unknown failure");
  }
  return 0;
}

}  // namespace

int runProgram(const std::string& name, int count, char** values, const Action& action) {
  prepareEnvironment();
  host::standalone::installInterruptHandlers();
  host::standalone::StandaloneServices services(name);
  host::installServices(&services);

  const std::vector<fl::ustring> arguments = argumentsOf(count, values);
  int status = 0;
  if (arguments.size() == 1 && arguments.front() == u"--version") {
    std::printf("%s %s\n", name.c_str(), libzexcmd_version);
  } else {
    status = runGuarded(name, arguments, action);
  }
  host::installServices(nullptr);
  // A full disk or a closed pipe must not pass for success.
  if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
    showError(name + ": error: cannot write to standard output");
    if (status == 0) status = failed;
  }
  return status;
}

}  // namespace tool
