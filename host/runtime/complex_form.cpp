// Complex elements in whichever form is asked for; the functions of both releases rest on this.
#include <algorithm>
#include <cstring>
#include <utility>

#include "Array.hpp"

namespace zx {

namespace {

/// The elements of a complex array in the other form than the one that they have.
Elements rearranged(const zxArray& array) {
  const std::size_t count = array.count();
  Elements other = allocate(count, sizeof(zxComplex));
  const auto* const from = static_cast<const double*>(array.elements.get());
  auto* const to = static_cast<double*>(other.get());
  for (std::size_t index = 0; index < count; ++index) {
    if (array.form == ComplexForm::parts) {
      to[2 * index] = from[index];
      to[2 * index + 1] = from[count + index];
    } else {
      to[index] = from[2 * index];
      to[count + index] = from[2 * index + 1];
    }
  }
  return other;
}

Elements withImaginaryParts(const zxArray& array) {
  Elements elements = allocate(array.count(), sizeof(zxComplex));
  std::copy_n(static_cast<const double*>(array.elements.get()), array.count(),
              static_cast<double*>(elements.get()));
  return elements;
}

}  // namespace

double* complexElements(const zxArray& array, ComplexForm form) {
  requireKind(array, ZX_COMPLEX);
  const auto held = heldAgainstReaders();
  if (array.form != form && array.elements) array.elements = rearranged(array);
  array.form = form;
  return static_cast<double*>(array.elements.get());
}

Elements becomeParts(zxArray& array) {
  if (array.kind != ZX_COMPLEX) requireKind(array, ZX_REAL);
  const auto held = heldAgainstReaders();
  Elements replaced;
  if (array.kind == ZX_REAL) {
    replaced = std::exchange(array.elements, withImaginaryParts(array));
  } else if (array.form != ComplexForm::parts && array.elements) {
    replaced = std::exchange(array.elements, rearranged(array));
  }
  array.form = ComplexForm::parts;
  array.kind = ZX_COMPLEX;
  return replaced;
}

void setImaginary(zxArray& array, std::int64_t first, std::int64_t count, const double* values) {
  const auto limit = static_cast<std::int64_t>(array.count());
  if (first < 0 || count < 0 || first > limit || count > limit - first) {
    zexFail("TESSEL:zx:WrongSize", "The array has %zu elements, and %lld from index %lld on are no part of them.",
            array.count(), static_cast<long long>(count), static_cast<long long>(first));
  }
  if (count > 0 && values == nullptr) zexFail("TESSEL:zx:NoValues", "There are no values where some are needed.");
  // The values may be elements of the array itself: what is replaced lives until they are copied.
  const Elements replaced = becomeParts(array);
  if (count == 0) return;
  auto* const parts = static_cast<double*>(array.elements.get());
  std::memmove(parts + limit + first, values, static_cast<std::size_t>(count) * sizeof(double));
}

}  // namespace zx
