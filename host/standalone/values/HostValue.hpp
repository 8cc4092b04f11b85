#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <variant>

#include "fl/ustring.hpp"
#include "host/visibility.hpp"
#include "zx/zxArray.hpp"

namespace host::standalone {

/// A value as the functions of the host see it. It does not change once it is made, so fields can be shared.
struct HostValue {
  using Fields = std::map<std::string, std::shared_ptr<const HostValue>>;

  struct CharacterVector {
    fl::ustring text;
  };
  struct StringScalar {
    std::optional<fl::ustring> text;  ///< nothing: the missing string
  };
  struct ExceptionObject {
    Fields fields;
  };

  std::variant<CharacterVector, StringScalar, ExceptionObject> content;
};

/// An array with the value, for a caller who ends it with `zxDestroyArray`. Character vectors are texts of the
/// runtime, which knows neither of the others: it wraps them.
ZEXHOST_API zxArray* handedOver(HostValue value);

/// What `handedOver` wrapped; null for any other array, or none.
const HostValue* wrappedValue(const zxArray* array);

}  // namespace host::standalone
