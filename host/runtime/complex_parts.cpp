// Complex elements as two arrays of parts: what the header gives without -R2018a.
#include "Array.hpp"

namespace {

double* imaginaryParts(const zxArray& array) {
  double* const parts = zx::complexElements(array, zx::ComplexForm::parts);
  return parts == nullptr ? nullptr : parts + array.count();
}

}  // namespace

const double* zxReadRealPart(const zxArray* array) {
  return zx::complexElements(zx::present(array), zx::ComplexForm::parts);
}

double* zxEditRealPart(zxArray* array) {
  return zx::complexElements(zx::present(array), zx::ComplexForm::parts);
}

const double* zxGetPi(const zxArray* array) {
  const zxArray& checked = zx::present(array);
  return checked.kind == ZX_REAL ? nullptr : imaginaryParts(checked);
}

void zxSetPi(zxArray* array, const double* values) {
  zxArray& checked = zx::present(array);
  zx::setImaginary(checked, 0, static_cast<std::int64_t>(checked.count()), values);
}

double* zxGetImagData(zxArray* array) {
  zxArray& checked = zx::present(array);
  zx::becomeParts(checked);
  return imaginaryParts(checked);
}

void zxSetImagData(zxArray* array, zxIndex first, zxIndex count, const double* values) {
  zx::setImaginary(zx::present(array), first, count, values);
}
