#pragma once

#include <boost/shared_ptr.hpp>
#include <string>

#include "compilers/ZexCompilers.hpp"

namespace zex_cmd {

/// The setup command: records which compiler is used for a language and shows the others. Construction is the
/// command. With a `kind` it serves a compiler query: documents are read and resolved, and nothing is printed or
/// written.
class ZexSetup {
 public:
  /// Raises the no-compiler errors, "TESSEL:zex:NotConfiguredToUse", "TESSEL:zex:SrcNotFound" and those of reading
  /// and writing documents.
  ZexSetup(boost::shared_ptr<ZexArgs> args, boost::shared_ptr<ZexCompilers> compilers, const std::string& kind);

 private:
  void setupFromArgument(const std::string& kind);
  boost::shared_ptr<ZexOpt> documentOfArgument();
  ustring targetDirectory() const;
  void reportCompilers(ZexOptList list, bool cOrCpp);

  /// Makes one document the configured compiler of its language. The caller's list keeps the document as it was.
  void configureCompiler(const boost::shared_ptr<ZexOpt>& opt, const ustring& directory);
  boost::shared_ptr<ZexOpt> writtenDocument(const boost::shared_ptr<ZexOpt>& opt);

  boost::shared_ptr<ZexArgs> args_;
  boost::shared_ptr<ZexCompilers> compilers_;
};

}  // namespace zex_cmd
