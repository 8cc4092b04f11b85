#pragma once

#include <string>

namespace zex_test {

/// An option document for tests. Its compiler is a shell script below the scratch folder, so that whole builds run
/// without a real one.
struct Document {
  std::string name = "Fake C";
  std::string shortName = "fake";
  std::string language = "C";
  std::string priority = "B";
  std::string manufacturer = "GNU";
  bool installed = true;  ///< false: the finder looks for a file that is not there
  std::string release;    ///< stamp, or empty for none
  std::string vars;       ///< further attributes of vars
  std::string details;    ///< further attributes of Details
  std::string env;        ///< attributes of env
  std::string client;     ///< elements of client
  std::string compileCommand = "$COMPILER $DEFINES $INCLUDES $COMPFLAGS $OPTIM -c $SRC -o $OBJ";
  std::string linkCommand = "$LINKER -o $EXE $OBJS $USERLIBS $LINKLIBS";

  std::string xml() const;
};

/// A tool that stands in for a compiler and linker. It appends its arguments to the file "tool.log" in the current
/// folder and writes the file behind "-o"; what it does beside that is told by words in the source files: "FAIL"
/// makes it fail with an error text, "SILENT" fail without one, "WARN" print a warning.
std::string fakeToolScript();

}  // namespace zex_test
