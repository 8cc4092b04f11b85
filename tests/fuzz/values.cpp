// Values of zexrun: whatever is read prints, in both forms.

#include "values.hpp"

#include "fuzz/target.hpp"
#include "printed_values.hpp"
#include "program.hpp"

namespace zex_fuzz {

void tryInput(std::string_view input) {
  try {
    const tool::Value value = tool::parsedValue(std::string(input.substr(0, input.find('\0'))));
    const tool::NamedValues named = {{"ans1", value.get()}};
    demand(tool::printed(named).starts_with("ans1: "), "a value prints its name");
    demand(tool::jsonOf(named).starts_with("[{\"name\":\"ans1\""), "a value prints as an object");
  } catch (const tool::UsageError&) {
    return;
  }
}

}  // namespace zex_fuzz
