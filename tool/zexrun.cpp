#include <algorithm>
#include <charconv>
#include <cstdio>
#include <optional>

#include "fl/i18n/strings.hpp"
#include "korvane/TException.hpp"
#include "output.hpp"
#include "printed_values.hpp"
#include "program.hpp"
#include "standalone/products/LoadedProducts.hpp"
#include "standalone/shell/interrupts.hpp"
#include "values.hpp"
#include "zx/runtime.hpp"

namespace {

constexpr char usage[] = "usage: zexrun PRODUCT [VALUE...] [-nlhs N] [--json]";

constexpr char help[] =
    "\n\nCalls the extension PRODUCT with the values and prints what it returns.\n\n"
    "VALUE    a number (3, -2.5e3, 1-2i), true or false, a matrix (\"[1 2; 3 4]\"),\n"
    "         a text (\"'abc'\"), or one of these as another kind (\"int8([1 2])\")\n"
    "-nlhs N  ask for N outputs; the default is 0, and a first one is shown if given\n"
    "--json   print the outputs for programs; what the extension prints goes to\n"
    "         standard error\n";

struct Request {
  fl::ustring product;
  std::vector<tool::Value> inputs;
  int outputs = 0;
  bool json = false;
};

int countOf(const fl::ustring& text) {
  constexpr int mostOutputs = 1000;
  const std::string digits = fl::i18n::to_string(text);
  const char* const last = digits.data() + digits.size();
  int count = 0;
  const auto [end, error] = std::from_chars(digits.data(), last, count);
  if (error != std::errc() || end != last || count < 0 || count > mostOutputs || digits.front() == '-')
    throw tool::UsageError("'" + digits + "' is no number of outputs");
  return count;
}

Request requestOf(const std::vector<fl::ustring>& arguments) {
  Request request;
  for (auto word = arguments.begin(); word != arguments.end(); ++word) {
    if (*word == u"--json") {
      request.json = true;
    } else if (*word == u"-nlhs") {
      if (++word == arguments.end()) throw tool::UsageError("-nlhs needs a number behind it");
      request.outputs = countOf(*word);
    } else if (request.product.empty()) {
      request.product = *word;
    } else {
      request.inputs.push_back(tool::parsedValue(fl::i18n::codecvt_ustring_to_string("UTF-8")(*word)));
    }
  }
  if (request.product.empty()) throw tool::UsageError(usage);
  return request;
}

void writeOfExtension(const char* text, std::size_t length) {
  const std::string output = tool::outputText({text, length});
  std::fwrite(output.data(), 1, output.size(), stdout);
}

std::vector<tool::Value> called(host::standalone::LoadedProduct& product, const Request& request) {
  std::vector<const zxArray*> inputs;
  for (const tool::Value& input : request.inputs) inputs.push_back(input.get());
  std::vector<zxArray*> places(static_cast<std::size_t>(std::max(request.outputs, 1)));
  product.call(request.outputs, places.data(), static_cast<int>(inputs.size()), inputs.data());
  return {places.begin(), places.end()};
}

tool::NamedValues namedOutputs(const std::vector<tool::Value>& outputs, const Request& request) {
  tool::NamedValues named;
  for (std::size_t index = 0; index < outputs.size(); ++index) {
    const std::string number = std::to_string(index + 1);
    if (outputs[index]) {
      named.emplace_back("ans" + number, outputs[index].get());
    } else if (static_cast<int>(index) < request.outputs) {
      throw Korvane::TException::HostError(
          "TESSEL:zexrun:OutputMissing",
          fl::i18n::to_ustring("The extension gave no output " + number + " of the " +
                               std::to_string(request.outputs) + " that were asked for."));
    }
  }
  return named;
}

void runExtension(const std::vector<fl::ustring>& arguments) {
  if (arguments.size() == 1 && (arguments.front() == u"-help" || arguments.front() == u"-h")) {
    std::printf("%s%s", usage, help);
    return;
  }
  const Request request = requestOf(arguments);
  std::optional<tool::KeptOutput> kept;
  if (request.json) kept.emplace();
  // An extension does not look for a noted interrupt.
  host::standalone::letInterruptsEndTheProgram();
  zxSetWriter(writeOfExtension);
  host::standalone::LoadedProducts products;
  const std::vector<tool::Value> outputs = called(products.load(request.product), request);
  const tool::NamedValues named = namedOutputs(outputs, request);
  if (!kept) {
    std::fputs(tool::outputText(tool::printed(named)).c_str(), stdout);
  } else if (!kept->write(tool::jsonOf(named))) {
    throw Korvane::TException::HostError("TESSEL:zexrun:OutputNotWritten", u"Cannot write to standard output.");
  }
}

}  // namespace

int main(int count, char** values) {
  return tool::runProgram("zexrun", count, values, runExtension);
}
