#include "standalone/products/version_records.hpp"

#include <algorithm>
#include <charconv>
#include <map>

namespace host::standalone {

namespace {

constexpr int currentForm = 1;
constexpr std::size_t longestRelease = 32;

constexpr std::string_view ofReleases = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_.";

using Words = std::map<std::string_view, std::string_view>;

/// Strict, for it becomes part of a command.
bool isRelease(std::string_view text) {
  return !text.empty() && text.size() <= longestRelease &&
         text.find_first_not_of(ofReleases) == std::string_view::npos;
}

bool isVisible(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c > ' ' && c <= '~'; });
}

/// The words "name=value" between blanks; nothing where one of them is of another shape or stands there twice.
std::optional<Words> wordsOf(std::string_view text) {
  Words words;
  while (!text.empty()) {
    const std::string_view word = text.substr(0, text.find(' '));
    text.remove_prefix(std::min(word.size() + 1, text.size()));
    if (word.empty()) continue;
    const std::size_t equals = word.find('=');
    if (equals == std::string_view::npos) return std::nullopt;
    const std::string_view name = word.substr(0, equals), value = word.substr(equals + 1);
    if (!isVisible(name) || !isVisible(value)) return std::nullopt;
    if (!words.emplace(name, value).second) return std::nullopt;
  }
  if (words.empty()) return std::nullopt;
  return words;
}

std::string_view valueOf(const Words& words, std::string_view name) {
  const auto found = words.find(name);
  return found == words.end() ? std::string_view() : found->second;
}

/// The first records told no form.
std::optional<int> formOf(const Words& words) {
  const std::string_view value = words.contains("form") ? valueOf(words, "form") : "0";
  int form = 0;
  const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), form);
  if (error != std::errc{} || end != value.data() + value.size() || form < 0) return std::nullopt;
  return form;
}

std::optional<VersionRecord::Writer> writerOf(const Words& words) {
  const std::string_view kind = valueOf(words, "kind");
  if (kind == "source") return VersionRecord::Writer::Source;
  if (kind == "driver") return VersionRecord::Writer::Driver;
  return std::nullopt;
}

std::optional<Interface> interfaceOf(const Words& words) {
  const std::string_view release = valueOf(words, "release"), dims = valueOf(words, "dims");
  if (!isRelease(release) || (dims != "32" && dims != "64")) return std::nullopt;
  return Interface{std::string(release), std::string(dims)};
}

}  // namespace

std::optional<VersionRecord> versionRecordAt(std::string_view bytes) {
  const std::size_t end = bytes.substr(0, longestRecord).find(';');
  if (end == std::string_view::npos) return std::nullopt;
  const std::string_view text = bytes.substr(recordMarker.size(), end - recordMarker.size());

  const auto words = wordsOf(text);
  if (!words) return std::nullopt;
  const auto form = formOf(*words);
  if (!form || *form > currentForm) return std::nullopt;
  if (*form < currentForm) return VersionRecord{std::string(text), true};

  const auto writer = writerOf(*words);
  const auto builtFor = interfaceOf(*words);
  if (!writer || !builtFor) return std::nullopt;
  return VersionRecord{std::string(text), false, *writer, *builtFor};
}

}  // namespace host::standalone
