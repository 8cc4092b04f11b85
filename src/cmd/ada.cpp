#include "cmd/ada.hpp"

#include <algorithm>
#include <optional>
#include <vector>

#include "cmd/messages/raise.hpp"
#include "fl/i18n/strings.hpp"
#include "korvane/String.hpp"
#include "korvane/TException.hpp"
#include "zx/host_calls.hpp"

namespace zex_cmd {

namespace {

/// Values of the host that go away together.
class HostValues {
 public:
  HostValues() = default;
  ~HostValues() { std::for_each(values_.begin(), values_.end(), zxDestroyArray); }
  HostValues(const HostValues&) = delete;
  HostValues& operator=(const HostValues&) = delete;

  void add(zxArray* value) { values_.push_back(value); }
  int count() const { return static_cast<int>(values_.size()); }
  zxArray** data() { return values_.data(); }

 private:
  std::vector<zxArray*> values_;
};

ustring textOf(const zxArray* value) {
  if (!Korvane::String::isString(value)) throwDirectly(msg::MustBeStringScalarOrCharacterVector());
  const std::optional<ustring> text = Korvane::String::getString(value);
  if (!text) throwDirectly(msg::MissingNotSupported());
  return *text;
}

/// A field of the host's exception object; empty where the host gives none.
ustring fieldOf(zxArray* object, zxArray* name) {
  zxArray* inputs[] = {object, name};
  zxArray* output = nullptr;
  zexCallTESSEL_800(1, &output, 2, inputs, "getfield");
  if (output == nullptr) return {};
  HostValues owned;
  owned.add(output);
  return textOf(output);
}

[[noreturn]] void throwHostError(const ustring& identifier, const ustring& text) {
  using Korvane::TException::TExceptionEnvelope;
  const TExceptionEnvelope made(fl::i18n::to_string(identifier), text, nullptr, true);
  TExceptionEnvelope(made, nullptr, false).DoThrow();
}

zxArray* callBuilder(const std::vector<ustring>& arguments) {
  std::vector<ustring> list = {u"build_ada_sfcn_using_gnat", u""};
  list.insert(list.end(), arguments.begin(), arguments.end());
  HostValues inputs;
  for (const ustring& entry : list) inputs.add(zxCreateString_UTF16(entry.c_str()));
  return zexCallTESSELWithTrap_800(0, nullptr, inputs.count(), inputs.data(), "zl");
}

}  // namespace

void runAdaRoute(const std::vector<ustring>& arguments) {
  zxArray* failure = callBuilder(arguments);
  if (failure == nullptr) return;

  HostValues owned;
  owned.add(failure);
  zxArray* messageName = zxCreateString("message");
  owned.add(messageName);
  const ustring text = fieldOf(failure, messageName);
  // The second name is deliberately left to the host, unlike the first.
  const ustring identifier = fieldOf(failure, zxCreateString("identifier"));
  if (!text.empty() && !identifier.empty()) throwHostError(identifier, text);
}

}  // namespace zex_cmd
