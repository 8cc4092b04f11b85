#include "cmd/Zex.hpp"

#include <boost/make_shared.hpp>

#include "args/ZexArgs.hpp"
#include "build/ZexBuilder.hpp"
#include "build/temporary/ZexTempFile.hpp"
#include "cmd/ada.hpp"
#include "cmd/help.hpp"
#include "cmd/messages/ZexConfigPerTVM.hpp"
#include "cmd/messages/raise.hpp"
#include "compilers/ZexCompilers.hpp"
#include "compilers/ZexSetup.hpp"
#include "fl/i18n/strings.hpp"
#include "options/ZexOpt.hpp"
#include "platform/contains.hpp"

namespace zex_cmd {

void Zex::run(const std::vector<ustring>& arguments) {
  if (contains(arguments, u"-h") || contains(arguments, u"-help")) return printHelp();
  if (contains(arguments, u"-ada")) return runAdaRoute(arguments);

  resetReportBuffers();
  args_ = boost::make_shared<ZexArgs>();
  args_->parseArguments(arguments);

  // The temporary folder goes away on every way out of this operation.
  boost::shared_ptr<ZexTempFile> temporaryFolder;
  if (!args_->setup) {
    temporaryFolder = inWords([&] { return boost::make_shared<ZexTempFile>(false, args_->tempDir); });
    args_->tempDir = temporaryFolder->path();
  }
  compilers_ = boost::make_shared<ZexCompilers>(&args_);
  if (args_->setup) {
    ZexSetup(args_, compilers_, queryKind_);
  } else {
    build();
  }
}

void Zex::build() {
  std::string language;
  if (!args_->optionsFile.empty()) {
    language = fl::i18n::codecvt_ustring_to_string()(compilers_->getSelectedOpt()->upperLanguage());
  }
  args_->addApiVersionSource(language);
  ZexBuilder(args_, compilers_);
}

}  // namespace zex_cmd
