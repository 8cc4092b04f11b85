#include "program.hpp"

namespace {

void runZex(const std::vector<fl::ustring>& arguments) {
  tool::createCommand()->run(arguments);
}

}  // namespace

int main(int count, char** values) {
  return tool::runProgram("zex", count, values, runZex);
}
