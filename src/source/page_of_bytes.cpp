#include "source/page_of_bytes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <set>
#include <vector>

#include "base/case_folding.h"
#include "base/line_reader.h"
#include "base/utf8.h"
#include "platform/code_page.h"
#include "vb/scanning.h"

namespace tamrikon {
namespace {

constexpr std::size_t kEnough = 256 * 1024;

unsigned byteAt(std::string_view text, std::size_t index) {
  return static_cast<unsigned char>(text[index]);
}

bool isIn(unsigned byte, unsigned first, unsigned last) {
  return byte >= first && byte <= last;
}

// ---- double-byte pages

enum class Pair { none, mark, everyday, rare };

Pair pairOf932(unsigned lead, unsigned second) {
  if (!isIn(lead, 0x81, 0x9F) && !isIn(lead, 0xE0, 0xFC)) return Pair::none;
  if (!isIn(second, 0x40, 0xFC) || second == 0x7F) return Pair::none;
  if (lead == 0x81) return Pair::mark;
  const bool isKana = lead <= 0x83;
  return isKana || isIn(lead, 0x88, 0x97) ? Pair::everyday : Pair::rare;
}

Pair pairOf936(unsigned lead, unsigned second) {
  if (!isIn(lead, 0x81, 0xFE) || !isIn(second, 0x40, 0xFE) || second == 0x7F) return Pair::none;
  if (second < 0xA1) return Pair::rare;
  if (isIn(lead, 0xA1, 0xA3)) return Pair::mark;
  return isIn(lead, 0xB0, 0xD7) ? Pair::everyday : Pair::rare;
}

Pair pairOf949(unsigned lead, unsigned second) {
  const bool isSecond =
      isIn(second, 0x41, 0x5A) || isIn(second, 0x61, 0x7A) || isIn(second, 0x81, 0xFE);
  if (!isIn(lead, 0x81, 0xFD) || lead == 0xC9 || !isSecond) return Pair::none;
  if (second < 0xA1) return Pair::rare;
  if (isIn(lead, 0xA1, 0xA3)) return Pair::mark;
  return isIn(lead, 0xB0, 0xC8) ? Pair::everyday : Pair::rare;
}

Pair pairOf950(unsigned lead, unsigned second) {
  const bool isSecond = isIn(second, 0x40, 0x7E) || isIn(second, 0xA1, 0xFE);
  if (!isIn(lead, 0xA1, 0xF9) || isIn(lead, 0xC7, 0xC8) || !isSecond) return Pair::none;
  if (lead <= 0xA3) return Pair::mark;
  return lead <= 0xC6 ? Pair::everyday : Pair::rare;
}

struct DoubleBytePage {
  int number;
  Pair (*pairOf)(unsigned lead, unsigned second);
  std::string_view frequent;  // the most frequent characters of messages and comments
};

constexpr DoubleBytePage kDoubleBytePages[] = {
    {932, pairOf932,
     "ぁあいうえおかがきぎくぐけげこごさざしじすずせそただちっつてでとどなにのはばひびふへべほぼま"
     "みむめも"
     "やゆよらりるれろわをんァアィイウェエォオカガキギクグケゲコゴサザシジスズセゼソタダチッツテデ"
     "トド"
     "ナニヌネノハバパヒビピフブプヘベペホボポマミムメモャヤュユョヨラリルレロワン表示定数字用名前"
     "文行列"
     "日時件番号入力出取得設終開始処理画面一覧合計金額更新削除追加確認"},
    {936, pairOf936,
     "的用件文不无数在法有中个字为是出语时行一名定符标使选表式置项能目要可对到列输和效示作入存指错"
     "已以"
     "录设于或本未程据器将分新号取大类误进值包型参信格引失显加除模接提序制命尔上支没过间被令正户部"
     "库动"
     "务建内息打前图重后索配多小密区下位了码省子认开所更度称需关空查如并签发应持系同创记现写此换果"
     "操最改"
     "版单窗口按钮返回删添保日期金额商品客库"},
    {949, pairOf949,
     "이다니지을수에습는로시없를하스가자일의정어기파음용리서사합트할인한은오위션아않터문대있그드제"
     "보만상"
     "치값옵름부으프크모함해표데패작실형입바키소력고식중된전경여버도설나명요업디들행블되면라열못테"
     "구세적비"
     "개과레료성목잘호류변거록출야미조화마령동번날재추삭저장회수량품단"},
    {950, pairOf950,
     "的用檔無不語案定法在式有字使數目選個時名示是設為指出項件位取標列一入元要行輸效錯可稱以作新資"
     "到已"
     "存本區顯未號或誤和能分動於格除錄組程文提引表值將大訊結開者符支對度令模合沒後重正型失置前加碼"
     "建間版"
     "料否內所鍵過來更敗會下如應執啟記立這小此子包單請變多類發寫需工理上器被移讀了生至圖交查詢刪存"
     "確"
     "期金額商客庫"},
};

struct PairCounts {
  std::size_t invalid = 0;
  std::size_t characters = 0;  // without marks
  std::size_t everyday = 0;
  std::size_t inRuns = 0;
  std::size_t frequent = 0;
};

class PairReader {
 public:
  /// `frequent` are the characters to count, as numbers lead * 256 + second.
  PairReader(const DoubleBytePage& page, const std::set<unsigned>& frequent)
      : page_(page), frequent_(frequent) {}

