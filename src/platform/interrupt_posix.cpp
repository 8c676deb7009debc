#include "platform/interrupt.h"

#include <signal.h>

#include <initializer_list>

namespace tamrikon {
namespace {

// A signal handler can reach nothing else.
volatile sig_atomic_t interrupted = 0;
volatile sig_atomic_t child = 0;

void end(int signal) {
  // Shells start background processes with SIGINT ignored.
  if (child != 0) ::kill(-child, signal == SIGINT ? SIGTERM : signal);
  ::signal(signal, SIG_DFL);
  ::raise(signal);
}

void note(int signal) {
  if (interrupted != 0) return end(signal);
  interrupted = 1;
}

/// Unless it was to be ignored from the start, as by nohup.
void handle(int signal, void (*handler)(int)) {
  struct sigaction before = {};
  ::sigaction(signal, nullptr, &before);
  if (before.sa_handler == SIG_IGN) return;
  struct sigaction action = {};
  action.sa_handler = handler;
  // No SA_RESTART: a question on the terminal is to end.
  ::sigaction(signal, &action, nullptr);
}

constexpr std::initializer_list<int> kEnding = {SIGTERM, SIGHUP, SIGQUIT};

}  // namespace

InterruptWatch::InterruptWatch() {
  interrupted = 0;
  handle(SIGINT, note);
  for (const int signal : kEnding) handle(signal, end);
}

InterruptWatch::~InterruptWatch() {
  handle(SIGINT, SIG_DFL);
  for (const int signal : kEnding) handle(signal, SIG_DFL);
}

bool InterruptWatch::take() {
  if (interrupted == 0) return false;
  interrupted = 0;
  return true;
}

void endWithThisProcess(long process) {
  child = static_cast<sig_atomic_t>(process);
}

}  // namespace tamrikon
