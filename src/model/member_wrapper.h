// What the seven wrappers of members have in common.
#pragma once

#include <string>

#include "comments/parsed_comment.h"
#include "model/wrapper.h"

namespace tamrikon {

class MemberWrapper : public Wrapper {
 public:
  Member& member() const { return member_; }

  int CodeLocation() const override;
  std::string compile(PageContext& context) final;

  std::string ideDescription() const final { return member_.Description(); }
  void setIdeDescription(const std::string& text) final { member_.setDescription(text); }
  int ideHelpContextID() const final { return member_.HelpContextID(); }
  void setIdeHelpContextID(int id, bool isKept) final {
    isKept ? member_.setHelpContextID(id) : member_.holdHelpContextID(id);
  }

 protected:
  MemberWrapper(WrapperKind kind, ModuleSource& source, Member& member)
      : Wrapper(kind, source, member.Name()), member_(member) {}

 private:
  /// The value of MEMBER-RETURN.
  virtual std::string pageReturn(const ParsedComment& parsed) const = 0;

  /// The text of MEMBER-SOURCECODE where the source is wanted, its lines divided by CR.
  virtual std::string pageSource(PageContext& context) const = 0;

  /// Whether the page has arguments to list.
  virtual bool hasParameters() const { return true; }

  std::string wantedSource(PageContext& context, const ParsedComment& parsed) const;

  Member& member_;
};

}  // namespace tamrikon
