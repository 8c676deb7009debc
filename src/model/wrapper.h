// A wrapper joins a member or module of the IDE with what its documentation needs. It is the unit
// that is documented, linked to and counted: a property has one for each of its procedures.
#pragma once

#include <memory>
#include <string>

#include "comments/comment_lines.h"
#include "ide/ide.h"
#include "model/module_source.h"
#include "model/wrapper_kind.h"
#include "settings/project_settings.h"
#include "template/topic_id.h"

namespace tamrikon {

struct PageContext;

class Wrapper {
 public:
  virtual ~Wrapper() = default;
  Wrapper(const Wrapper&) = delete;
  Wrapper& operator=(const Wrapper&) = delete;

  WrapperKind kind() const { return kind_; }
  const KindTraits& traits() const { return traitsOf(kind_, source_.type()); }
  std::string_view className() const { return traits().className; }

  TopicId id = TopicId::none;  // its number in the model that it belongs to
  int helpID = 0;              // number of the topic; 0 until set
  bool hadComment = false;     // the source has a structured comment for it
  bool needsModule = false;    // the name isn't unique: labels must add the module's name
  CommentList comment;         // null until it is fetched; wrappers with one comment share the list

  /// The wrapper whose topic serves this one: itself, unless comments were joined. Null until the
  /// comments are resolved.
  Wrapper* topic = nullptr;

  void shareCommentOf(const Wrapper& other) {
    comment = other.comment;
    comment->isShared = true;
  }

  CodeModule& cmo() const { return source_.module(); }
  ModuleSource& source() const { return source_; }

  /// Name of the member, or of the module.
  const std::string& name() const { return name_; }

  /// The canonical link.
  const std::string& link() const { return link_; }

  /// The first line of the declaration; 1 for a module. Fails for a property that lacks this kind.
  virtual int CodeLocation() const = 0;

  /// The declaration statement on one line.
  std::string declaration() const { return source_.lines().getDeclaration(CodeLocation()); }

  /// A comment made from the declaration, as body lines.
  virtual CommentLines generateComment(const ProjectSettings& settings) const = 0;

  /// Inserts a generated comment above the declaration; the snapshot in source() is old then.
  void addComment(const ProjectSettings& settings) const;

  /// Publishes the macros of the page and expands the template's section for it.
  virtual std::string compile(PageContext& context) = 0;

  // What the IDE keeps for the member, or for the module's component.
  virtual std::string ideDescription() const = 0;
  virtual void setIdeDescription(const std::string& text) = 0;
  virtual int ideHelpContextID() const = 0;

  /// `isKept`: the number shall get into the source, where the IDE makes a difference.
  virtual void setIdeHelpContextID(int id, bool isKept) = 0;

 protected:
  Wrapper(WrapperKind kind, ModuleSource& source, std::string name);

 private:
  const WrapperKind kind_;
  ModuleSource& source_;
  const std::string name_;
  const std::string link_;
};

using WrapperRef = std::shared_ptr<Wrapper>;

}  // namespace tamrikon
