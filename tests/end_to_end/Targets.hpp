#pragma once

#include "end_to_end/EndToEnd.hpp"

namespace end_to_end {

/// What products are built for on this system. Lines of the shell find the switch as "$FOR" and the extension of
/// objects as "$OBJ".
struct Target {
  std::string name;
  std::string option;
  std::string product;  ///< extensions
  std::string object;
  std::string library;
  std::string program;

  bool isWindows() const { return !option.empty(); }
};
extern const Target forThisSystem;
extern const Target forWindows;

/// Builds for a target, skipped where its compilers are not installed. Products for Windows are called under Wine.
class TargetTest : public EndToEnd {
 protected:
  void use(const Target& which);

  /// Whether products can be called here, and whether those can that call the library of the tree.
  bool canCall() const;
  bool canCallWithTree() const;

  /// What the entry point of a product of the current folder stores or throws.
  std::string answer(const std::string& product) const;

  /// Runs the target's program that calls a product.
  Outcome zexrun(const std::string& arguments) const;

  /// The sorted names in the headers of a product for Windows, with a blank behind each.
  std::string exportsOf(const std::string& product) const;
  std::string librariesOf(const std::string& product) const;

  Target target;

 private:
  Outcome underWine(const std::string& program, const std::string& arguments) const;
};

/// One story for each target.
class EachTarget : public TargetTest, public testing::WithParamInterface<Target> {
 protected:
  void SetUp() override { use(GetParam()); }
};

/// Whether arguments name a CUDA source and nvcc, which alone of the compilers may be missing, is not there.
bool needsMissingTool(const std::string& arguments);

}  // namespace end_to_end
