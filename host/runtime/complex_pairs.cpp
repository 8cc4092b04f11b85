// Complex elements as pairs: what the header gives with -R2018a.
#define TESSEL_ZEXCMD_RELEASE R2018a
#include "Array.hpp"

namespace {

zxComplex* pairs(const zxArray& array) {
  return reinterpret_cast<zxComplex*>(zx::complexElements(array, zx::ComplexForm::pairs));
}

}  // namespace

const zxComplex* zxReadComplexes(const zxArray* array) {
  return pairs(zx::present(array));
}

zxComplex* zxEditComplexes(zxArray* array) {
  return pairs(zx::present(array));
}
