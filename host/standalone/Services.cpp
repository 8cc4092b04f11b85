#include "host/Services.hpp"

#include <atomic>

#include "standalone/StandaloneServices.hpp"
#include "standalone/usm_Store.hpp"

namespace host {

namespace {

std::atomic<Services*> installed = nullptr;

/// Never destroyed: records in its store are deleted by code of libraries that may be gone when the process ends.
Services& standaloneServices() {
  static Services* const instance = std::make_unique<standalone::StandaloneServices>().release();
  return *instance;
}

}  // namespace

Services::Services() : store_(std::make_unique<foundation::usm::Store>()) {}

Services::~Services() = default;

Services& services() {
  Services* const chosen = installed;
  return chosen == nullptr ? standaloneServices() : *chosen;
}

Services* installServices(Services* services) {
  return installed.exchange(services);
}

}  // namespace host
