#include "support/Documents.hpp"

namespace zex_test {

std::string Document::xml() const {
  const std::string finder = installed ? "." : "no such file";
  const std::string stamp = release.empty() ? "" : "<TESSEL release=\"" + release + "\"/>";
  return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
         "<config Name=\"" +
         name + "\" ShortName=\"" + shortName + "\" Manufacturer=\"" + manufacturer +
         "\" Version=\"1\" Language=\"" + language + "\" Priority=\"" + priority +
         "\" Location=\"$PLACE\">\n"
         "  <Details CompilerDefines=\"$DEFINES\" CompilerDefineFormatter=\"-D%s\" IncludeFlags=\"$INCLUDES\""
         " OptimizationFlags=\"$OPTFLAGS\" DebugFlags=\"$DEBUGFLAGS\" LinkerLibraries=\"$USERLIBS\""
         " LinkerPathFormatter=\"-L%s\" LinkerLibrarySwitchFormatter=\"-l%s\""
         " LinkerOptimizationFlags=\"$LINKOPTFLAGS\" LinkerDebugFlags=\"$LINKDEBUGFLAGS\" " +
         details +
         "/>\n"
         "  <vars COMPILER=\"tool\" LINKER=\"tool\" COMPFLAGS=\"\" DEFINES=\"\" INCLUDES=\"\""
         " USERLIBS=\"\" LINKLIBS=\"\" OPTFLAGS=\"-O\" DEBUGFLAGS=\"-g\" LINKOPTFLAGS=\"\" LINKDEBUGFLAGS=\"\""
         " OBJEXT=\".o\" LDEXT=\".zexa64\" CMDLINE100=\"" +
         compileCommand + "\" CMDLINE200=\"" + linkCommand + "\" " + vars +
         "/>\n"
         "  <env " +
         env +
         "/>\n"
         "  <client>" +
         client +
         "</client>\n"
         "  <locationFinder><PLACE><dirExists name=\"" +
         finder + "\" diagnostic=\"Install " + name + ".\"/></PLACE></locationFinder>\n" + stamp + "</config>\n";
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
