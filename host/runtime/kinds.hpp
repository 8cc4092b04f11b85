#pragma once

#include <cstdint>

#include "Array.hpp"

namespace zx {

struct KindOfArray {
  zxKind kind;
  const char* name;  ///< for messages
  std::size_t size;  ///< bytes of an element; 0 where the elements are not in `elements`
};

constexpr KindOfArray kinds[] = {
    {ZX_REAL, "real", sizeof(double)},
    {ZX_COMPLEX, "complex", 2 * sizeof(double)},
    {ZX_INT8, "int8", sizeof(std::int8_t)},
    {ZX_INT16, "int16", sizeof(std::int16_t)},
    {ZX_INT32, "int32", sizeof(std::int32_t)},
    {ZX_INT64, "int64", sizeof(std::int64_t)},
    {ZX_UINT8, "uint8", sizeof(std::uint8_t)},
    {ZX_UINT16, "uint16", sizeof(std::uint16_t)},
    {ZX_UINT32, "uint32", sizeof(std::uint32_t)},
    {ZX_UINT64, "uint64", sizeof(std::uint64_t)},
    {ZX_LOGICAL, "logical", 1},
    {ZX_TEXT, "text", 0},
    {ZX_OTHER, "object", 0},
};

/// Fails for a number that is no kind.
const KindOfArray& kindNamed(zxKind kind);

}  // namespace zx
