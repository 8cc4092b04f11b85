#include "build/response_file.hpp"

#include <algorithm>

#include "build/command_markers.hpp"
#include "cmd/messages/ZexConfigPerTVM.hpp"
#include "cmd/messages/verbose_lines.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"
#include "fl/filesystem/streams.hpp"
#include "fl/i18n/strings.hpp"
#include "options/ZexOpt.hpp"

namespace zex_cmd {

namespace {

constexpr char16_t fileName[] = u"zex_temp.rsp";

void writeArguments(const ustring& path, ustring arguments, bool slashes) {
  if (slashes) std::replace(arguments.begin(), arguments.end(), u'\\', u'/');
  fl::filesystem::basic_ofstream stream(path);
  if (!stream.is_open()) return;
  stream << fl::i18n::to_string(arguments);
  stream.close();
  // Half a file would build something else than what was asked for; without one the tool says what is wrong.
  if (stream.fail()) fl::filesystem::remove(path);
}

}  // namespace

bool needsResponseFile(const ZexBuildCommand& record) {
  return record.kind != ZexCommandKind::Other && record.command.size() >= responseFileLength;
}

ZexBuildCommand responseFileCommand(const ZexBuildCommand& record, const ustring& tempDir) {
  ZexBuildCommand copy = record;
  const ustring programVariable = record.kind == ZexCommandKind::Compile ? u"COMPILER" : u"LINKER";
  const ustring program = record.option->variable(programVariable).value_or(ustring());
  const ustring path = tempDir + fl::filesystem::upath_constant::PATHNAME_SEPARATOR + fileName;
  logMessage(msg::CreateRSPFile(program, fileName, program), true);

  // Nothing checks that the command begins with the program: documents are written so that it does.
  const ustring arguments = record.command.substr(std::min(program.size(), record.command.size()));
  writeArguments(path, arguments, markersFor(*record.option).slashesInResponseFile);
  copy.command.replace(copy.command.find(arguments), arguments.size(), u" @" + path);
  return copy;
}

}  // namespace zex_cmd
