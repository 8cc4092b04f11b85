#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "zx/zxArray.hpp"

namespace zx {

struct KindOfArray {
  zxKind kind;
  const char* name;  ///< for messages, and on command lines
  std::size_t size;  ///< bytes of an element; 0 where there are no elements
};

inline constexpr KindOfArray kinds[] = {
    {ZX_REAL, "real", sizeof(double)},
    {ZX_COMPLEX, "complex", sizeof(zxComplex)},
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

/// An element of a logical array: a type of its own, since std::uint8_t is unsigned char as well.
enum class Logical : unsigned char {};

/// Calls `use` with std::type_identity of the elements' type; not for texts and objects, which have none.
template <class Use>
void withElementType(zxKind kind, Use use) {
  switch (kind) {
    case ZX_REAL:
      return use(std::type_identity<double>());
    case ZX_COMPLEX:
      return use(std::type_identity<zxComplex>());
    case ZX_INT8:
      return use(std::type_identity<std::int8_t>());
    case ZX_INT16:
      return use(std::type_identity<std::int16_t>());
    case ZX_INT32:
      return use(std::type_identity<std::int32_t>());
    case ZX_INT64:
      return use(std::type_identity<std::int64_t>());
    case ZX_UINT8:
      return use(std::type_identity<std::uint8_t>());
    case ZX_UINT16:
      return use(std::type_identity<std::uint16_t>());
    case ZX_UINT32:
      return use(std::type_identity<std::uint32_t>());
    case ZX_UINT64:
      return use(std::type_identity<std::uint64_t>());
    case ZX_LOGICAL:
      return use(std::type_identity<Logical>());
    case ZX_TEXT:
    case ZX_OTHER:
      return;
  }
}

}  // namespace zx
