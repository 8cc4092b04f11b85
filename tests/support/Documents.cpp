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
         "  <vars COMPILER=\"sh tool.sh\" LINKER=\"sh tool.sh\" COMPFLAGS=\"\" DEFINES=\"\" INCLUDES=\"\""
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

std::string fakeToolScript() {
  return "echo \"$*\" >> tool.log\n"
         "case \"$1\" in @*) eval \"set -- $(cat \"${1#@}\")\";; esac\n"
         "while [ $# -gt 0 ]; do\n"
         "  case \"$1\" in\n"
         "    -c) source=$2; shift;;\n"
         "    -o) output=$2; shift;;\n"
         "  esac\n"
         "  shift\n"
         "done\n"
         "if [ -n \"$source\" ]; then\n"
         "  if grep -q SILENT \"$source\"; then exit 3; fi\n"
         "  if grep -q FAIL \"$source\"; then echo out; echo bad source >&2; exit 1; fi\n"
         "  if grep -q WARN \"$source\"; then echo careful >&2; echo detail; fi\n"
         "fi\n"
         "echo made > \"$output\"\n";
}

}  // namespace zex_test
