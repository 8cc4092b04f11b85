// The stand-in tool; support/FakeTool.hpp tells what it does.
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "command_line.hpp"
#include "support/texts.hpp"

namespace {

using Words = std::vector<std::string>;

std::string contentOf(const std::string& name) {
  std::ifstream stream(std::filesystem::path(zex_test::utf16(name)), std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// Parts of a response file: between blanks, with double quotes around what holds some.
Words partsOf(const std::string& text) {
  std::istringstream stream(text);
  Words parts;
  for (std::string part; stream >> std::quoted(part, '"', '\0');) parts.push_back(part);
  return parts;
}

std::string behind(const Words& words, const char* mark) {
  const auto found = std::find(words.begin(), words.end(), mark);
  return found == words.end() || found + 1 == words.end() ? std::string() : found[1];
}

int compileOrLink(const Words& words) {
  const std::string source = contentOf(behind(words, "-c"));
  const bool warns = source.find("WARN") != std::string::npos, fails = source.find("FAIL") != std::string::npos;
  if (source.find("SILENT") != std::string::npos) return 3;
  if (warns || fails) {
    std::cerr << (fails ? "bad source\n" : "careful\n");
    std::cout << (fails ? "out\n" : "detail\n");
  }
  const std::filesystem::path product = zex_test::utf16(behind(words, "-o"));
  return !fails && std::ofstream(product) << "made\n" ? 0 : 1;
}

}  // namespace

int main(int count, char** values) {
  Words words;
  for (const fl::ustring& argument : tool::commandLineArguments(count, values))
    words.push_back(zex_test::utf8(argument));
  const std::string first = words.empty() ? "" : words.front();
  if (first == "--version" || first == "-dumpversion") {
    std::cout << contentOf("tool.version");
    return 0;
  }
  std::ofstream log("tool.log", std::ios::binary | std::ios::app);
  for (const std::string& word : words) log << (&word == &words.front() ? "" : " ") << word;
  log << std::endl;
  if (first == "--exit") return std::stoi(words.at(1));
  if (first == "--wait") {
    std::ofstream("waiting");
    std::this_thread::sleep_for(std::chrono::minutes(1));
  }
  if (first != "--say") return compileOrLink(first.starts_with('@') ? partsOf(contentOf(first.substr(1))) : words);
  for (std::size_t index = 1; index < words.size(); ++index)
    std::cout << fl::i18n::to_string(zex_test::utf16(words[index])) << '\n';
  return 0;
}
