#include "settings/core/preferences.hpp"

#include "host/Services.hpp"

fl::ustring settings::core::getPreferencesDirectoryUStr(bool create) {
  return host::services().preferencesFolder(create);
}
