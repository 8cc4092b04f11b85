#include <algorithm>

#include "kinds.hpp"

namespace {

const void* data(const zxArray* array, zxKind kind) {
  const zxArray& checked = zx::present(array);
  if (kind == ZX_COMPLEX || zx::kindNamed(kind).size == 0) {
    zexFail("TESSEL:zx:WrongKind", "The elements of the kind %s have functions of their own.",
            zx::kindNamed(kind).name);
  }
  zx::requireKind(checked, kind);
  return checked.elements.get();
}

template <class Number>
double first(const zxArray& array) {
  return static_cast<double>(*static_cast<const Number*>(array.elements.get()));
}

}  // namespace

const void* zxReadData(const zxArray* array, zxKind kind) {
  return data(array, kind);
}

void* zxEditData(zxArray* array, zxKind kind) {
  return const_cast<void*>(data(array, kind));
}

const double* zxReadReals(const zxArray* array) {
  return static_cast<const double*>(data(array, ZX_REAL));
}

double* zxEditReals(zxArray* array) {
  return static_cast<double*>(zxEditData(array, ZX_REAL));
}

double zxNumber(const zxArray* array) {
  const zxArray& checked = zx::present(array);
  if (checked.count() != 1) {
    zexFail("TESSEL:zx:NoNumber", "One number is needed, not %zu by %zu elements.", checked.rows, checked.columns);
  }
  switch (checked.kind) {
    case ZX_REAL:
      return first<double>(checked);
    case ZX_INT8:
      return first<std::int8_t>(checked);
    case ZX_INT16:
      return first<std::int16_t>(checked);
    case ZX_INT32:
      return first<std::int32_t>(checked);
    case ZX_INT64:
      return first<std::int64_t>(checked);
    case ZX_UINT8:
      return first<std::uint8_t>(checked);
    case ZX_UINT16:
      return first<std::uint16_t>(checked);
    case ZX_UINT32:
      return first<std::uint32_t>(checked);
    case ZX_UINT64:
      return first<std::uint64_t>(checked);
    case ZX_LOGICAL:
      return first<unsigned char>(checked);
    case ZX_COMPLEX:
    case ZX_TEXT:
    case ZX_OTHER:
      break;
  }
  zexFail("TESSEL:zx:NoNumber", "A real number is needed, not a value of the kind %s.",
          zx::kindNamed(checked.kind).name);
}
