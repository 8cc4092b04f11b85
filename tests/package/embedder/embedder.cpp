#include <cmd/ZexCmdFactory.hpp>
#include <cmd/messages/Exception.hpp>
#include <cmd/messages/error_tags.hpp>
#include <cstdio>
#include <memory>
#include <string>

/// The failure of an unknown switch, by its very type.
using UnknownSwitch = foundation::core::except::Exception<TESSEL::zex::UnknownSwitch, std::exception, void>;

int main() {
  const std::unique_ptr<zex_cmd::ZexCmdI> zex(zex_cmd::ZexCmdFactory::createZex());
  std::printf("version %s, compilers %zu\n", libzexcmd_version,
              zex->queryCompilers("c", "installed", "glnxa64").size());
  zex->run({u"-silent", u"embedded.c"});
  try {
    zex->run({u"-bad"});
  } catch (const UnknownSwitch& failure) {
    std::printf("caught %s\n", failure.error_id().c_str());
    return failure.error_id() == "TESSEL:zex:UnknownSwitch" ? 0 : 1;
  }
  return 1;
}
