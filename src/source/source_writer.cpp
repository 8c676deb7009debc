#include "source/source_writer.h"

#include <optional>
#include <utility>

#include "base/utf8.h"

namespace tamrikon {

SourceWriter::SourceWriter(const SourceFormat& format, std::string_view raw,
                           std::size_t expectedSize)
    : format_(format), hasRaw_(!raw.empty()) {
  LineReader reader(raw);
  while (reader.next()) rawLines_.push_back(reader.line());
  rawLines_.push_back({});
  bytes_.reserve(expectedSize);
  if (format.encoding == TextEncoding::utf8WithMark) bytes_ = kUtf8Mark;
}

bool SourceWriter::add(std::string_view text, std::uint32_t origin, LineEnd end) {
  LineReader reader(text);
  for (bool more = true; more;) {
    // Behind a line end at the end of the piece stands its last line, an empty one.
    const bool found = reader.next();
    more = found && reader.end() != LineEnd::none;
    startLine();
    if (!addLine(found ? reader.line() : std::string_view(), origin)) return false;
    if (origin != kNoOrigin) ++origin;
    pendingEnd_ = more ? reader.end() : end;
  }
  return true;
}

std::string SourceWriter::finish() {
  // Without its end, an empty line at the end wouldn't be there for whoever reads the file.
  const bool needsEnd = line_ > 0 && isLineEmpty_ && pendingEnd_ == LineEnd::none;
  endLine(needsEnd ? format_.newLineEnd : pendingEnd_);
  return std::move(bytes_);
}

void SourceWriter::startLine() {
  if (line_ > 0) {
    // The last line of the old file may have had no end, and now stands before another one.
    endLine(pendingEnd_ == LineEnd::none ? format_.newLineEnd : pendingEnd_);
  }
  ++line_;
}

void SourceWriter::endLine(LineEnd end) {
  // An empty line that has come behind a lone CR would melt into it.
  const bool wouldMelt = end == LineEnd::lf && bytes_.ends_with('\r');
  bytes_ += textOf(wouldMelt ? LineEnd::crLf : end);
}

bool SourceWriter::addLine(std::string_view text, std::uint32_t origin) {
  isLineEmpty_ = text.empty();
  if (origin != kNoOrigin && hasRaw_) {
    bytes_ += rawLines_[origin];
  } else if (origin != kNoOrigin || format_.encoding != TextEncoding::codePage || isAscii(text)) {
    bytes_ += text;
  } else {
    std::size_t offset = 0;
    const std::optional<std::string> encoded = format_.page.encodeExactly(text, offset);
    if (!encoded) {
      lacking_.column = static_cast<int>(codePointCount(text.substr(0, offset))) + 1;
      lacking_.codePoint = readCodePoint(text, offset);
      return false;
    }
    bytes_ += *encoded;
  }
  return true;
}

}  // namespace tamrikon
