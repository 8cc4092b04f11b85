#pragma once

#include <gmock/gmock.h>

#include <string>

#include "options/ZexOpt.hpp"
#include "support/FakeTool.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"

namespace zex_cmd {

/// A scratch folder with a document in it, under a recording host whose commands call for it.
class DocumentTest : public testing::Test {
 protected:
  ZexOpt load(const std::string& content, const std::string& language = {}, const ustring& name = {}) {
    scratch.write("doc.xml", content);
    return ZexOpt(scratch.path("doc.xml"), language, name, true);
  }
  ZexOpt reload(const std::string& name) { return ZexOpt(scratch.path(name), "", u"", false); }

  zex_test::Scratch scratch;
  zex_test::RecordingServices host;
  zex_test::FakeTool tool;
  zex_test::ScopedVariable temporary{"TMPDIR", scratch.folder()};
};

}  // namespace zex_cmd
