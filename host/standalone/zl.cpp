#include "standalone/zl.hpp"

#include <vector>

#include "standalone/ada/ada_builder.hpp"

namespace host::standalone {

namespace {

struct Tool {
  const char16_t* name;
  void (*run)(Services&, const std::vector<fl::ustring>&);
};

constexpr Tool tools[] = {
    {u"build_ada_sfcn_using_gnat", buildAda},
};

}  // namespace

void zl(Services& services, const HostCall& call) {
  const fl::ustring name = call.textAt(0);
  // The second argument stands for the tool's own name and is empty.
  std::vector<fl::ustring> arguments;
  for (std::size_t index = 2; index < call.inputs.size(); ++index) arguments.push_back(call.textAt(index));
  for (const Tool& tool : tools) {
    if (tool.name == name) return tool.run(services, arguments);
  }
  refuseUnknownFunction(u"zl " + name);
}

}  // namespace host::standalone
