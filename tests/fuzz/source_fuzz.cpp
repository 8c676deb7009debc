// A source file: what is read is written back byte for byte, also when all edits are undone.
#include "fuzz/fuzz_target.h"
#include "source/source_file.h"

void fuzz(const std::string& data) {
  using namespace tamrikon;
  if (data.size() < 4) return;
  const auto number = [&](std::size_t at) { return static_cast<unsigned char>(data[at]); };
  const int pages[] = {1252, 932, 1251, 65001, 936};
  const std::string bytes = data.substr(4);
  SourceFile file(bytes, *CodePage::find(pages[number(0) % 5]));
  LackingCharacter lacking;
  test::demand(file.bytes(lacking) == bytes, "the file isn't written back as it was read");
  for (std::size_t n = 1; n < 4; ++n) {
    const int line = file.lineCount() == 0 ? 1 : 1 + number(n) % file.lineCount();
    const int count = std::min(number(n) % 4, file.lineCount() - line + 1);
    switch (number(n) >> 6) {
      case 0: file.insertLines(line, "x = 1\r\nAttribute a.VB_HelpID = 5"); break;
      case 1: file.deleteLines(line, count); break;
      case 2: file.replaceLines(line, count, "a\rb _\nc"); break;
      default: file.replaceLines(line, count, "k", EditKind::typing);
    }
    file.bytes(lacking);
  }
  while (file.undo()) {
  }
  test::demand(file.bytes(lacking) == bytes, "undo doesn't bring the file back");
}
