#include <boost/property_tree/xml_parser.hpp>
#include <optional>

#include "cmd/messages/notices.hpp"
#include "cmd/messages/raise.hpp"
#include "cmd/messages/show.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"
#include "options/OptionTree.hpp"
#include "options/ZexOpt.hpp"
#include "platform/folders.hpp"

namespace zex_cmd {

namespace {

namespace names = fl::filesystem::detail;

/// The file under its backup's name. Where the new one cannot be written, it is moved back.
class FormerFile {
 public:
  explicit FormerFile(const ustring& path) : path_(path), backup_(backupPathFor(path)) {
    replaceFile(path_, backup_);
    printMessage(msg::FileRenamed(path_, backup_));
  }
  ~FormerFile() {
    try {
      if (!fl::filesystem::exists(path_)) replaceFile(backup_, path_);
    } catch (const fl::filesystem::FsysExceptionBase&) {
      // It stays where the message told.
    }
  }
  FormerFile(const FormerFile&) = delete;
  FormerFile& operator=(const FormerFile&) = delete;

 private:
  ustring path_;
  ustring backup_;
};

void requireReadable(const OptionTree& tree, const ustring& path) {
  try {
    tree.requireReadable();
  } catch (const std::exception& failure) {
    raiseTyped(msg::XMLWriteFailedWithMsg(path, failure.what()));
  }
}

}  // namespace

void ZexOpt::writeSelected(const ustring& path) {
  std::optional<FormerFile> former;
  // Folders are compared as text, so a different spelling of the preferences folder is another folder.
  const bool isPreference = names::remove_filename(path) == readablePreferencesFolder();
  // Ahead of all else: what cannot be read back must not take the place of what can.
  requireReadable(*tree_, path);
  if (isPreference) {
    stampRelease();
    if (fl::filesystem::exists(path)) former.emplace(path);
  }
  try {
    removeValue(attributePrefix(u"config") + u"Zexopt");
    tree_->writeXml(path);
    setZexoptPath(path);
  } catch (const boost::property_tree::xml_parser_error& failure) {
    raiseTyped(msg::XMLWriteFailedWithMsg(path, failure.what()));
  } catch (const boost::property_tree::ptree_error& failure) {
    raiseTyped(msg::XMLWriteFailedWithMsg(path, failure.what()));
  } catch (...) {
    raiseTyped(withNote(msg::XMLWriteFailed(path), isPreference ? preferencesHint : u""));
  }
}

ustring ZexOpt::compilerXml() const {
  OptionTree listed = *tree_;
  listed.stripForListing();
  return listed.listingXml();
}

ustring backupPathFor(const ustring& path) {
  const ustring name = names::extract_filename(path);
  const std::size_t dot = name.rfind(u'.');
  const ustring stem = name.substr(0, dot);
  // A name without a dot still gets one at its end: deliberate.
  const ustring extension = dot == ustring::npos ? ustring() : name.substr(dot + 1);
  return names::concatenate_pathname(names::remove_filename(path), stem + u"_backup." + extension);
}

}  // namespace zex_cmd
