#include <initializer_list>

#include "options/OptionTree.hpp"
#include "options/ZexOpt.hpp"

namespace zex_cmd {

namespace {

struct KeySource {
  const char16_t* key;
  const char16_t* source;
};

/// Always present, empty where the document does not say.
constexpr KeySource alwaysPresentKeys[] = {
    {u"Name", u"NAME"},         {u"Manufacturer", u"MANUFACTURER"},
    {u"Language", u"LANGUAGE"}, {u"Version", u"VERSION"},
    {u"Location", u"LOCATION"}, {u"ShortName", u"SHORTNAME"},
    {u"Priority", u"PRIORITY"}, {u"ZexOpt", u"ZEXOPT"},
};

/// From attributes of `Details`. Both linker keys take the same one by design.
constexpr KeySource detailKeys[] = {
    {u"CommandLineShell", u"CommandLineShell"},
    {u"CommandLineShellArg", u"CommandLineShellArg"},
    {u"CompilerFlags", u"CompilerFlags"},
    {u"LinkerName", u"LinkerExecutable"},
    {u"LinkerVersion", u"LinkerVersion"},
    {u"CompilerExecutable", u"CompilerExecutable"},
    {u"OptimizationFlags", u"OptimizationFlags"},
    {u"DebugFlags", u"DebugFlags"},
    {u"LinkerExecutable", u"LinkerExecutable"},
    {u"LinkerFlags", u"LinkerFlags"},
    {u"LinkerOptimizationFlags", u"LinkerOptimizationFlags"},
    {u"LinkerDebugFlags", u"LinkerDebugFlags"},
};

/// Lines of the batch script, in order. PATH alone gets the entry of the environment's own programs.
constexpr KeySource scriptLines[] = {
    {u"PATH", u";%TESSEL_BIN%;%PATH%\n"},
    {u"INCLUDE", u";%INCLUDE%\n"},
    {u"LIB", u";%LIB%\n"},
    {u"LIBPATH", u";%LIBPATH%\n"},
};

std::optional<ustring> environmentValue(const ZexOpt& opt, const ustring& name) {
  return opt.value(attributePrefix(u"config.env") + name);
}

/// A search path that ends in what the command shell has, with the document's own texts ahead of it, last name
/// first.
ustring searchPath(const ZexOpt& opt, const ustring& ofShell, std::initializer_list<const char16_t*> names) {
  ustring path = ofShell;
  for (const char16_t* name : names) {
    if (const auto text = environmentValue(opt, name)) path = *text + u";" + path;
  }
  return path;
}

}  // namespace

ustring ZexOpt::environmentScript() const {
  ustring script;
  for (const auto& [name, rest] : scriptLines) {
    const auto text = environmentValue(*this, name);
    if (text) script += ustring(u"set ") + name + u"=" + *text + rest;
  }
  return script;
}

std::map<ustring, ustring> ZexOpt::detailsMap() const {
  std::map<ustring, ustring> map;
  const auto putIfPresent = [&map](const ustring& key, const std::optional<ustring>& text) {
    if (text) map[key] = *text;
  };
  for (const auto& [key, source] : alwaysPresentKeys) map[key] = attribute(source);
  if (const auto text = variable(u"SETENV")) map[u"SetEnv"] = *text + u"\n" + environmentScript();
  for (const auto& [key, source] : detailKeys) putIfPresent(key, detail(source));
  map[u"SystemPath"] = searchPath(*this, u"%PATH%", {u"PATH"});
  map[u"LibraryPath"] = searchPath(*this, u"%LIB%", {u"LIBPATH", u"LIB"});
  map[u"IncludePath"] = searchPath(*this, u"%INCLUDE%", {u"INCLUDE"});
  putIfPresent(u"TargetArch", variable(u"ARCH"));
  // Fixed for every compiler, whatever its own switches are.
  map[u"RenameObjectFlag"] = u"/Fo";
  putIfPresent(u"LinkLibraryLocation", environmentValue(*this, u"LIB"));
  if (const auto product = variable(u"EXE")) map[u"LinkOutputFlagAndDLLName"] = u"/out:" + *product;
  return map;
}

}  // namespace zex_cmd
