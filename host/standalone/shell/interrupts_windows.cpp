#include <windows.h>

#include <array>
#include <atomic>
#include <csignal>
#include <cstddef>
#include <vector>

#include "standalone/Interrupted.hpp"
#include "standalone/shell/interrupts.hpp"

namespace host::standalone {

namespace {

std::atomic<int> firstNoted = 0;

/// Holds this program and all that it starts: tools have consoles of their own, and no key reaches them there.
/// Null where there is none.
HANDLE family = nullptr;

constexpr DWORD pauseMilliseconds = 20;

/// A tool may put what it starts outside, as it may without this program.
HANDLE newFamily() {
  const HANDLE job = CreateJobObjectW(nullptr, nullptr);
  if (job == nullptr) return nullptr;
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_BREAKAWAY_OK;
  SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof limits);
  if (AssignProcessToJobObject(job, GetCurrentProcess()) != 0) return job;
  CloseHandle(job);
  return nullptr;
}

void endMember(DWORD number) {
  if (number == GetCurrentProcessId()) return;
  const HANDLE process = OpenProcess(PROCESS_TERMINATE | PROCESS_QUERY_INFORMATION, FALSE, number);
  if (process == nullptr) return;
  // The number may be another process's by now.
  BOOL isMember = FALSE;
  if (IsProcessInJob(process, family, &isMember) != 0 && isMember != FALSE)
    TerminateProcess(process, static_cast<UINT>(STATUS_CONTROL_C_EXIT));
  CloseHandle(process);
}

/// Numbers of the processes of the family, this one among them.
std::vector<DWORD> members() {
  // Without a job of its own, the system would list the one around this program.
  if (family == nullptr) return {};
  constexpr std::size_t most = 8192;
  alignas(JOBOBJECT_BASIC_PROCESS_ID_LIST) std::array<std::byte, most> room{};
  const BOOL whole = QueryInformationJobObject(family, JobObjectBasicProcessIdList, room.data(), most, nullptr);
  if (whole == 0 && GetLastError() != ERROR_MORE_DATA) return {};
  const auto* const list = reinterpret_cast<const JOBOBJECT_BASIC_PROCESS_ID_LIST*>(room.data());
  std::vector<DWORD> numbers;
  for (DWORD index = 0; index < list->NumberOfProcessIdsInList; ++index)
    numbers.push_back(static_cast<DWORD>(list->ProcessIdList[index]));
  return numbers;
}

void endTools() {
  for (const DWORD number : members()) endMember(number);
}

/// The signal that stands for an event of the console: a key, or the end of the window or the session.
int signalOf(DWORD event) {
  if (event == CTRL_C_EVENT) return SIGINT;
  return event == CTRL_BREAK_EVENT ? SIGBREAK : SIGTERM;
}

/// Called on a thread that the system makes. Where a window is closed, the program ends with this function, and
/// has a few seconds until it is ended.
BOOL WINAPI note(DWORD event) {
  int none = 0;
  firstNoted.compare_exchange_strong(none, signalOf(event));
  // To the end of the program: another tool may be on its way.
  for (;; Sleep(pauseMilliseconds)) endTools();
}

}  // namespace

void installInterruptHandlers() {
  family = newFamily();
  SetConsoleCtrlHandler(note, TRUE);
}

void letInterruptsEndTheProgram() {
  SetConsoleCtrlHandler(note, FALSE);
}

void awaitEndOfTools() {
  constexpr int tries = 150;
  for (int count = 0; count < tries && members().size() > 1; ++count) Sleep(pauseMilliseconds);
}

int pendingInterrupt() {
  return firstNoted;
}

const char* Interrupted::what() const noexcept {
  return "interrupted";
}

}  // namespace host::standalone
