#include "cmd/ZexCmdFactory.hpp"
#include "program.hpp"

namespace {

void runZex(const std::vector<fl::ustring>& arguments) {
  const std::unique_ptr<zex_cmd::ZexCmdI> zex(zex_cmd::ZexCmdFactory::createZex());
  if (!zex) throw std::bad_alloc();
  zex->run(arguments);
}

}  // namespace

int main(int count, char** values) {
  return tool::runProgram("zex", count, values, runZex);
}
