#pragma once

#include <string>

#include "fl/ustring.hpp"

namespace zex_cmd {

/// Name of a selected-options file, as in "zex_C++_glnxa64.xml". An empty client stands for a plain extension.
fl::ustring selectedName(const std::string& client, const fl::ustring& upperLanguage,
                         const std::string& architecture);

}  // namespace zex_cmd
