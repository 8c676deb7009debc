// A macro's text together with the macro calls in it, which are found once and kept.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace tamrikon {

struct MacroName;

// Offsets and token indices count from 0; texts that are expanded stay far below 4 GiB.
using TextIndex = std::uint32_t;
inline constexpr TextIndex kNowhere = std::numeric_limits<TextIndex>::max();

/// One macro call in a text.
struct MacroToken {
  TextIndex start;  // of the opening "$"
  TextIndex end;    // behind the last character, the closing "$" if there is one
  const MacroName* name;
};

/// What belongs to a DOLIST or IFNOTEMPTY tag. A text may be expanded in part only: what lies
/// behind the part's end counts as absent.
struct Construct {
  TextIndex tag;         // token of the tag
  TextIndex lineEnd;     // offset of the CR behind the tag, or kNowhere
  TextIndex bodyToken;   // first token behind that CR
  TextIndex endMarker;   // token that ends the construct, or kNowhere
  TextIndex elseMarker;  // token of the ELSEIF that divides the branches, or kNowhere

  /// The argument, if nothing is wrong in the whole text and the construct is complete.
  const MacroName* soundArgument = nullptr;
};

/// The rest of the fields is filled by scanMacros(). As no macro name crosses a line end and no
/// part of a text begins inside of a call, each part has exactly the tokens that lie within it.
struct MacroText {
  std::string text;
  bool isOfTemplate = false;  // as the template defines it
  std::string given;           // what `text` was made of, if that had other dollars
  bool isFromProject = false;  // and the template limits what such texts may call
  bool isScanned = false;
  std::vector<MacroToken> tokens;
  std::vector<Construct> constructs;  // ascending
  std::vector<TextIndex> wrongNames;  // tokens without a closing "$", ascending
  std::size_t users = 0;              // expansions in progress that read this text
  std::size_t lastResult = 0;         // length of the last finished expansion, in bytes

  /// Forgets what was found in an earlier text.
  void beginScan() {
    isScanned = true;
    tokens.clear();
    constructs.clear();
    wrongNames.clear();
  }
  std::string_view written(const MacroToken& token) const {
    return std::string_view(text).substr(token.start, token.end - token.start);
  }
  /// Whether the call lacks its closing "$".
  bool isWrong(const MacroToken& token) const {
    return token.end - token.start < 2 || text[token.end - 1] != '$';
  }
};

}  // namespace tamrikon
