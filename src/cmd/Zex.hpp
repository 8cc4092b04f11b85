#pragma once

#include <boost/shared_ptr.hpp>
#include <string>
#include <vector>

#include "cmd/ZexCmdI.hpp"

namespace zex_cmd {

using fl::ustring;

class ZexArgs;
class ZexCompilers;
class ZexOpt;

/// Routes each command to help, the Ada builder, the compiler setup or a build.
class Zex : public ZexCmdI {
 public:
  Zex() = default;
  /// The catalogue points at the record of its own object, so copies would reach into each other.
  Zex(const Zex&) = delete;
  Zex& operator=(const Zex&) = delete;

  void run(const std::vector<ustring>& arguments) override;
  std::vector<CompilerRecord> queryCompilers(const std::string& language, const std::string& kind,
                                             const std::string& architecture) override;
  ~Zex() override = default;

 private:
  void build();
  std::vector<CompilerRecord> recordsOf(const std::string& kind) const;
  CompilerRecord recordOf(const boost::shared_ptr<ZexOpt>& opt) const;

  boost::shared_ptr<ZexArgs> args_;            ///< record of the latest command; empty until the first
  boost::shared_ptr<ZexCompilers> compilers_;  ///< of the latest command that got past parsing; points to args_
  std::string queryKind_;  ///< kind of a compiler query while it runs, and after one that failed
};

}  // namespace zex_cmd
