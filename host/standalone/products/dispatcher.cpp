#include "dispatcher/Tdispatcher.hpp"
#include "host/Services.hpp"

Tdispatcher* Tdispatcher::getDispatcher() {
  return host::services().dispatcher();
}

void Korvane::PathManagement::NotifyUpstreamPathEntriesOfPossibleSpecialSubfolderChanges(
    const fl::ustring& resourceName, EventManager& events) {
  events.upstreamPathEntriesMayHaveChanged(resourceName);
}
