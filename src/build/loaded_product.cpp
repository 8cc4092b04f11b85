#include "build/loaded_product.hpp"

#include "cmd/messages/raise.hpp"
#include "dispatcher/Tdispatcher.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"
#include "fl/i18n/strings.hpp"
#include "foundation/storage/vfs/toAbsoluteIRI.hpp"
#include "platform/folders.hpp"
#include "platform/quoting.hpp"

namespace zex_cmd {

namespace fs = fl::filesystem;

namespace {

bool isNativeExtension(const LoadedFunctionSet* set) {
  return set != nullptr && set->kind == LoadedFunctionSet::nativeExtension && !set->handles.empty() &&
         set->kindQuery() == LoadedFunctionSet::nativeExtension;
}

/// Path of the file that a set came from; empty where its name tells none.
ustring loadedPath(const LoadedFunctionSet& set) {
  const ustring name = set.handles.front()->get_complete_name();
  const std::size_t end = name.find(u'>');
  return end == ustring::npos ? ustring() : fs::detail::make_native_form(name.substr(0, end));
}

bool samePath(const ustring& left, const ustring& right) {
  // Letter case does not count on any platform.
  return fl::i18n::lcctype::compare(left, right, fl::i18n::case_insensitive) == 0;
}

}  // namespace

void releaseLoadedProduct(const ustring& product) {
  const Tdispatcher* dispatcher = Tdispatcher::getDispatcher();
  if (dispatcher == nullptr) return;

  const ustring plain = withoutQuotes(product);
  const ustring inCurrentFolder = fs::detail::make_native_form(currentFolder() + u"/" + plain);
  for (LoadedFunctionSet* set : dispatcher->loadedFunctionSets()) {
    if (!isNativeExtension(set)) continue;
    const ustring path = loadedPath(*set);
    if (path.empty() || !(samePath(path, plain) || samePath(path, inCurrentFolder))) continue;
    if (set->lockCount() > 0) raiseTyped(msg::Locked(plain));
    set->unload();
    return;
  }
}

void notifyPathManager(const ustring& product) {
  Tdispatcher* dispatcher = Tdispatcher::getDispatcher();
  if (dispatcher == nullptr) return;

  ustring folder = fs::detail::extract_parent_path(fs::detail::make_native_form(withoutQuotes(product)));
  if (folder.empty()) folder = currentFolder();
  const ustring resource = foundation::storage::vfs::toAbsoluteIRI(u"file", folder);
  Korvane::PathManagement::NotifyUpstreamPathEntriesOfPossibleSpecialSubfolderChanges(
      resource, dispatcher->GetPerTVMEventManager());
  dispatcher->GetCurrentPathManager().update(0);
}

}  // namespace zex_cmd
