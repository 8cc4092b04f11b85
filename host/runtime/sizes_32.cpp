// The functions with sizes as -compatibleArrayDims sees them.
#define ZX_COMPAT_32
#include <limits>

#include "Array.hpp"

namespace {

zxIndex narrowed(std::size_t size) {
  if (size > static_cast<std::size_t>(std::numeric_limits<zxIndex>::max())) {
    zexFail("TESSEL:zx:TooLarge", "The size %zu does not go into 32 bits. Build without -compatibleArrayDims.",
            size);
  }
  return static_cast<zxIndex>(size);
}

}  // namespace

zxArray* zxMake(zxKind kind, zxIndex rows, zxIndex columns) {
  return zx::make(kind, rows, columns);
}

zxIndex zxRowsOf(const zxArray* array) {
  return narrowed(zx::present(array).rows);
}

zxIndex zxColumnsOf(const zxArray* array) {
  return narrowed(zx::present(array).columns);
}

zxIndex zxCountOf(const zxArray* array) {
  return narrowed(zx::present(array).count());
}

void zxSetImagData(zxArray* array, zxIndex first, zxIndex count, const double* values) {
  zx::setImaginary(zx::present(array), first, count, values);
}
