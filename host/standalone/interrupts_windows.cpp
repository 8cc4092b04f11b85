#include <windows.h>

#include <array>
#include <atomic>
#include <csignal>

#include "standalone/interrupts.hpp"

namespace host::standalone {

namespace {

std::atomic<int> firstNoted = 0;

/// Holds this program and all that it starts: tools have consoles of their own, and no key reaches them there.
HANDLE family = nullptr;

/// From here on no further member can be started: the call that would fails.
void closeFamily() {
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_ACTIVE_PROCESS;
  limits.BasicLimitInformation.ActiveProcessLimit = 1;
  SetInformationJobObject(family, JobObjectExtendedLimitInformation, &limits, sizeof limits);
}

void endMember(DWORD number) {
  if (number == GetCurrentProcessId()) return;
  const HANDLE member = OpenProcess(PROCESS_TERMINATE, FALSE, number);
  if (member == nullptr) return;
  TerminateProcess(member, static_cast<UINT>(STATUS_CONTROL_C_EXIT));
  CloseHandle(member);
}

void endTools() {
  constexpr std::size_t most = 1024;
  struct {
    JOBOBJECT_BASIC_PROCESS_ID_LIST head;
    std::array<ULONG_PTR, most> further;
  } list{};
  closeFamily();
  if (QueryInformationJobObject(family, JobObjectBasicProcessIdList, &list, sizeof list, nullptr) == 0) return;
  for (DWORD index = 0; index < list.head.NumberOfProcessIdsInList; ++index) {
    endMember(static_cast<DWORD>(list.head.ProcessIdList[index]));
  }
}

/// Called on a thread that the system makes.
BOOL WINAPI note(DWORD event) {
  if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) return FALSE;
  int none = 0;
  firstNoted.compare_exchange_strong(none, event == CTRL_C_EVENT ? SIGINT : SIGBREAK);
  endTools();
  return TRUE;
}

}  // namespace

void installInterruptHandlers() {
  family = CreateJobObjectW(nullptr, nullptr);
  if (family != nullptr) AssignProcessToJobObject(family, GetCurrentProcess());
  SetConsoleCtrlHandler(note, TRUE);
}

int pendingInterrupt() {
  return firstNoted;
}

}  // namespace host::standalone
