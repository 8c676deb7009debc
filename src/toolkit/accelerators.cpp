#include "toolkit/accelerators.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tamrikon {
namespace {

constexpr std::size_t kNone = std::string::npos;
constexpr int kLetters = 26;

bool isLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// The place of a letter in the alphabet, from 0, in whichever case it is.
std::size_t indexOf(char letter) {
  return static_cast<std::size_t>((letter | 0x20) - 'a') % kLetters;
}

bool isPartOfWord(char c) {
  return isLetter(c) || (c >= '0' && c <= '9') || c == '\'' ||
         static_cast<unsigned char>(c) >= 0x80;
}

/// The letters of a caption, the best ones first, each letter once.
struct Candidates {
  std::vector<std::size_t> offsets;
  std::size_t firstLetters = 0;  // how many of them begin a word
};

Candidates candidatesOf(const std::string& caption) {
  Candidates result;
  std::array<bool, kLetters> known{};
  for (const bool beginsWord : {true, false}) {
    for (std::size_t i = 0; i < caption.size(); ++i) {
      if (!isLetter(caption[i]) || known[indexOf(caption[i])]) continue;
      if (beginsWord && i > 0 && isPartOfWord(caption[i - 1])) continue;
      known[indexOf(caption[i])] = true;
      result.offsets.push_back(i);
    }
    if (beginsWord) result.firstLetters = result.offsets.size();
  }
  return result;
}

class Choice {
 public:
  Choice(const std::vector<std::string>& captions, const std::string& taken)
      : captions_(captions), chosen_(captions.size(), kNone) {
    owners_.fill(kFree);
    for (const char c : taken) {
      if (isLetter(c)) ownerOf(c) = kTaken;
    }
    for (const std::string& caption : captions) candidates_.push_back(candidatesOf(caption));
  }

  std::vector<std::size_t> choose() {
    takeFree([](const Candidates& candidates) {
      return std::min<std::size_t>(1, candidates.firstLetters);
    });
    takeFree([](const Candidates& candidates) { return candidates.firstLetters; });
    takeFree([](const Candidates& candidates) { return candidates.offsets.size(); });
    for (std::size_t i = 0; i < captions_.size(); ++i) {
      std::array<bool, kLetters> tried{};
      if (chosen_[i] == kNone) takeFromOthers(i, tried);
    }
    return std::move(chosen_);
  }

 private:
  static constexpr int kFree = -1;
  static constexpr int kTaken = -2;

  int& ownerOf(char letter) { return owners_[indexOf(letter)]; }

  void give(std::size_t caption, std::size_t offset) {
    chosen_[caption] = offset;
    ownerOf(captions_[caption][offset]) = static_cast<int>(caption);
  }

  /// Gives each caption that has none yet the first free one of its best letters.
  template <typename Count>
  void takeFree(Count howMany) {
    for (std::size_t i = 0; i < captions_.size(); ++i) {
      const std::size_t count = howMany(candidates_[i]);
      for (std::size_t n = 0; n < count && chosen_[i] == kNone; ++n) {
        const std::size_t offset = candidates_[i].offsets[n];
        if (ownerOf(captions_[i][offset]) == kFree) give(i, offset);
      }
    }
  }

  /// All letters of the caption have owners: one of them may have another letter to go to.
  bool takeFromOthers(std::size_t caption, std::array<bool, kLetters>& tried) {
    for (const std::size_t offset : candidates_[caption].offsets) {
      const char letter = captions_[caption][offset];
      bool& wasTried = tried[indexOf(letter)];
      if (wasTried) continue;
      wasTried = true;
      const int owner = ownerOf(letter);
      if (owner == kTaken) continue;
      if (owner != kFree && !takeFromOthers(static_cast<std::size_t>(owner), tried)) continue;
      give(caption, offset);
      return true;
    }
    return false;
  }

  const std::vector<std::string>& captions_;
  std::vector<Candidates> candidates_;
  std::vector<std::size_t> chosen_;
  std::array<int, kLetters> owners_{};  // indexes of captions
};

}  // namespace

std::vector<std::size_t> chooseAccelerators(const std::vector<std::string>& captions,
                                            const std::string& taken) {
  return Choice(captions, taken).choose();
}

std::string markedCaption(const std::string& caption, std::size_t accelerator) {
  std::string result;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (i == accelerator || caption[i] == '&') result += '&';
    result += caption[i];
  }
  return result;
}

}  // namespace tamrikon
