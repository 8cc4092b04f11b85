#pragma once

#include <optional>

#include "fl/filesystem/operations.hpp"
#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

/// The product while commands run. Where an interrupt ends them, a product that they wrote may be half a one, or
/// lack what commands behind the link do to it: it is removed with the object. A former one that they had not
/// touched yet stays.
class InterruptedProduct {
 public:
  /// The text of EXE, if there is one.
  explicit InterruptedProduct(const std::optional<ustring>& product);
  ~InterruptedProduct();
  InterruptedProduct(const InterruptedProduct&) = delete;
  InterruptedProduct& operator=(const InterruptedProduct&) = delete;

 private:
  ustring path_;
  fl::filesystem::file_stamp former_;
  int exceptionsBefore_;
};

}  // namespace zex_cmd
