#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "support/platform.hpp"
#include "support/texts.hpp"

namespace zex_test {

/// A fresh folder that is the current one while the object lives, and is removed after. Holds a blank and a letter
/// outside ASCII in its path, so that every test meets them.
class Scratch {
 public:
  Scratch();
  ~Scratch();
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  const std::filesystem::path& folder() const { return folder_; }
  fl::ustring path(const std::string& name = {}) const;  ///< full path of a name below the folder
  /// The same, as tests write paths.
  std::string told(const std::string& name = {}) const { return zex_test::told(utf8(path(name))); }

  void write(const std::string& name, const std::string& content) const;  ///< makes parent folders too
  std::string read(const std::string& name) const;                        ///< each line ends in "\n"
  bool has(const std::string& name) const { return exists(symlink_status(folder_ / utf16(name))); }
  std::vector<std::string> names(const std::string& below = ".") const;  ///< sorted entries of a folder

 private:
  std::filesystem::path former_;
  std::filesystem::path folder_;
};

/// Sets an environment variable for the length of a scope; null unsets it.
class ScopedVariable {
 public:
  ScopedVariable(std::string name, const char* value) : name_(std::move(name)), former_(variable(name_)) {
    setVariable(name_, value);
  }
  ScopedVariable(std::string name, const std::filesystem::path& value)
      : ScopedVariable(std::move(name), utf8(value.u16string()).c_str()) {}
  ~ScopedVariable() { setVariable(name_, former_ ? former_->c_str() : nullptr); }
  ScopedVariable(const ScopedVariable&) = delete;
  ScopedVariable& operator=(const ScopedVariable&) = delete;

 private:
  std::string name_;
  std::optional<std::string> former_;
};

}  // namespace zex_test
