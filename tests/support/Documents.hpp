#pragma once

#include <string>

namespace zex_test {

/// An option document for tests. Its compiler is the stand-in tool, so that whole builds run without a real one.
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

/// A document that differs from others in what a choice among compilers goes by. Its short name is "short" with
/// the name behind it.
Document compiler(const std::string& name, const std::string& priority, bool installed = true,
                  const std::string& language = "C");

}  // namespace zex_test
