// Follows #If, #ElseIf, #Else, #End If and #Const through a module.
#pragma once

#include <string_view>
#include <vector>

#include "vb/conditional_expression.h"

namespace tamrikon {

class ConditionalCompilation {
 public:
  explicit ConditionalCompilation(const ConditionalConstants& constants) : constants_(constants) {}

  /// Takes `statement` if it is a directive: whether it is one.
  bool take(std::string_view statement);

  /// Whether statements count where the module has been read to.
  bool isLive() const { return branches_.empty() || branches_.back().isLive; }

 private:
  struct Branch {
    bool isLive;
    bool isDecided;  // whether no later branch of this #If can count
  };

  bool holds(std::string_view condition) const;

  ConditionalConstants constants_;
  std::vector<Branch> branches_;
};

}  // namespace tamrikon
