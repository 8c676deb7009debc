// Ctrl+C on the terminal, and other signals that end the program.
#pragma once

namespace tamrikon {

/// While one lives, the first Ctrl+C is noted instead of ending the program; a second one, before
/// the first has been taken, still ends it. There is at most one at a time.
class InterruptWatch {
 public:
  InterruptWatch();
  ~InterruptWatch();
  InterruptWatch(const InterruptWatch&) = delete;
  InterruptWatch& operator=(const InterruptWatch&) = delete;

  /// Whether Ctrl+C was pressed since this was asked last.
  bool take();
};

/// Names the process, started in a group of its own, to which a signal that ends the program is
/// passed on while an InterruptWatch lives; 0: there is none.
void endWithThisProcess(long process);

}  // namespace tamrikon
