#pragma once

#include "cmd/messages/visibility.hpp"

/// One empty class for each identifier that can be raised, in a namespace named after its component.

namespace TESSEL::zex {

class ZEXCMD_TYPE UnknownSwitch {};
class ZEXCMD_TYPE IncompatibleSwitches {};
class ZEXCMD_TYPE UnknownExt {};
class ZEXCMD_TYPE UnknownLanguage {};
class ZEXCMD_TYPE MixLang {};
class ZEXCMD_TYPE AccessDenied {};
class ZEXCMD_TYPE ErrOption {};
class ZEXCMD_TYPE FileCannotOpen {};
class ZEXCMD_TYPE NotADirectory {};
class ZEXCMD_TYPE UnknownClient {};
class ZEXCMD_TYPE SrcNotFound {};
class ZEXCMD_TYPE ErrorFortranR2018a {};
class ZEXCMD_TYPE FileSystemException {};
class ZEXCMD_TYPE Error {};
class ZEXCMD_TYPE FileNameConversionFailed {};
class ZEXCMD_TYPE FileNameTooLarge {};
class ZEXCMD_TYPE OutOfMemory {};
class ZEXCMD_TYPE ZexDoubleHandle {};
class ZEXCMD_TYPE Locked {};
class ZEXCMD_TYPE ZXSeparateComplexNotSupported {};
class ZEXCMD_TYPE UndocumentedNotSupported {};
class ZEXCMD_TYPE ZexSetTrapFlagNotSupported {};
class ZEXCMD_TYPE ZexErrorCode {};
class ZEXCMD_TYPE ErrXMLAttr {};
class ZEXCMD_TYPE LibNotFound {};
class ZEXCMD_TYPE MultipleOrZeroCompiler {};
class ZEXCMD_TYPE NoCompilerFound {};
class ZEXCMD_TYPE NoCompilerFound_Win64 {};
class ZEXCMD_TYPE NoCompilerFound_link {};
class ZEXCMD_TYPE NoCompilerFound_link_Win64 {};
class ZEXCMD_TYPE FailSetEnv {};
class ZEXCMD_TYPE InvalidXML {};
class ZEXCMD_TYPE XMLWriteFailed {};
class ZEXCMD_TYPE XMLWriteFailedWithMsg {};
class ZEXCMD_TYPE NotConfiguredToUse {};
class ZEXCMD_TYPE CircRef {};

}  // namespace TESSEL::zex

namespace TESSEL::string {

class ZEXCMD_TYPE MissingNotSupported {};
class ZEXCMD_TYPE MustBeStringScalarOrCharacterVector {};

}  // namespace TESSEL::string

namespace TESSEL::legacy_two_part {

class ZEXCMD_TYPE minrhs {};

}  // namespace TESSEL::legacy_two_part
