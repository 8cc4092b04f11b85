#pragma once

#include <array>
#include <string_view>

namespace zex_cmd {

constexpr std::array<std::string_view, 4> architectureNames{"glnxa64", "maci64", "win32", "win64"};
constexpr std::array<std::string_view, 3> clientNames{"ENGINE", "ZBUILD", "ZBUILD_COM"};
constexpr std::array<std::string_view, 4> languageNames{"C", "C++", "CUDA", "FORTRAN"};

}  // namespace zex_cmd
