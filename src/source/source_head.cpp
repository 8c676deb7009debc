#include "source/source_head.h"

#include "base/line_reader.h"
#include "vb/scanning.h"
#include "vb/vb_text.h"

namespace tamrikon {
namespace {

bool isVersionLine(std::string_view line) {
  return isKeyword(takeField(line), "version");
}

bool isObjectLine(std::string_view line) {
  return isKeyword(takeWord(line), "object") && skipBlanks(line).starts_with('=');
}

bool opensBlock(std::string_view line) {
  const std::string_view word = takeField(line);
  return isKeyword(word, "begin") || isKeyword(word, "beginproperty");
}

bool closesBlock(std::string_view line) {
  const std::string_view word = trimBlanks(line);
  return isKeyword(word, "end") || isKeyword(word, "endproperty");
}

/// A reader that can see the line in front of it.
class HeadReader {
 public:
  explicit HeadReader(std::string_view text) : reader_(text) { advance(); }

  bool atEnd() const { return atEnd_; }
  std::string_view line() const { return reader_.line(); }
  std::size_t lineStart() const { return lineStart_; }
  void advance() {
    lineStart_ = reader_.offset();
    atEnd_ = !reader_.next();
  }

 private:
  LineReader reader_;
  std::size_t lineStart_ = 0;
  bool atEnd_ = false;
};

}  // namespace

bool isAttributeLine(std::string_view line) {
  constexpr std::string_view kKeyword = "attribute ";
  line = skipBlanks(line);
  return beginsWith(line, kKeyword) && !skipBlanks(line.substr(kKeyword.size())).empty();
}

SourceHead readSourceHead(std::string_view text) {
  SourceHead head;
  HeadReader reader(text);
  if (!reader.atEnd() && isVersionLine(reader.line())) reader.advance();
  while (!reader.atEnd() && isObjectLine(reader.line())) reader.advance();
  std::string_view opening = reader.atEnd() ? std::string_view() : reader.line();
  if (isKeyword(takeField(opening), "begin")) {
    head.blockClass = takeField(opening);
    const std::size_t start = reader.lineStart();
    std::size_t depth = 0;
    do {
      if (opensBlock(reader.line())) {
        ++depth;
      } else if (closesBlock(reader.line())) {
        --depth;
      }
      reader.advance();
    } while (depth > 0 && !reader.atEnd());
    if (depth > 0) head.unclosedStart = start;
  }
  head.attributesStart = reader.lineStart();
  while (!reader.atEnd() && isAttributeLine(reader.line())) {
    bool continues = true;
    while (continues && !reader.atEnd()) {
      continues = isContinued(reader.line());
      reader.advance();
    }
  }
  head.codeStart = reader.lineStart();
  return head;
}

}  // namespace tamrikon
