#include "host/Services.hpp"

#include "standalone/KeyedStore.hpp"
#include "standalone/calls/HostCall.hpp"
#include "standalone/calls/getfield.hpp"

namespace host {

Services::Services() : store_(std::make_unique<foundation::usm::KeyedStore>()) {}

Services::~Services() = default;

zxArray* Services::callFunction(const std::string& name, int outputCount, zxArray* outputs[], int inputCount,
                                zxArray* inputs[]) {
  const auto function = name == "getfield" ? standalone::getfield : nullptr;
  return standalone::callTrapped(*this, name, function,
                                 {{inputs, inputs + inputCount}, {outputs, outputs + outputCount}});
}

}  // namespace host
