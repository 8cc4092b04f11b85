#include "host/Services.hpp"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "Record.hpp"
#include "fl/filesystem/operations.hpp"
#include "foundation/usm/Detail.hpp"
#include "services/io/uout.hpp"
#include "settings/core/preferences.hpp"
#include "standalone/StandaloneServices.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"

namespace {

using host::standalone::StandaloneServices;
using zex_test::ScopedVariable;
using Store = foundation::usm::Detail<foundation::usm::scope::Tvm>;

std::string deleted;

void* recordNamed(char name) {
  return std::make_unique<char>(name).release();
}

void deleteRecord(void* record) {
  const std::unique_ptr<char> owned(static_cast<char*>(record));
  deleted += *owned;
}

TEST(KeyedStore, OwnsOneRecordForAKeyAndLivesAsLongAsItsServices) {
  deleted.clear();
  const auto one = Store::getNextID();
  const auto two = Store::getNextID();
  EXPECT_NE(one, two);
  {
    const zex_test::RecordingServices machine;
    void* const kept = recordNamed('a');
    EXPECT_EQ(Store::findOrInsert(one, kept, deleteRecord), kept);
    EXPECT_EQ(Store::findOrInsert(one, recordNamed('x'), deleteRecord), kept);
    EXPECT_EQ(deleted, "x");
    Store::findOrInsert(two, recordNamed('b'), deleteRecord);
    const zex_test::RecordingServices other;
    EXPECT_EQ(Store::find(one), nullptr);
  }
  EXPECT_EQ(deleted, "xba");
}

TEST(Output, ReachesTheServicesInForceAtAnyLength) {
  zex_test::RecordingServices host;
  services::io::uout() << u"ü" << u"\n";
  utPrintf("%s%d", std::string(100000, 'x').c_str(), 42);
  EXPECT_EQ(host.output, "\xC3\xBC\n" + std::string(100000, 'x') + "42");
}

TEST(Standalone, WarningFollowsWhatWasPrintedAndKeepsItsLines) {
  const zex_test::Scratch scratch;
  scratch.write("resources/zex/en/messages.txt", "TESSEL:zex:Warn = first {0}\\nsecond\\n\n");
  const ScopedVariable root("TESSEL_ROOT", scratch.folder().c_str()), locale("TESSEL_LOCALE", "en");
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  StandaloneServices services("prog");
  services.write("out");
  services.showWarning(Record("Warn", {u"é"}));
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "out");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "prog: warning: first \xC3\xA9\nsecond [TESSEL:zex:Warn]\n");
}

TEST(Standalone, SurvivesAFullOrClosedOutput) {
  const auto writesInto = [](bool full) {
    close(STDOUT_FILENO);
    if (full && open("/dev/full", O_WRONLY) != STDOUT_FILENO) _exit(2);
    StandaloneServices services;
    services.write(std::string(100000, 'x'));
    const auto result = services.runShellLine(u"echo text; echo more >&2; exit 4", false);
    _exit(result.status == 4 && result.text == u"text\nmore\n" ? 0 : 1);
  };
  EXPECT_EXIT(writesInto(false), testing::ExitedWithCode(0), "");
  EXPECT_EXIT(writesInto(true), testing::ExitedWithCode(0), "");
}

TEST(Standalone, InstallFolderIsToldOrFoundFromTheLibrary) {
  const zex_test::Scratch scratch;
  const StandaloneServices services;
  {
    const ScopedVariable root("TESSEL_ROOT", "tree//");
    EXPECT_EQ(services.installFolder(), scratch.path("tree"));
  }
  const ScopedVariable root("TESSEL_ROOT", "");
  EXPECT_TRUE(fl::filesystem::exists(services.installFolder() + u"/bin"));
  EXPECT_NE(services.installFolder(), scratch.path());
}

TEST(Standalone, FoldersAreToldEvenWhereNothingCanBeDoneWithThem) {
  const zex_test::Scratch scratch;
  scratch.write("file", "");
  const ScopedVariable xdg("XDG_CONFIG_HOME", (scratch.folder() / "file").c_str());
  EXPECT_EQ(settings::core::getPreferencesDirectoryUStr(true), scratch.path("file/tessel/R2018a"));

  std::filesystem::create_directory("gone");
  std::filesystem::current_path("gone");
  std::filesystem::remove("../gone");
  const ScopedVariable root("TESSEL_ROOT", "tree/");
  EXPECT_EQ(StandaloneServices().installFolder(), u"tree");
}

TEST(Standalone, PreferencesFollowTheDesktopConvention) {
  const zex_test::Scratch scratch;
  const ScopedVariable home("HOME", scratch.folder().c_str()), xdg("XDG_CONFIG_HOME", "relative/is/ignored");
  EXPECT_EQ(settings::core::getPreferencesDirectoryUStr(false), scratch.path(".config/tessel/R2018a"));
  EXPECT_FALSE(scratch.has(".config"));
  const ScopedVariable absolute("XDG_CONFIG_HOME", (scratch.folder() / "c f/").c_str());
  EXPECT_EQ(settings::core::getPreferencesDirectoryUStr(true), scratch.path("c f/tessel/R2018a"));
  EXPECT_TRUE(scratch.has("c f/tessel/R2018a"));
}

}  // namespace
