#pragma once

#include <gmock/gmock.h>

#include <boost/make_shared.hpp>

#include "options/ZexOpt.hpp"
#include "support/InstalledTree.hpp"
#include "support/texts.hpp"

namespace zex_cmd {

/// An installed tree, and a document that is not a part of it.
class BuildTest : public testing::Test {
 protected:
  boost::shared_ptr<ZexOpt> loaded() const {
    tree.scratch.write("d.xml", document.xml());
    return boost::make_shared<ZexOpt>(tree.scratch.path("d.xml"), "", u"", false);
  }

  zex_test::InstalledTree tree;
  zex_test::Document document;
};

}  // namespace zex_cmd
