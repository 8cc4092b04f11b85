#pragma once

#include "compilers/ZexCompilers.hpp"

namespace zex_cmd {

/// The client of the command as a user knows it: its name, or "ZEX" for a plain extension.
ustring clientOrZex(const ZexArgs& args);

/// Writes the list of documents, with the three report texts of the virtual machine, as an XML file. Empties
/// `path`. Raises "TESSEL:zex:FileCannotOpen".
void writeCompilerList(ustring& path, const ZexOptList& list);

/// Prints which compiler is now in use and, for a plain extension, the notice on array dimensions.
void printConfigured(const ZexOpt& chosen, const ZexArgs& args);

/// Prints how to set up a compiler of another language.
void printClosingHint(const ZexArgs& args);

/// The lines with which a user picks another compiler: one for each, printed together behind a heading.
class Alternatives {
 public:
  explicit Alternatives(const ZexArgs& args);
  void add(const ZexOpt& opt);
  void print() const;

 private:
  const ZexArgs& args_;
  bool hot_;  ///< asked once, so that all lines are alike
  ustring lines_;
};

}  // namespace zex_cmd
