#include "cmd/ZexCmdFactory.hpp"

#include <new>

#include "cmd/Zex.hpp"

namespace zex_cmd {

ZexCmdI* ZexCmdFactory::createZex() {
  return new (std::nothrow) Zex;
}

}  // namespace zex_cmd

const char libzexcmd_version[] = ZEXCMD_VERSION;
const char libzexcmd_build_date[] = ZEXCMD_BUILD_DATE;
const char libzexcmd_relative_path[] = ZEXCMD_RELATIVE_PATH;
