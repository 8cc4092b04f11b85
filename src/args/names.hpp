#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace zex_cmd {

constexpr std::array<std::string_view, 4> architectureNames{"glnxa64", "maci64", "win32", "win64"};
constexpr std::array<std::string_view, 3> clientNames{"ENGINE", "ZBUILD", "ZBUILD_COM"};
constexpr std::array<std::string_view, 4> languageNames{"C", "C++", "CUDA", "FORTRAN"};

/// Whether a list holds a name, case included.
template <class Names>
bool holds(const Names& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

}  // namespace zex_cmd
