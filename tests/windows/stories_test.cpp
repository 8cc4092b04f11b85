#include "end_to_end/EndToEnd.hpp"
#include "support/Documents.hpp"
#include "support/FakeTool.hpp"
#include "support/texts.hpp"

namespace end_to_end {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using zex_test::Document;
using zex_test::utf16;

/// The staged programs, with the stand-in tool.
class Windows : public EndToEnd {
 protected:
  /// Compiles by a command, with a document whose finder may be told.
  Outcome compileBy(const std::string& command, const std::string& finder = "<dirExists name='.'/>",
                    const std::string& arguments = "-c value.c") const {
    Document document;
    document.compileCommand = command;
    write("my.xml", replaced(document.xml(), "<dirExists name=\".\" diagnostic=\"Install Fake C.\"/>", finder));
    return run("zex", "-f my.xml " + arguments);
  }

  const zex_test::FakeTool tool;
};

TEST_F(Windows, PathsOfEveryFormAreTaken) {
  const std::string drive = work.root_name().string();
  const fs::path share = L"\\\\zex\\share";  // made ahead of the tests under Wine
  fs::create_directories(share / utf16("ä b"));
  write(share / utf16("ä b/net.c"), "");
  write("my.xml", Document().xml());
  const std::pair<std::string, fs::path> rows[] = {
      {drive + "value.c -output " + drive + "out\\näme", utf16("out/näme.zexa64")},
      {"value.c -outdir \"\\out (2) & more\"", "\\out (2) & more\\value.zexa64"},
      {"\"\\\\zex\\share\\ä b\\n*.c\" -outdir \\\\zex\\share\\out", share / "out" / "net.zexa64"},
      // The tool finds the response file, whose folder has a blank in its long name.
      {"value.c -D" + std::string(9000, 'N'), "value.zexa64"},
  };
  for (const auto& [arguments, product] : rows) {
    const Outcome outcome = run("zex", "-f my.xml " + arguments);
    EXPECT_EQ(outcome.status, 0) << arguments << outcome.out << outcome.err;
    EXPECT_TRUE(fs::remove(product)) << product;
    expectNoTemporaryFiles();
  }
  for (const fs::path& folder : {fs::path("\\out (2) & more"), share / utf16("ä b"), share / "out"})
    fs::remove_all(folder);
}

TEST_F(Windows, FailuresAreTold) {
  struct {
    std::string command, arguments, message;
  } const rows[] = {
      {"tool --exit 3", "-c value.c", "ZexErrorCode(\"tool\", \"3\")"},
      // Killed: the code is read as a signed number.
      {"tool --exit -1073741819", "-c value.c", "ZexErrorCode(\"tool\", \"-1073741819\")"},
      {"$TOOL", "value.c -outdir Q:\\x\\y", "SrcNotFound(\"Q:\\\\x\\\\y\""},
      {"$TOOL", "value.c TEMP=Q:\\x", "SrcNotFound(\"Q:\\\\x\""},
      {"$TOOL",
       "\xEF\xBC\x8D"
       "c value.c",
       "SrcNotFound("},  // a wide "-" is none
  };
  for (const auto& row : rows) {
    const Outcome outcome = compileBy(row.command + " -c $SRC -o $OBJ", "<dirExists name='.'/>", row.arguments);
    EXPECT_EQ(outcome.status, 1) << row.arguments;
    EXPECT_THAT(outcome.err, HasSubstr("zex: error: TESSEL:zex:" + row.message));
    expectNoTemporaryFiles();
  }
  // Capture files that cannot be made are a failed command; not even an administrator makes a file here.
  set("TMPDIR", "Z:\\proc");
  EXPECT_THAT(compileBy("tool -c $SRC -o $OBJ", "<dirExists name='.'/>", "-c value.c TEMP=here").err,
              HasSubstr("TESSEL:zex:ZexErrorCode("));
  EXPECT_TRUE(fs::is_empty("here"));
}

TEST_F(Windows, FindersAskTheRegistryTheEnvironmentAndCommands) {
  for (const std::string root : {"HKCU", "HKLM"}) {
    const std::string key = "reg.exe add \"" + root + "\\Software\\zex tests\" /f /v place /d ";
    ASSERT_EQ(shell(key + "\"" + root + ":\\Ü (x86) & co\"").status, 0);
  }
  fs::create_directories(utf16("räum/bin"));
  set("ZEX_TEST_PLACE", work / utf16("räum"));
  write("place.txt", "  C:\\from\\a\\..\\file  \r\n");
  const std::pair<std::string, std::string> rows[] = {
      {"<hkcuExists path='Software\\zex tests' name='place'/>", "\nfound HKCU:\\Ü (x86) & co\n"},
      {"<hklmExists path='Software\\zex tests' name='place'/>", "\nfound HKLM:\\Ü (x86) & co\n"},
      {"<hkcuExists path='Software\\zex tests' name='absent'/>", "TESSEL:zex:NotInstalledCompiler(\"Fake C\")"},
      {"<envVarExists name='ZEX_TEST_PLACE'/><dirExists name='$$\\bin'/>", "\\work\\räum\\bin\n"},
      {"<cmdReturns name='type place.txt'/>", "\nfound C:\\from\\file\n"},
      {"<not><cmdReturns name='exit 1'/></not>", "\nfound\n"},
  };
  for (const auto& [finder, told] : rows) {
    EXPECT_THAT(compileBy("found $PLACE", finder, "-v -n value.c").out, HasSubstr(told)) << finder;
  }
}

TEST_F(Windows, ASelectionReplacesAProtectedOne) {
  const fs::path selected = preferences / "zex_C_win64.xml";
  write(utf16("eigénes.xml"), Document().xml());
  write(selected, Document().xml());
  fs::permissions(selected, fs::perms::owner_read);
  const Outcome again = zex("-setup:eigénes.xml C", {});
  EXPECT_EQ(again.status, 0) << again.err;
  EXPECT_TRUE(fs::exists(preferences / "zex_C_win64_backup.xml"));
  EXPECT_THAT(run("zexcompilers", "c selected --json").out, HasSubstr("\"ShortName\":\"fake\""));
  EXPECT_THAT(run("zexcompilers", "c selected win64 more").status, 1);
}

}  // namespace
}  // namespace end_to_end
