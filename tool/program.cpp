#include "program.hpp"

#include <cstdio>
#include <exception>
#include <new>
#include <utility>

#include "cmd/ZexCmdFactory.hpp"
#include "command_line.hpp"
#include "environment.hpp"
#include "fl/filesystem/exceptions.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/i18n/MessageCatalog.hpp"
#include "fl/i18n/environment.hpp"
#include "fl/i18n/strings.hpp"
#include "foundation/core/except/IException.hpp"
#include "korvane/TException.hpp"
#include "standalone/Interrupted.hpp"
#include "standalone/StandaloneServices.hpp"
#include "standalone/shell/interrupts.hpp"

namespace tool {

namespace {

constexpr int failed = 1;
constexpr int failedInside = 2;
constexpr int killedBySignal = 128;  ///< and the signal's number, as a shell tells it

void showError(const std::string& line) {
  std::fflush(stdout);
  std::fputs((line + "\n").c_str(), stderr);
}

std::string withoutLineEnd(std::string text) {
  while (!text.empty() && text.back() == '\n') text.pop_back();
  return text;
}

int showWithId(const std::string& name, const std::string& text, const std::string& errorId) {
  showError(name + ": error: " + withoutLineEnd(text) + " [" + errorId + "]");
  return failed;
}

/// The words of a message, or its identifier and arguments where something fails on the way to the words.
std::string wordsOf(const resource_core::BaseMsgID& message) {
  using fl::i18n::MessageCatalog;
  using fl::i18n::ZwLocale;
  try {
    return fl::i18n::to_string(MessageCatalog::get_message(message, ZwLocale::global()));
  } catch (const std::exception&) {
    return fl::i18n::to_string(MessageCatalog::get_message(message, ZwLocale("id")));
  }
}

/// For what needs no identifier: no text of the library's.
int showPlain(const std::string& name, const std::exception& failure, int status) {
  showError(name + ": error: " + failure.what());
  return status;
}

int showInternalError(const std::string& name, const std::string& text) {
  showError(name + ": internal error: " + text);
  return failedInside;
}

/// Shows a failure in flight that is no interrupt.
int showFailure(const std::string& name) {
  try {
    throw;
  } catch (const Korvane::TException::HostError& failure) {
    return showWithId(name, fl::i18n::to_string(failure.text()), failure.error_id());
  } catch (const foundation::core::except::IMsgIDException& failure) {
    return showWithId(name, wordsOf(failure.message()), failure.error_id());
  } catch (const fl::filesystem::FsysExceptionBase& failure) {
    return showWithId(name, failure.what(), "TESSEL:zex:FileSystemException");
  } catch (const UsageError& failure) {
    return showPlain(name, failure, failed);
  } catch (const std::exception& failure) {
    return showInternalError(name, failure.what());
  } catch (...) {
    return showInternalError(name, "unknown failure");
  }
}

/// Shows the failure in flight and gives the exit status for it.
int showCaught(const std::string& name) {
  // A tool that an interrupt ended fails the command in its own way; that is not what the user has to hear.
  if (const int signal = host::standalone::pendingInterrupt(); signal != 0)
    return showPlain(name, host::standalone::Interrupted(signal), killedBySignal + signal);
  return showFailure(name);
}

std::vector<fl::ustring> argumentsOf(int count, char** values) {
  std::vector<fl::ustring> arguments = commandLineArguments(count, values);
  if (arguments.size() == 1 && arguments.front() == u"--help") arguments.front() = u"-help";
  return arguments;
}

/// A warning of a program's own.
class Warning : public resource_core::BaseMsgID {
 public:
  explicit Warning(fl::ustring text) : text_(std::move(text)) {}
  const std::string& component() const override { return component_; }
  const std::string& tag() const override { return tag_; }
  std::size_t argumentCount() const override { return 1; }
  fl::ustring argument(std::size_t) const override { return text_; }

 private:
  std::string component_ = "TESSEL:zex";
  std::string tag_ = "Warn";
  fl::ustring text_;
};

/// The library goes on with the usual folder then, and a user would look for the selections in vain.
void checkPreferences() {
  namespace fs = fl::filesystem;
  const fl::ustring named = fl::i18n::getenv("TESSEL_PREFDIR");
  if (named.empty() || fs::is_directory(fs::status(named))) return;
  host::services().showWarning(Warning(u"TESSEL_PREFDIR names no folder: '" + named +
                                       u"'. Make it, or the usual preferences folder is used."));
}

void answer(const std::string& name, const std::vector<fl::ustring>& arguments, const Action& action) {
  if (arguments.size() == 1 && arguments.front() == u"--version") {
    std::printf("%s %s\n", name.c_str(), libzexcmd_version);
  } else {
    action(arguments);
  }
}

int runGuarded(const std::string& name, int count, char** values, const Action& action) {
  try {
    try {
      prepareEnvironment();
      checkPreferences();
      answer(name, argumentsOf(count, values), action);
      return 0;
    } catch (...) {
      return showCaught(name);
    }
  } catch (...) {
    std::fputs("internal error: a failure could not be shown\n", stderr);
    return failedInside;
  }
}

}  // namespace

std::unique_ptr<zex_cmd::ZexCmdI> createCommand() {
  std::unique_ptr<zex_cmd::ZexCmdI> command(zex_cmd::ZexCmdFactory::createZex());
  if (!command) throw std::bad_alloc();
  return command;
}

int runProgram(const std::string& name, int count, char** values, const Action& action) {
  host::standalone::installInterruptHandlers();
  host::standalone::StandaloneServices services(name);
  host::installServices(&services);
  int status = runGuarded(name, count, values, action);
  host::installServices(nullptr);
  // A full disk or a closed pipe must not pass for success.
  if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
    showError(name + ": error: cannot write to standard output");
    if (status == 0) status = failed;
  }
  return status;
}

}  // namespace tool
