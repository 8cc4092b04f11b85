#include "standalone/ada/ada_builder.hpp"
#include "standalone/calls/HostCall.hpp"

namespace host::standalone {

void buildAda(Services& /*services*/, const std::vector<fl::ustring>& /*arguments*/) {
  throw HostFunctionFailure("TESSEL:host:AdaUnavailable", u"Ada packages cannot be built on Windows yet.");
}

}  // namespace host::standalone
