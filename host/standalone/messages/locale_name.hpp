#pragma once

#include <string>

namespace host::standalone {

/// The locale that the environment asks messages to be in, such as "de_CH": without encoding and modifier, and
/// "en" where nothing is asked for.
std::string localeOfEnvironment();

}  // namespace host::standalone
