#include <atomic>

#include "host/Services.hpp"
#include "standalone/StandaloneServices.hpp"

namespace host {

namespace {

std::atomic<Services*> installed = nullptr;

/// Never destroyed: records in its store are deleted by code of libraries that may be gone when the process ends.
Services& standaloneServices() {
  static Services* const instance = std::make_unique<standalone::StandaloneServices>().release();
  return *instance;
}

}  // namespace

Services& services() {
  Services* const chosen = installed;
  return chosen == nullptr ? standaloneServices() : *chosen;
}

Services* installServices(Services* services) {
  return installed.exchange(services);
}

}  // namespace host
