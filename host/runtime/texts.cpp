#include <utility>

#include "Array.hpp"
#include "given_texts.hpp"
#include "texts/utf.hpp"

zxArray* zx::makeText(std::u16string text) {
  auto array = std::make_unique<zxArray>();
  array->kind = ZX_TEXT;
  array->rows = 1;
  array->columns = text.size();
  array->text = std::move(text);
  return registered(std::move(array));
}

zxArray* zxCreateString(const char* text) {
  return zx::makeText(host::fromUtf8(zx::presentText(text)));
}

zxArray* zxCreateString_UTF16(const zxUnit* text) {
  return zx::makeText(zx::presentText(text));
}

const char* zxReadText(const zxArray* array) {
  const zxArray& checked = zx::present(array);
  zx::requireKind(checked, ZX_TEXT);
  const auto held = zx::heldAgainstReaders();
  if (!checked.utf8) checked.utf8 = host::toUtf8(checked.text);
  return checked.utf8->c_str();
}

const zxUnit* zxReadText_UTF16(const zxArray* array) {
  const zxArray& checked = zx::present(array);
  zx::requireKind(checked, ZX_TEXT);
  return checked.text.c_str();
}
