#include <iostream>
#include <string>
#include <vector>

#include "cli/command_line.h"
#include "platform/interrupt.h"
#include "platform/large_pages.h"
#include "platform/standard_streams.h"

int main(int argc, char** argv) {
  tamrikon::preferLargePages();
  std::ios::sync_with_stdio(false);
  tamrikon::InterruptWatch interrupts;
  tamrikon::Streams streams(std::cout, std::cerr);
  streams.errIsTerminal = tamrikon::errorStreamIsTerminal();
  streams.outIsTerminal = tamrikon::outputStreamIsTerminal();
  if (tamrikon::canAskOnTerminal()) streams.readLine = tamrikon::readTerminalLine;
  streams.isInterrupted = [&] { return interrupts.take(); };
  return tamrikon::runTamrikon(std::vector<std::string>(argv + 1, argv + argc), streams);
}
