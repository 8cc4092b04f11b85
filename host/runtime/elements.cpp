#include <optional>
#include <type_traits>

#include "Array.hpp"

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
  std::optional<double> number;
  zx::withElementType(checked.kind, [&]<class Element>(std::type_identity<Element>) {
    if constexpr (!std::is_same_v<Element, zxComplex>)
      number = static_cast<double>(*static_cast<const Element*>(checked.elements.get()));
  });
  if (number) return *number;
  zexFail("TESSEL:zx:NoNumber", "A real number is needed, not a value of the kind %s.",
          zx::kindNamed(checked.kind).name);
}
