#pragma once

#include <boost/shared_ptr.hpp>

#include "build/ZexBuildCommand.hpp"

namespace zex_cmd {

class CommandClassifier;
class ZexArgs;
class ZexCompilers;

/// The road from the selected document to the product. Construction is the build: it returns with the product on
/// disk or leaves by an exception, and nothing more is asked of the object. The environment of the process is
/// changed meanwhile, so two builds must not overlap.
class ZexBuilder {
 public:
  ZexBuilder(const boost::shared_ptr<ZexArgs>& args, const boost::shared_ptr<ZexCompilers>& compilers);

 private:
  void runCommands(const boost::shared_ptr<ZexOpt>& option);

  /// True when `current_` now holds a command that this request runs.
  bool prepareCommand(const ustring& text, const boost::shared_ptr<ZexOpt>& option,
                      const CommandClassifier& classifier);

  void executeCommand();
  void printCommand() const;

  /// Inspects the product of a link and, where the API version source does not agree with the sources, compiles
  /// that one again and repeats the link.
  void checkBuiltFile();
  void retryHeaderOrder() const;

  const boost::shared_ptr<ZexArgs>& args_;
  const boost::shared_ptr<ZexCompilers>& compilers_;
  bool linkSeen_ = false;
  ZexBuildCommand current_;
  ZexBuildCommand
      versionCompile_;  ///< the last good compile of the API version source, while products are checked
};

}  // namespace zex_cmd
