#include "platform/RegistryReader.hpp"

namespace zex_cmd {

std::optional<ustring> readRegistry(RegistryRoot /*root*/, const ustring& /*keyPath*/,
                                    const ustring& /*valueName*/) {
  return std::nullopt;
}

}  // namespace zex_cmd
