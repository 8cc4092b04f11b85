#include "cmd/Zex.hpp"

#include <algorithm>
#include <boost/make_shared.hpp>

#include "args/ZexArgs.hpp"
#include "build/ZexBuilder.hpp"
#include "build/temporary/ZexTempFile.hpp"
#include "cmd/messages/ZexConfigPerTVM.hpp"
#include "cmd/messages/raise.hpp"
#include "compilers/ZexCompilers.hpp"
#include "fl/i18n/strings.hpp"
#include "options/ZexOpt.hpp"

namespace zex_cmd {

namespace {

bool holds(const std::vector<ustring>& arguments, const ustring& word) {
  return std::find(arguments.begin(), arguments.end(), word) != arguments.end();
}

[[noreturn]] void raiseNotAvailable(const ustring& feature) {
  raiseTyped(msg::Error(feature + u" is not available in this version of zex."));
}

}  // namespace

void Zex::run(const std::vector<ustring>& arguments) {
  if (holds(arguments, u"-h") || holds(arguments, u"-help")) raiseNotAvailable(u"Help");
  if (holds(arguments, u"-ada")) raiseNotAvailable(u"Building Ada sources");

  resetReportBuffers();
  args_ = boost::make_shared<ZexArgs>();
  args_->parseArguments(arguments);

  // The temporary folder goes away on every way out of this operation.
  boost::shared_ptr<ZexTempFile> temporaryFolder;
  if (!args_->setup) {
    temporaryFolder = boost::make_shared<ZexTempFile>(false, args_->tempDir);
    args_->tempDir = temporaryFolder->path();
  }
  compilers_ = boost::make_shared<ZexCompilers>(&args_);
  if (args_->setup) raiseNotAvailable(u"The compiler setup command");
  build();
}

void Zex::build() {
  std::string language;
  if (!args_->optionsFile.empty()) {
    const ustring told = compilers_->getSelectedOpt()->attribute(u"LANGUAGE");
    language = fl::i18n::codecvt_ustring_to_string()(fl::i18n::lcctype::transform(told, fl::i18n::to_upper));
  }
  args_->addApiVersionSource(language);
  ZexBuilder(args_, compilers_);
}

std::vector<CompilerRecord> Zex::queryCompilers(const std::string&, const std::string&, const std::string&) {
  raiseNotAvailable(u"The compiler query");
}

}  // namespace zex_cmd