  PairCounts read(std::string_view text) {
    for (std::size_t i = 0; i < text.size();) i += take(text, i);
    endRun();
    return counts_;
  }

 private:
  /// The number of bytes taken.
  std::size_t take(std::string_view text, std::size_t i) {
    const unsigned lead = byteAt(text, i);
    if (lead < 0x80) {
      endRun();
      return 1;
    }
    if (page_.number == 932 && isIn(lead, 0xA1, 0xDF)) {  // kana of half width
      ++runLength_;
      return 1;
    }
    const unsigned second = i + 1 < text.size() ? byteAt(text, i + 1) : 0;
    const Pair pair = page_.pairOf(lead, second);
    if (pair == Pair::none) {
      const bool isRuler = i > 0 && byteAt(text, i - 1) == lead;
      if (!isRuler) ++counts_.invalid;
      endRun();
      return 1;
    }
    ++runLength_;
    if (pair == Pair::mark || lead == second) return 2;  // the same byte over and over is a ruler
    ++counts_.characters;
    ++inRun_;
    if (pair == Pair::everyday) ++counts_.everyday;
    if (frequent_.count(lead * 256 + second) != 0) ++counts_.frequent;
    return 2;
  }

  void endRun() {
    if (runLength_ > 1) counts_.inRuns += inRun_;
    runLength_ = 0;
    inRun_ = 0;
  }

  const DoubleBytePage& page_;
  const std::set<unsigned>& frequent_;
  PairCounts counts_;
  std::size_t runLength_ = 0;
  std::size_t inRun_ = 0;
};

bool isText(const PairCounts& counts) {
  return counts.characters >= 2 && counts.invalid * 50 <= counts.characters &&
         counts.everyday * 10 >= counts.characters * 9 &&
         counts.inRuns * 3 >= counts.characters * 2;
}

/// How much of the text is of the language's frequent characters, from 0 to 1; 0 too if it fails
/// another test.
double likenessTo(const DoubleBytePage& page, std::string_view text) {
  if (!isText(PairReader(page, {}).read(text))) return 0;  // mostly so: its table needn't be made
  std::set<unsigned> frequent;
  const std::string bytes = CodePage::find(page.number)->encode(page.frequent);
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    frequent.insert(byteAt(bytes, i) * 256 + byteAt(bytes, i + 1));
  }
  const PairCounts counts = PairReader(page, frequent).read(text);
  const double share =
      static_cast<double>(counts.frequent) / static_cast<double>(counts.characters);
  const double needed = counts.characters < 8 ? 0.5 : 0.25;
  return share >= needed ? share : 0;
}

// ---- alphabets

struct AlphabetPage {
  int number;
  std::string_view letters;  // of all languages of the page, the most frequent first
};

constexpr AlphabetPage kAlphabetPages[] = {
    {1251, "оеаинтсрвлкмдпуяыьзбгчйіжхцшюфщэїєћјњъљђџѓќўґѕё"},
    {1253, "αοετινσρμηπκυςλίγδήέάόχωθφύβώζξψϊϋΐΰ"},
    {1255, "יוהלתאמרנבשקפדסגטעחםןכצזךץף"},
    {1256, "اليمنروتدةبهسفعقشحکجكأصطخپگزذإغضىئثءچظآؤژً"},
    {874, "ารอกมนเ่้ดัลงีติสยบวแไ์ทคขหจปพูะชโืซุำใฟถณ็ผภษธฐึญศฉฤๆฬ"},
};

/// Runs of bytes above 0x7F that could be words of another alphabet.
struct Runs {
  std::vector<std::string_view> words;
  std::set<std::string_view> different;
  std::size_t letters = 0;  // bytes from 0xC0 on in the words
  std::size_t all = 0;      // those of all runs but rulers
};

Runs readRuns(std::string_view text) {
  Runs runs;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::size_t start = i;
    std::array<bool, 256> seen{};
    std::size_t kinds = 0;
    std::size_t letters = 0;
    std::size_t shortSteps = 0;
    for (; i < text.size() && isAboveAscii(text[i]); ++i) {
      const unsigned byte = byteAt(text, i);
      if (!seen[byte]) ++kinds;
      seen[byte] = true;
      if (byte >= 0xC0) ++letters;
      if (i > start && isIn(byte + 2 - byteAt(text, i - 1), 0, 4)) ++shortSteps;
    }
    const std::size_t length = i - start;
    if (length > 2 && kinds < 3) continue;  // a ruler
    runs.all += letters;
    // Tables of letters with accents go through the alphabet.
    if (length < 3 || shortSteps * 3 >= (length - 1) * 2) continue;
    runs.letters += letters;
    runs.words.push_back(text.substr(start, length));
    runs.different.insert(runs.words.back());
  }
  return runs;
}

