#include <algorithm>
#include <charconv>
#include <cstdio>
#include <optional>

#include "expected_values.hpp"
#include "fl/i18n/strings.hpp"
#include "korvane/TException.hpp"
#include "output.hpp"
#include "printed_values.hpp"
#include "product_check.hpp"
#include "program.hpp"
#include "standalone/products/LoadedProducts.hpp"
#include "standalone/shell/interrupts.hpp"
#include "values.hpp"
#include "zx/runtime.hpp"

namespace {

constexpr char usage[] =
    "usage: zexrun PRODUCT [VALUE...] [-nlhs N] [--json] [--expects VALUE...]\n"
    "       zexrun --check PRODUCT";

constexpr char help[] =
    "\n\nCalls the extension PRODUCT with the values and prints what it returns.\n\n"
    "VALUE    a number (3, -2.5e3, 1-2i), true or false, a matrix (\"[1 2; 3 4]\"),\n"
    "         a text (\"'abc'\"), or one of these as another kind (\"int8([1 2])\")\n"
    "-nlhs N  ask for N outputs; the default is 0, and a first one is shown if given\n"
    "--json   print the outputs for programs; what the extension prints goes to\n"
    "         standard error\n"
    "--expects VALUE\n"
    "         ask for one output more and fail unless it is VALUE; the first --expects\n"
    "         stands for the first output, and so on\n"
    "--tolerance T\n"
    "         how far a number may lie off the expected one, relative to numbers above 1\n"
    "--check  compare the interface records in PRODUCT, as zex does after a link; nothing\n"
    "         is loaded, so it may be a product for another system\n";

struct Request {
  fl::ustring product;
  std::vector<tool::Value> inputs;
  std::vector<tool::Value> expected;
  double tolerance = 0;
  int outputs = 0;
  bool json = false;
};

using Words = std::vector<fl::ustring>;

std::string textOf(const fl::ustring& word) {
  return fl::i18n::codecvt_ustring_to_string("UTF-8")(word);
}

/// The word behind a switch, to which `word` moves on.
const fl::ustring& wordBehind(Words::const_iterator& word, const Words& arguments) {
  const std::string name = textOf(*word);
  if (++word == arguments.end()) throw tool::UsageError(name + " needs a value behind it");
  return *word;
}

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

Request requestOf(const Words& arguments) {
  Request request;
  for (auto word = arguments.begin(); word != arguments.end(); ++word) {
    if (*word == u"--json") {
      request.json = true;
    } else if (*word == u"-nlhs") {
      request.outputs = countOf(wordBehind(word, arguments));
    } else if (*word == u"--expects") {
      request.expected.push_back(tool::parsedValue(textOf(wordBehind(word, arguments))));
    } else if (*word == u"--tolerance") {
      request.tolerance = tool::parsedTolerance(textOf(wordBehind(word, arguments)));
    } else if (request.product.empty()) {
      request.product = *word;
    } else {
      request.inputs.push_back(tool::parsedValue(textOf(*word)));
    }
  }
  if (request.product.empty()) throw tool::UsageError(usage);
  request.outputs = std::max(request.outputs, static_cast<int>(request.expected.size()));
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

void compareOutputs(const std::vector<tool::Value>& outputs, const Request& request) {
  for (std::size_t index = 0; index < request.expected.size(); ++index) {
    const zxArray* const expected = request.expected[index].get();
    if (tool::isAsExpected(outputs[index].get(), expected, request.tolerance)) continue;
    const std::string name = "ans" + std::to_string(index + 1);
    throw Korvane::TException::HostError(
        "TESSEL:zexrun:OutputDiffers", fl::i18n::to_ustring("Expected was " + tool::printed({{name, expected}})));
  }
}

void runExtension(const Words& arguments) {
  if (arguments.size() == 1 && (arguments.front() == u"-help" || arguments.front() == u"-h")) {
    std::printf("%s%s", usage, help);
    return;
  }
  if (arguments.size() == 2 && arguments.front() == u"--check") {
    tool::checkProduct(arguments.back());
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
  compareOutputs(outputs, request);
}

}  // namespace

int main(int count, char** values) {
  return tool::runProgram("zexrun", count, values, runExtension);
}
