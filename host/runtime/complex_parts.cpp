// Complex elements as two arrays of parts: what the header gives without -R2018a.
#include <algorithm>

#include "Array.hpp"

namespace zx {

namespace {

/// Moves 2 * count doubles into the other form.
void rearrange(const double* from, double* to, std::size_t count, ComplexForm form) {
  for (std::size_t index = 0; index < count; ++index) {
    if (form == ComplexForm::pairs) {
      to[2 * index] = from[index];
      to[2 * index + 1] = from[count + index];
    } else {
      to[index] = from[2 * index];
      to[count + index] = from[2 * index + 1];
    }
  }
}

void makeComplex(zxArray& array) {
  if (array.kind == ZX_COMPLEX) return;
  requireKind(array, ZX_REAL);
  Elements elements = allocate(array.count(), sizeof(zxComplex));
  const auto* const reals = static_cast<const double*>(array.elements.get());
  std::copy_n(reals, array.count(), static_cast<double*>(elements.get()));
  array.elements = std::move(elements);
  array.form = ComplexForm::parts;
  array.kind = ZX_COMPLEX;
}

double* imaginaryParts(const zxArray& array) {
  double* const parts = complexElements(array, ComplexForm::parts);
  return parts == nullptr ? nullptr : parts + array.count();
}

}  // namespace

double* complexElements(const zxArray& array, ComplexForm form) {
  requireKind(array, ZX_COMPLEX);
  if (array.form != form && array.elements) {
    Elements other = allocate(array.count(), sizeof(zxComplex));
    rearrange(static_cast<const double*>(array.elements.get()), static_cast<double*>(other.get()), array.count(),
              form);
    array.elements = std::move(other);
  }
  array.form = form;
  return static_cast<double*>(array.elements.get());
}

void setImaginary(zxArray& array, std::int64_t first, std::int64_t count, const double* values) {
  const auto limit = static_cast<std::int64_t>(array.count());
  if (first < 0 || count < 0 || first > limit || count > limit - first) {
    zexFail("TESSEL:zx:WrongSize", "The array has %zu elements, and %lld from index %lld on are no part of them.",
            array.count(), static_cast<long long>(count), static_cast<long long>(first));
  }
  makeComplex(array);
  if (count > 0) std::copy_n(values, count, imaginaryParts(array) + first);
}

}  // namespace zx

const double* zxReadRealPart(const zxArray* array) {
  return zx::complexElements(zx::present(array), zx::ComplexForm::parts);
}

double* zxEditRealPart(zxArray* array) {
  return zx::complexElements(zx::present(array), zx::ComplexForm::parts);
}

const double* zxGetPi(const zxArray* array) {
  const zxArray& checked = zx::present(array);
  return checked.kind == ZX_REAL ? nullptr : zx::imaginaryParts(checked);
}

void zxSetPi(zxArray* array, const double* values) {
  zxArray& checked = zx::present(array);
  zx::setImaginary(checked, 0, static_cast<std::int64_t>(checked.count()), values);
}

double* zxGetImagData(zxArray* array) {
  zxArray& checked = zx::present(array);
  zx::makeComplex(checked);
  return zx::imaginaryParts(checked);
}

void zxSetImagData(zxArray* array, zxIndex first, zxIndex count, const double* values) {
  zx::setImaginary(zx::present(array), first, count, values);
}