/// Whether half of the letters are in such words: accented letters stand alone.
bool areMostWords(const Runs& runs) {
  return runs.letters * 2 >= runs.all;
}

/// The mean binary logarithm of the frequencies of the letters, if the words were of that page.
double likenessTo(const AlphabetPage& page, const std::vector<std::string_view>& words) {
  const std::size_t count = codePointCount(page.letters);
  std::array<double, 256> logs{};
  std::array<bool, 256> isUpper{};
  std::array<bool, 256> isLower{};
  for (unsigned byte = 0x80; byte < 256; ++byte) {
    const char alone = static_cast<char>(byte);
    const std::string decoded = CodePage::find(page.number)->decode(std::string_view(&alone, 1));
    std::size_t offset = 0;
    const char32_t upper = readCodePoint(decoded, offset);
    const std::size_t found = page.letters.find(lowered(decoded));
    isUpper[byte] = lowerCase(upper) != upper;
    isLower[byte] = !isUpper[byte] && !isCaseless(upper);
    if (found == std::string_view::npos) {
      logs[byte] = upper < 0xA0 ? -14 : -9;  // no character of the page; or a mark
      continue;
    }
    // What is known of the frequencies of letters by their rank.
    const double rank = static_cast<double>(codePointCount(page.letters.substr(0, found)) + 1);
    const double all = static_cast<double>(count);
    logs[byte] = std::log2(std::log((all + 1) / rank) / all);
  }
  double sum = 0;
  double letters = 0;
  for (const std::string_view word : words) {
    for (std::size_t i = 0; i < word.size(); ++i) {
      sum += logs[byteAt(word, i)];
      if (i > 0 && isUpper[byteAt(word, i)] && isLower[byteAt(word, i - 1)]) sum -= 6;
      ++letters;
    }
  }
  return sum / letters;
}

int doubleBytePage(std::string_view text) {
  int best = 0;
  double most = 0;
  for (const DoubleBytePage& page : kDoubleBytePages) {
    const double likeness = likenessTo(page, text);
    if (likeness > most) best = page.number;
    most = std::max(most, likeness);
  }
  return best;
}

int alphabetPage(std::string_view text) {
  const Runs runs = readRuns(text);
  const bool isPossible = runs.different.size() >= 4 && runs.letters >= 20 && areMostWords(runs);
  if (!isPossible) return 0;
  const AlphabetPage* best = nullptr;
  double most = 0;
  double second = 0;
  for (const AlphabetPage& page : kAlphabetPages) {
    const double likeness = likenessTo(page, runs.words);
    if (best == nullptr || likeness > most) {
      second = best == nullptr ? likeness - 100 : most;
      most = likeness;
      best = &page;
    } else {
      second = std::max(second, likeness);
    }
  }
  const double byChance = -std::log2(static_cast<double>(codePointCount(best->letters)));
  return most > byChance && most - second >= 0.25 ? best->number : 0;
}

}  // namespace

void ByteSample::add(std::string_view text) {
  if (isAscii(text) || isValidUtf8(text)) return;
  for (LineReader reader(text); lines_.size() < kEnough && reader.next();) {
    if (isAscii(reader.line())) continue;
    lines_ += reader.line().substr(0, kEnough - lines_.size());
    lines_ += '\n';
  }
}

bool ByteSample::canBe(int page) const {
  if (empty()) return true;
  for (const DoubleBytePage& entry : kDoubleBytePages) {
    if (entry.number == page) return isText(PairReader(entry, {}).read(lines_));
  }
  const bool isAlphabet =
      std::any_of(std::begin(kAlphabetPages), std::end(kAlphabetPages),
                  [&](const AlphabetPage& entry) { return entry.number == page; });
  if (!isAlphabet) return true;
  const Runs runs = readRuns(lines_);
  return runs.letters > 0 && areMostWords(runs);
}

int ByteSample::page() const {
  const int page = doubleBytePage(lines_);
  return page != 0 ? page : alphabetPage(lines_);
}

}  // namespace tamrikon
