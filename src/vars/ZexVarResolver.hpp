#pragma once

#include <boost/shared_ptr.hpp>
#include <string>
#include <vector>

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

class ZexArgs;
class ZexCompilers;
class ZexOpt;

/// Which text of the arguments goes into which variable of a document, and through which formatter.
struct ArgumentVariableRow {
  std::string argumentKey;
  std::string targetAttribute;     ///< attribute of "config.Details" that names the variable
  std::string formatterAttribute;  ///< attribute of "config.Details" that holds the formatter, or empty
};

/// Fills a document's tree with the final values of one command. A document can be resolved once only.
class ZexVarResolver {
 public:
  ZexVarResolver(const boost::shared_ptr<ZexArgs>& args, const boost::shared_ptr<ZexCompilers>& compilers);

  /// Raises "TESSEL:zex:UnknownClient", "TESSEL:zex:ErrXMLAttr" and "TESSEL:zex:CircRef", and lets file system
  /// failures pass.
  void resolve(const boost::shared_ptr<ZexOpt>& opt);

  /// One argument in the form that the named formatter of "config.Details" gives it; quoted where needed.
  ustring formatArgument(const ZexOpt& opt, const ustring& part, const std::string& formatterAttribute) const;

 private:
  void applyClientOverrides(ZexOpt& opt) const;
  void deriveFileVariables(ZexOpt& opt) const;
  void applyArgumentVariables(ZexOpt& opt) const;
  void applyUserVariables(ZexOpt& opt) const;
  void applyOptimizationVariables(ZexOpt& opt) const;
  void expandAllVariables(ZexOpt& opt) const;
  void keepObjectInRemoveCommands(ZexOpt& opt) const;

  boost::shared_ptr<ZexArgs> args_;
  boost::shared_ptr<ZexCompilers> compilers_;  ///< kept alive with this object; no step reads it
  std::vector<ArgumentVariableRow> table_;
};

}  // namespace zex_cmd
