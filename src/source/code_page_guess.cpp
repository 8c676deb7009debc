#include "source/code_page_guess.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "base/line_reader.h"
#include "base/utf8.h"
#include "source/source_head.h"
#include "vb/scanning.h"

namespace tamrikon {
namespace {

// A file found in one of the Latin pages tells little: any bytes are letters there.
constexpr int kPathOrder[] = {kUtf8CodePage, 1252, 1250, 1251, 1253, 1254, 1255, 1256,
                              1257,          1258, 874,  932,  936,  949,  950};
constexpr int kTellingPages[] = {1251, 1253, 1255, 1256, 874, 932, 936, 949, 950};

// Pages whose scripts stand in runs of high bytes, while accented letters stand alone.
constexpr int kPagesOfRuns[] = {1251, 1253, 1255, 1256, 874};

struct CharsetPage {
  int charset;
  int page;
};
constexpr CharsetPage kCharsets[] = {
    {128, 932},  {129, 949},  {134, 936},  {136, 950},  {161, 1253}, {162, 1254}, {163, 1258},
    {177, 1255}, {178, 1256}, {186, 1257}, {204, 1251}, {222, 874},  {238, 1250}};

template <std::size_t n>
bool isAmong(int number, const int (&numbers)[n]) {
  return std::find(std::begin(numbers), std::end(numbers), number) != std::end(numbers);
}

/// The page with the most votes; of equals, the lower number.
std::map<int, std::size_t>::const_iterator most(const std::map<int, std::size_t>& votes) {
  return std::max_element(votes.begin(), votes.end(),
                          [](const auto& a, const auto& b) { return a.second < b.second; });
}

void countCharsetLine(std::string_view line, CodePageEvidence& evidence) {
  if (!isKeyword(takeWord(line), "charset")) return;
  line = skipBlanks(line);
  if (!line.starts_with('=')) return;
  const std::string_view text = trimBlanks(line.substr(1));
  int charset = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), charset);
  if (result.ec != std::errc() || result.ptr != text.data() + text.size()) return;
  ++evidence.charsetLines;
  for (const CharsetPage& entry : kCharsets) {
    if (entry.charset == charset) ++evidence.votes[entry.page];
  }
}

}  // namespace

CodePageEvidence readCodePageEvidence(std::string_view bytes) {
  CodePageEvidence evidence;
  bytes = withoutUtf8Mark(bytes);
  const SourceHead head = readSourceHead(bytes);
  for (LineReader reader(bytes.substr(0, head.attributesStart)); reader.next();) {
    countCharsetLine(reader.line(), evidence);
  }
  if (isAscii(bytes)) return evidence;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (!isAboveAscii(bytes[i])) continue;
    ++evidence.highBytes;
    const bool isBeside = (i > 0 && isAboveAscii(bytes[i - 1])) ||
                          (i + 1 < bytes.size() && isAboveAscii(bytes[i + 1]));
    if (isBeside) ++evidence.highBytesInRuns;
  }
  return evidence;
}

FoundPath findInCodePages(PathLookup& lookup, std::string_view folder, std::string_view path,
                          const CodePage* preferred) {
  if (isAscii(path)) return {lookup.find(folder, path), nullptr};
  const auto findIn = [&](const CodePage& page) { return lookup.find(folder, page.decode(path)); };
  if (preferred != nullptr) {
    std::string found = findIn(*preferred);
    if (!found.empty()) return {std::move(found), preferred};
  }
  for (const int number : kPathOrder) {
    if (number == kUtf8CodePage && !isValidUtf8(path)) continue;
    const CodePage* page = CodePage::find(number);
    std::string found = findIn(*page);
    if (!found.empty()) return {std::move(found), page};
  }
  return {};
}

void CodePageGuess::addPath(const FoundPath& found) {
  if (found.page == nullptr || !isAmong(found.page->number(), kTellingPages)) return;
  ++pathPages_[found.page->number()];
}

void CodePageGuess::addSource(const CodePageEvidence& evidence, bool hasControls) {
  evidence_.highBytes += evidence.highBytes;
  evidence_.highBytesInRuns += evidence.highBytesInRuns;
  if (!hasControls) return;
  evidence_.charsetLines += evidence.charsetLines;
  for (const auto& [page, count] : evidence.votes) evidence_.votes[page] += count;
}

int CodePageGuess::named() const {
  if (!pathPages_.empty()) return most(pathPages_)->first;
  const auto elected = most(evidence_.votes);
  if (elected == evidence_.votes.end() || elected->second * 20 < evidence_.charsetLines) return 0;
  const bool needsRuns = isAmong(elected->first, kPagesOfRuns);
  return needsRuns && evidence_.highBytesInRuns * 2 < evidence_.highBytes ? 0 : elected->first;
}

}  // namespace tamrikon
