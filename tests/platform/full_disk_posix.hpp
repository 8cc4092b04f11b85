#pragma once

#include <sys/resource.h>

#include <csignal>

namespace zex_test {

/// Acts where no file can grow, as on a disk that is full.
template <class Action>
auto onFullDisk(Action&& action) {
  rlimit former{};
  getrlimit(RLIMIT_FSIZE, &former);
  const auto formerHandler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit tight{100, former.rlim_max};
  setrlimit(RLIMIT_FSIZE, &tight);
  const auto result = action();
  setrlimit(RLIMIT_FSIZE, &former);
  std::signal(SIGXFSZ, formerHandler);
  return result;
}

}  // namespace zex_test
