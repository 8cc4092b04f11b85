#pragma once

#include <gmock/gmock.h>

#include <string>

#include "options/ZexOpt.hpp"
#include "support/FakeTool.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"

namespace zex_cmd {

/// A scratch folder with a document in it, folders to find and to write to, and a host whose commands call for it.
class DocumentTest : public testing::Test {
 protected:
  DocumentTest() {
    for (const char* file : {"tools/cc", "tools/ld", "real/cc", "real/ld", "prefs/other", "elsewhere/other"})
      scratch.write(file, "");
    host.install = scratch.path();
    host.preferences = scratch.path("prefs");
  }
  ZexOpt load(const std::string& elements) {
    scratch.write("doc.xml", "<config Name='n'>\n" + elements + "</config>");
    return reload("doc.xml");
  }
  ZexOpt reload(const std::string& name) { return ZexOpt(scratch.path(name), "", u"", true); }

  zex_test::Scratch scratch;
  zex_test::RecordingServices host;
  zex_test::FakeTool tool;
  zex_test::ScopedVariable temporary{"TMPDIR", scratch.folder()}, home{"HOME", scratch.folder()},
      preferences{"TESSEL_PREFDIR", "missing"}, place{"ZEX_TEST_PLACE", "tools"}, empty{"ZEX_TEST_EMPTY", ""};
};

}  // namespace zex_cmd
