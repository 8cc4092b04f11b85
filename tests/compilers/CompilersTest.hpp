#pragma once

#include <gmock/gmock.h>

#include <boost/make_shared.hpp>

#include "args/ZexArgs.hpp"
#include "cmd/messages/ZexConfigPerTVM.hpp"
#include "compilers/ZexCompilers.hpp"
#include "options/ZexOpt.hpp"
#include "support/InstalledTree.hpp"
#include "support/texts.hpp"

namespace zex_cmd {

using zex_test::catalogue;
using zex_test::compiler;
using zex_test::Document;
using zex_test::failureOf;
using zex_test::InstalledTree;
using zex_test::selection;
using zex_test::selectionBackup;

/// An installed tree, and documents to put into it.
class CompilersTest : public testing::Test {
 protected:
  static std::string nameOf(const ZexOpt& opt) { return zex_test::utf8(opt.attribute(u"NAME")); }

  /// Names of a list, a "*" before those that are `selected`.
  static std::string namesOf(const ZexOptList& list) {
    std::string names;
    for (const auto& opt : list) names += (opt->selected ? "*" : "") + nameOf(*opt) + " ";
    return names;
  }

  static void offer(const InstalledTree& tree, const std::vector<Document>& documents) {
    for (std::size_t index = 0; index < documents.size(); ++index)
      tree.offer(std::to_string(index) + ".xml", documents[index]);
  }

  InstalledTree tree;
  boost::shared_ptr<ZexArgs> args = boost::make_shared<ZexArgs>();
};

}  // namespace zex_cmd
