#pragma once

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "cmd/ZexCmdI.hpp"
#include "fl/ustring.hpp"

namespace tool {

/// What a program does with its arguments.
using Action = std::function<void(const std::vector<fl::ustring>&)>;

/// A command line that a program itself refuses.
struct UsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// The library's command object; raises std::bad_alloc where there is no memory for it.
std::unique_ptr<zex_cmd::ZexCmdI> createCommand();

/// Runs a program: settles the environment and the signals, answers a sole `--version`, turns a sole `--help` into
/// the library's `-help`, shows failures on standard error and gives the exit status: 0, 1 for a failure that
/// is the user's to mend, 128 + n after an interrupt by signal n, 2 for any other. Everything is caught, so that
/// unwinding cleans up on every way out.
int runProgram(const std::string& name, int count, char** values, const Action& action);

}  // namespace tool
