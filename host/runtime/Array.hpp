#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "zex.h"
#include "zx/kinds.hpp"

namespace zx {

class Call;

struct Freed {
  void operator()(void* memory) const { std::free(memory); }
};

/// Elements of an array, zero at the start; empty for none.
using Elements = std::unique_ptr<void, Freed>;

/// How a complex array lays out its 2 * count doubles.
enum class ComplexForm { pairs, parts };

/// A host's object; see zx/runtime.hpp.
struct Wrapped {
  Wrapped(void* wrapped, void (*end)(void*)) : object(wrapped), destroy(end) {}
  ~Wrapped() { destroy(object); }
  Wrapped(const Wrapped&) = delete;
  Wrapped& operator=(const Wrapped&) = delete;

  void* object;
  void (*destroy)(void*);
};

}  // namespace zx

struct zxArray {
  zxKind kind = ZX_REAL;
  std::size_t rows = 0;
  std::size_t columns = 0;

  // Rearranged under readers of the other release: the content stays the same. See heldAgainstReaders.
  mutable zx::Elements elements;
  mutable zx::ComplexForm form = zx::ComplexForm::pairs;

  std::u16string text;
  mutable std::optional<std::string> utf8;  ///< made when first asked for
  std::unique_ptr<zx::Wrapped> wrapped;

  zx::Call* call = nullptr;  ///< the call that frees the array at its end

  std::size_t count() const { return rows * columns; }
};

namespace zx {

/// The array, or a failure where there is none.
const zxArray& present(const zxArray* array);
zxArray& present(zxArray* array);

/// Held while content is read that a reader on another thread may be replacing. One for all arrays: it is held for
/// long only where complex elements are rearranged, which is rare.
std::unique_lock<std::mutex> heldAgainstReaders();

/// Fails for a number that is no kind.
const KindOfArray& kindNamed(zxKind kind);

/// Fails where the array is of another kind than `kind`.
void requireKind(const zxArray& array, zxKind kind);

/// An array of zeros, of any kind with elements. Sizes may come from a signed type: they are checked.
zxArray* make(zxKind kind, std::int64_t rows, std::int64_t columns);

zxArray* makeText(std::u16string text);

/// Zeroed memory for `count` elements of `size` bytes; fails where it is too much.
Elements allocate(std::size_t count, std::size_t size);

/// Puts the elements of a complex array into a form and gives them.
double* complexElements(const zxArray& array, ComplexForm form);

/// Makes an array complex, in parts, and gives the elements that were replaced, if any.
Elements becomeParts(zxArray& array);

/// Copies imaginary parts in from an index on; the array becomes complex.
void setImaginary(zxArray& array, std::int64_t first, std::int64_t count, const double* values);

/// Gives a new array to the call that runs on this thread, and so to the caller.
zxArray* registered(std::unique_ptr<zxArray> array);

}  // namespace zx
