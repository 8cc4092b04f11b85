#pragma once

namespace zex_cmd {

class ZexArgs;
class ZexOpt;

/// Objects are named after their sources without the folder. Warns of every two sources that share one, since the
/// second compile writes over what the first has left. `option` is resolved.
void warnOfSharedObjects(const ZexOpt& option, const ZexArgs& args);

}  // namespace zex_cmd
