#include "support/Documents.hpp"

#include <sstream>

namespace zex_test {

std::string Document::xml() const {
  std::ostringstream text;
  text << "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<config Name=\"" << name << "\" ShortName=\"" << shortName
       << "\" Manufacturer=\"" << manufacturer << "\" Version=\"1\" Language=\"" << language << "\" Priority=\""
       << priority << R"(" Location="$PLACE">
<Details CompilerDefines="$DEFINES" CompilerDefineFormatter="-D%s" IncludeFlags="$INCLUDES" DebugFlags="$DEBUGFLAGS"
  OptimizationFlags="$OPTFLAGS" LinkerLibraries="$USERLIBS" LinkerPathFormatter="-L%s" LinkerDebugFlags="$LINKDEBUGFLAGS"
  LinkerLibrarySwitchFormatter="-l%s" LinkerOptimizationFlags="$LINKOPTFLAGS" )"
       << details << R"(/>
<vars COMPILER="tool" LINKER="tool" COMPFLAGS="" DEFINES="" INCLUDES="" USERLIBS="" LINKLIBS="" OPTFLAGS="-O"
  DEBUGFLAGS="-g" LINKOPTFLAGS="" LINKDEBUGFLAGS="" OBJEXT=".o" LDEXT=".zexa64" CMDLINE100=")"
       << compileCommand << "\" CMDLINE200=\"" << linkCommand << "\" " << vars << "/>\n<env " << env
       << "/>\n<client>" << client << "</client>\n<locationFinder><PLACE><dirExists name=\""
       << (installed ? "." : "no such file") << "\" diagnostic=\"Install " << name
       << ".\"/></PLACE></locationFinder>\n";
  if (!release.empty()) text << "<TESSEL release=\"" << release << "\"/>";
  text << "</config>\n";
  return text.str();
}

Document compiler(const std::string& name, const std::string& priority, bool installed,
                  const std::string& language) {
  Document document;
  document.name = name;
  document.shortName = "short" + name;
  document.priority = priority;
  document.installed = installed;
  document.language = language;
  return document;
}

}  // namespace zex_test
