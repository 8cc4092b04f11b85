#include <windows.h>

#include <array>
#include <atomic>
#include <csignal>
#include <cstddef>

#include "standalone/interrupts.hpp"

namespace host::standalone {

namespace {

std::atomic<int> firstNoted = 0;

/// Holds this program and all that it starts: tools have consoles of their own, and no key reaches them there.
HANDLE family = nullptr;

constexpr DWORD pauseMilliseconds = 20;

void endMember(DWORD number) {
  if (number == GetCurrentProcessId()) return;
  const HANDLE member = OpenProcess(PROCESS_TERMINATE, FALSE, number);
  if (member == nullptr) return;
  TerminateProcess(member, static_cast<UINT>(STATUS_CONTROL_C_EXIT));
  CloseHandle(member);
}

void endTools() {
  constexpr std::size_t most = 8192;
  alignas(JOBOBJECT_BASIC_PROCESS_ID_LIST) std::array<std::byte, most> room{};
  if (QueryInformationJobObject(family, JobObjectBasicProcessIdList, room.data(), most, nullptr) == 0) return;
  const auto* const list = reinterpret_cast<const JOBOBJECT_BASIC_PROCESS_ID_LIST*>(room.data());
  for (DWORD index = 0; index < list->NumberOfProcessIdsInList; ++index) {
    endMember(static_cast<DWORD>(list->ProcessIdList[index]));
  }
}

/// Called on a thread that the system makes.
BOOL WINAPI note(DWORD event) {
  if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) return FALSE;
  int none = 0;
  firstNoted.compare_exchange_strong(none, event == CTRL_C_EVENT ? SIGINT : SIGBREAK);
  // To the end of the program, since the driver goes on to its next command where it only asks for an answer.
  for (;; Sleep(pauseMilliseconds)) endTools();
}

}  // namespace

void installInterruptHandlers() {
  family = CreateJobObjectW(nullptr, nullptr);
  if (family != nullptr) AssignProcessToJobObject(family, GetCurrentProcess());
  SetConsoleCtrlHandler(note, TRUE);
}

void letInterruptsEndTheProgram() {
  SetConsoleCtrlHandler(note, FALSE);
}

int pendingInterrupt() {
  return firstNoted;
}

}  // namespace host::standalone
