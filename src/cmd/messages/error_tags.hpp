#pragma once

#include "host/visibility.hpp"

/// One empty class for each identifier that can be raised, in a namespace named after its component.

namespace TESSEL::zex {

class ZEXHOST_API UnknownSwitch {};
class ZEXHOST_API IncompatibleSwitches {};
class ZEXHOST_API UnknownExt {};
class ZEXHOST_API UnknownLanguage {};
class ZEXHOST_API MixLang {};
class ZEXHOST_API AccessDenied {};
class ZEXHOST_API ErrOption {};
class ZEXHOST_API FileCannotOpen {};
class ZEXHOST_API NotADirectory {};
class ZEXHOST_API UnknownClient {};
class ZEXHOST_API SrcNotFound {};
class ZEXHOST_API ErrorFortranR2018a {};
class ZEXHOST_API FileSystemException {};
class ZEXHOST_API Error {};
class ZEXHOST_API FileNameConversionFailed {};
class ZEXHOST_API FileNameTooLarge {};
class ZEXHOST_API OutOfMemory {};
class ZEXHOST_API ZexDoubleHandle {};
class ZEXHOST_API Locked {};
class ZEXHOST_API ZXSeparateComplexNotSupported {};
class ZEXHOST_API UndocumentedNotSupported {};
class ZEXHOST_API ZexSetTrapFlagNotSupported {};
class ZEXHOST_API ZexErrorCode {};
class ZEXHOST_API ErrXMLAttr {};
class ZEXHOST_API LibNotFound {};
class ZEXHOST_API MultipleOrZeroCompiler {};
class ZEXHOST_API NoCompilerFound {};
class ZEXHOST_API NoCompilerFound_Win64 {};
class ZEXHOST_API NoCompilerFound_link {};
class ZEXHOST_API NoCompilerFound_link_Win64 {};
class ZEXHOST_API FailSetEnv {};
class ZEXHOST_API InvalidXML {};
class ZEXHOST_API XMLWriteFailed {};
class ZEXHOST_API XMLWriteFailedWithMsg {};
class ZEXHOST_API NotConfiguredToUse {};
class ZEXHOST_API CircRef {};

}  // namespace TESSEL::zex

namespace TESSEL::string {

class ZEXHOST_API MissingNotSupported {};
class ZEXHOST_API MustBeStringScalarOrCharacterVector {};

}  // namespace TESSEL::string

namespace TESSEL::legacy_two_part {

class ZEXHOST_API minrhs {};

}  // namespace TESSEL::legacy_two_part
