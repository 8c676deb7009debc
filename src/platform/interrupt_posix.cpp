#include "platform/interrupt.h"

#include <signal.h>

namespace tamrikon {
namespace {

// A signal handler can reach nothing else.
volatile sig_atomic_t interrupted = 0;

void note(int) {
  interrupted = 1;
}

void install() {
  struct sigaction action = {};
  action.sa_handler = note;
  // No SA_RESTART: a question on the terminal is to end.
  action.sa_flags = static_cast<int>(SA_RESETHAND);
  ::sigaction(SIGINT, &action, nullptr);
}

}  // namespace

InterruptWatch::InterruptWatch() {
  interrupted = 0;
  install();
}

InterruptWatch::~InterruptWatch() {
  ::signal(SIGINT, SIG_DFL);
}

bool InterruptWatch::take() {
  if (interrupted == 0) return false;
  interrupted = 0;
  install();
  return true;
}

}  // namespace tamrikon
