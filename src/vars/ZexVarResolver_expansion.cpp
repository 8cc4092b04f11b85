#include "args/ZexArgs.hpp"
#include "fl/i18n/strings.hpp"
#include "options/ZexOpt.hpp"
#include "vars/ZexVarResolver.hpp"
#include "vars/expansion.hpp"
#include "vars/ordering.hpp"

namespace zex_cmd {

namespace {

/// The lists that per-source values draw on. They can run to megabytes, so they are taken out of the tree only
/// when one of them has changed.
class SourceLists {
 public:
  explicit SourceLists(const ZexOpt& opt) { read(opt); }

  void noteChange(const ZexOpt& opt, const ustring& name) {
    if (name == u"SRC" || name == u"OBJ") read(opt);
  }
  const ustring& sources() const { return sources_; }
  const ustring& objects() const { return objects_; }

 private:
  void read(const ZexOpt& opt) {
    const std::optional<ustring> sources = opt.variable(u"SRC");
    sources_ = sources.value_or(ustring());
    objects_ = sources ? opt.variable(u"OBJ").value_or(ustring()) : ustring();
  }

  ustring sources_;
  ustring objects_;
};

/// Wide integers are the rule for FORTRAN, whatever compiler the document describes.
bool needsWideIntegers(const ZexArgs& args, const ustring& path) {
  return !args.languages.empty() && args.languages.front() == "FORTRAN" && !args.compatibleArrayDims &&
         path == u"config.vars.<xmlattr>.COMPFLAGS";
}

void storeExpanded(ZexOpt& opt, const ustring& path, ustring text, const ustring& self) {
  expandReferences(opt, text, self);
  opt.setValue(path, text);
}

/// Several texts take the place of the plain value under numbered names.
void storeTexts(ZexOpt& opt, const ustring& path, const ustring& self, const std::vector<ustring>& texts) {
  if (texts.size() == 1) return storeExpanded(opt, path, texts.front(), self);
  opt.removeValue(path);
  for (std::size_t index = 0; index < texts.size(); ++index) {
    storeExpanded(opt, path + u"_" + fl::i18n::to_ustring(std::to_string(index)), texts[index], self);
  }
}

}  // namespace

void ZexVarResolver::expandAllVariables(ZexOpt& opt) const {
  const std::vector<ustring> paths = opt.allValuePaths({u"config.locationFinder", u"config.client"});
  SourceLists lists(opt);
  for (const std::size_t index : orderVariables(opt, paths)) {
    const ustring& path = paths[index];
    ustring value = opt.requiredValue(path);
    if (needsWideIntegers(*args_, path)) value += u" /integer-size:64";
    const ustring self = shortName(path);
    storeTexts(opt, path, self, expandPerSource(value, lists.sources(), lists.objects()));
    lists.noteChange(opt, self);
  }
}

}  // namespace zex_cmd
