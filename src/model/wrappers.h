// The eight wrapper classes.
#pragma once

#include <string>

#include "comments/skeleton.h"
#include "model/member_wrapper.h"
#include "model/wrapper_collections.h"

namespace tamrikon {

/// A Sub, a Function or a Declare statement.
class Smethod final : public MemberWrapper {
 public:
  Smethod(ModuleSource& source, Member& member)
      : MemberWrapper(WrapperKind::method, source, member) {}
  CommentLines generateComment(const ProjectSettings& settings) const override;

  /// The source of the member, lines divided by CR; empty if the IDE can't tell.
  std::string getSourceCode() const;

 private:
  std::string pageReturn(const ParsedComment& parsed) const override;
  std::string pageSource(PageContext& context) const override;
};

/// An Event declaration.
class Sevent final : public MemberWrapper {
 public:
  Sevent(ModuleSource& source, Member& member)
      : MemberWrapper(WrapperKind::event, source, member) {}
  CommentLines generateComment(const ProjectSettings& settings) const override;
  std::string getSourceCode() const;

 private:
  std::string pageReturn(const ParsedComment& parsed) const override;
  std::string pageSource(PageContext& context) const override;
};

/// What the wrappers of a property's procedures have in common.
class PropertyWrapper : public MemberWrapper {
 public:
  int CodeLocation() const final;
  CommentLines generateComment(const ProjectSettings& settings) const final;

  /// The source of all procedures of the property, Get before Set before Let; the declaration of a
  /// public variable.
  std::string getSourceCode(const WrapperCollections& wrappers) const;

  /// How many arguments the declaration has, and a @param line for the last one.
  LastArgument generateCommentForLastArgument(const ProjectSettings& settings) const;

 protected:
  using MemberWrapper::MemberWrapper;

 private:
  std::string pageReturn(const ParsedComment& parsed) const override;
  std::string pageSource(PageContext& context) const final;
};

/// A Property Get, or the reading side of a public variable of a class.
class SpropGet final : public PropertyWrapper {
 public:
  SpropGet(ModuleSource& source, Member& member)
      : PropertyWrapper(WrapperKind::propGet, source, member) {}
  bool hasNoLetSet = true;

  /// The declared type.
  std::string getReturns() const;

 private:
  std::string pageReturn(const ParsedComment& parsed) const override;
};

/// A Property Let.
class SpropLet final : public PropertyWrapper {
 public:
  SpropLet(ModuleSource& source, Member& member)
      : PropertyWrapper(WrapperKind::propLet, source, member) {}
};

/// A Property Set, or the writing side of a public variable of a class.
class SpropSet final : public PropertyWrapper {
 public:
  SpropSet(ModuleSource& source, Member& member)
      : PropertyWrapper(WrapperKind::propSet, source, member) {}

  /// A @param line with the last @param entry of the comment, or empty if it has none.
  std::string getExistingCommentForLastArgument(const ProjectSettings& settings) const;
};

/// What variables and constants have in common.
class DataWrapper : public MemberWrapper {
 public:
  CommentLines generateComment(const ProjectSettings& settings) const final;

  /// What the page shows as the return value.
  virtual std::string getReturns() const = 0;

 protected:
  using MemberWrapper::MemberWrapper;

 private:
  std::string pageReturn(const ParsedComment&) const final { return getReturns(); }
  std::string pageSource(PageContext&) const final { return declaration(); }
  bool hasParameters() const final { return false; }
};

class Svariable final : public DataWrapper {
 public:
  Svariable(ModuleSource& source, Member& member)
      : DataWrapper(WrapperKind::variable, source, member) {}

  /// The declared type.
  std::string getReturns() const override;
};

class Sconstant final : public DataWrapper {
 public:
  Sconstant(ModuleSource& source, Member& member)
      : DataWrapper(WrapperKind::constant, source, member) {}

  /// The mark of the constant's type and its value.
  std::string getReturns() const override;
};

/// A standard module, form or class.
class Smodule final : public Wrapper {
 public:
  explicit Smodule(ModuleSource& source) : Wrapper(WrapperKind::module, source, source.name()) {}
  int CodeLocation() const override { return 1; }
  CommentLines generateComment(const ProjectSettings& settings) const override;
  std::string compile(PageContext& context) override;

  std::string ideDescription() const override { return cmo().Parent().Description(); }
  void setIdeDescription(const std::string& text) override { cmo().Parent().setDescription(text); }
  int ideHelpContextID() const override { return cmo().Parent().HelpContextID(); }
  void setIdeHelpContextID(int id, bool isKept) override {
    VBComponent& component = cmo().Parent();
    isKept ? component.setHelpContextID(id) : component.holdHelpContextID(id);
  }
};

/// A wrapper for the member, or null if its kind isn't known or, for a property, if its declaration
/// isn't where the IDE says.
WrapperRef makeWrapper(ModuleSource& source, Member& member);

/// A wrapper for the member that a line of source belongs to; for the module if there is none.
WrapperRef getWrapperAtLine(ModuleSource& source, int line);

}  // namespace tamrikon
