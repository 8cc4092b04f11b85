#include <algorithm>
#include <cstring>
#include <limits>

#include "Call.hpp"
#include "zx/runtime.hpp"

namespace zx {

const KindOfArray& kindNamed(zxKind kind) {
  const auto* const found =
      std::find_if(std::begin(kinds), std::end(kinds), [=](const KindOfArray& row) { return row.kind == kind; });
  if (found == std::end(kinds)) zexFail("TESSEL:zx:NoSuchKind", "%d is no kind of array.", static_cast<int>(kind));
  return *found;
}

const zxArray& present(const zxArray* array) {
  if (array == nullptr) zexFail("TESSEL:zx:NoArray", "There is no array where one is needed.");
  return *array;
}

zxArray& present(zxArray* array) {
  return const_cast<zxArray&>(present(static_cast<const zxArray*>(array)));
}

std::unique_lock<std::mutex> heldAgainstReaders() {
  static std::mutex held;
  return std::unique_lock(held);
}

void requireKind(const zxArray& array, zxKind kind) {
  if (array.kind == kind) return;
  zexFail("TESSEL:zx:WrongKind", "An array of the kind %s is needed, not one of the kind %s.",
          kindNamed(kind).name, kindNamed(array.kind).name);
}

Elements allocate(std::size_t count, std::size_t size) {
  if (count > static_cast<std::size_t>(std::numeric_limits<std::ptrdiff_t>::max()) / size) {
    zexFail("TESSEL:zx:TooLarge", "An array of %zu elements is larger than the memory.", count);
  }
  if (count == 0) return nullptr;
  Elements elements(std::calloc(count, size));
  if (!elements) zexFail("TESSEL:zx:OutOfMemory", "There is not enough memory for %zu elements.", count);
  return elements;
}

zxArray* registered(std::unique_ptr<zxArray> array) {
  if (Call::current() != nullptr) Call::current()->add(array.get());
  return array.release();
}

zxArray* make(zxKind kind, std::int64_t rows, std::int64_t columns) {
  const std::size_t size = kindNamed(kind).size;
  if (size == 0)
    zexFail("TESSEL:zx:WrongKind", "An array of the kind %s is not made by size.", kindNamed(kind).name);
  if (rows < 0 || columns < 0) zexFail("TESSEL:zx:WrongSize", "A size is less than 0.");
  if (columns != 0 && rows > std::numeric_limits<std::int64_t>::max() / columns) {
    zexFail("TESSEL:zx:TooLarge", "An array of this size is larger than the memory.");
  }
  auto array = std::make_unique<zxArray>();
  array->kind = kind;
  array->rows = static_cast<std::size_t>(rows);
  array->columns = static_cast<std::size_t>(columns);
  array->elements = allocate(array->count(), size);
  return registered(std::move(array));
}

}  // namespace zx

zxArray* zxMake(zxKind kind, zxIndex rows, zxIndex columns) {
  return zx::make(kind, rows, columns);
}

zxArray* zxMakeReal(double value) {
  zxArray* const array = zx::make(ZX_REAL, 1, 1);
  *static_cast<double*>(array->elements.get()) = value;
  return array;
}

zxArray* zxCopy(const zxArray* source) {
  const zxArray& from = zx::present(source);
  if (from.kind == ZX_OTHER) zexFail("TESSEL:zx:WrongKind", "An object of the host cannot be copied.");
  auto array = std::make_unique<zxArray>();
  array->kind = from.kind;
  array->rows = from.rows;
  array->columns = from.columns;
  array->text = from.text;
  const std::size_t size = zx::kindNamed(from.kind).size;
  const auto held = zx::heldAgainstReaders();
  array->form = from.form;
  if (from.elements) {
    array->elements = zx::allocate(from.count(), size);
    std::memcpy(array->elements.get(), from.elements.get(), from.count() * size);
  }
  return zx::registered(std::move(array));
}

void zxDestroyArray(zxArray* array) {
  if (array == nullptr) return;
  const zx::Call* const call = zx::Call::current();
  if (call != nullptr && call->isInput(array)) {
    zexFail("TESSEL:zx:InputDestroyed", "An input belongs to the caller and cannot be destroyed.");
  }
  if (array->call != nullptr) array->call->drop(array);
  delete array;
}

zxKind zxKindOf(const zxArray* array) {
  return zx::present(array).kind;
}

int zxIsComplex(const zxArray* array) {
  return zx::present(array).kind == ZX_COMPLEX ? 1 : 0;
}

zxIndex zxRowsOf(const zxArray* array) {
  return static_cast<zxIndex>(zx::present(array).rows);
}

zxIndex zxColumnsOf(const zxArray* array) {
  return static_cast<zxIndex>(zx::present(array).columns);
}

zxIndex zxCountOf(const zxArray* array) {
  return static_cast<zxIndex>(zx::present(array).count());
}

zxArray* zxWrapObject(void* object, void (*destroy)(void*)) {
  auto wrapped = std::make_unique<zx::Wrapped>(object, destroy);
  auto array = std::make_unique<zxArray>();
  array->kind = ZX_OTHER;
  array->rows = array->columns = 1;
  array->wrapped = std::move(wrapped);
  return zx::registered(std::move(array));
}

void* zxWrappedObject(const zxArray* array) {
  return array == nullptr || !array->wrapped ? nullptr : array->wrapped->object;
}
