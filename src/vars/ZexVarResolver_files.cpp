#include <array>

#include "args/ZexArgs.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"
#include "options/ZexOpt.hpp"
#include "platform/paths.hpp"
#include "platform/quoting.hpp"
#include "vars/ZexVarResolver.hpp"

namespace zex_cmd {

namespace {

namespace names = fl::filesystem::detail;

enum class Place { TempFolder, OutputFolder };

struct FileVariable {
  const char16_t* name;
  Place place;
  const char16_t* ending;
  ustring (*quote)(const ustring&);
};

/// What commands name is quoted for the shell too: the plain rule would yield a command that the shell breaks.
constexpr std::array<FileVariable, 6> fileVariables = {{
    {u"DEF", Place::TempFolder, u".def", quoteInCommand},
    {u"EXP", Place::OutputFolder, u".exp", quoteAlways},
    {u"LIB", Place::OutputFolder, u".lib", quoteAlways},
    {u"EXE", Place::OutputFolder, u"$LDEXT", quoteInCommand},
    {u"ILK", Place::OutputFolder, u".ilk", quoteAlways},
    {u"MANIFEST", Place::OutputFolder, u"$LDEXT.manifest", quoteAlways},
}};

ustring separator() {
  return names::make_native_form(u"/");
}

ustring stemOf(const ustring& path) {
  return names::extract_stem(names::make_native_form(path));
}

void makeFolder(const ustring& folder) {
  if (!fl::filesystem::exists(folder)) fl::filesystem::create_directories(folder);
}

/// Empty without -outdir; otherwise ends in a separator.
ustring outputFolderOf(const ZexArgs& args) {
  if (args.outDir.empty()) return {};
  makeFolder(args.outDir);
  return args.outDir + separator();
}

bool keepsObjects(const ZexArgs& args) {
  return args.compileOnly || (args.arch == "maci64" && args.debug);
}

void setObjectVariables(ZexOpt& opt, const ZexArgs& args, const ustring& objectFolder) {
  ustring listed;
  ustring spaced;
  for (const ustring& source : args.sources) {
    const ustring object = quoteInCommand(objectFolder + stemOf(source) + u"$OBJEXT");
    if (!listed.empty()) listed += u";";
    listed += object;
    spaced += object + u" ";
  }
  opt.setVariable(u"OBJ", listed);
  opt.setVariable(u"OBJS", spaced + args.objectsText());
}

/// The file that names the product. The API version source never does.
ustring primaryFileOf(const ZexArgs& args) {
  const bool onlyVersionSource = args.sources.size() == 1 && args.apiVersionSourceAdded;
  if (!args.sources.empty() && !onlyVersionSource) return args.sources.front();
  return args.objects.empty() ? ustring() : args.objects.front();
}

}  // namespace

void ZexVarResolver::deriveFileVariables(ZexOpt& opt) const {
  ustring outputFolder = outputFolderOf(*args_);
  const ustring tempFolder = args_->tempDir + separator();
  opt.setVariable(u"SRC", args_->sourcesText());
  // -output below moves the product but not the objects.
  setObjectVariables(opt, *args_, keepsObjects(*args_) ? outputFolder : tempFolder);

  const ustring primary = primaryFileOf(*args_);
  ustring name = stemOf(primary);
  opt.setVariable(u"SRCROOT", names::make_native_form(names::extract_parent_path(primary) + u"/" + name));

  if (!args_->output.empty()) {
    const ustring product = fullPath(args_->output);
    name = names::extract_stem(product);
    if (outputFolder.empty()) {
      const ustring folder = names::extract_parent_path(product);
      makeFolder(folder);
      outputFolder = folder + separator();
    }
  }

  for (const FileVariable& row : fileVariables) {
    const ustring& folder = row.place == Place::TempFolder ? tempFolder : outputFolder;
    opt.setVariable(row.name, row.quote(folder + name + row.ending));
  }
  opt.setVariable(u"TEMPNAME", outputFolder + name);
  opt.setVariable(u"EXEDIR", outputFolder);
  opt.setVariable(u"EXENAME", name);
}

}  // namespace zex_cmd
