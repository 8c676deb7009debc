#include "editor/edit_comment.h"

#include <utility>

#include "compiler/store.h"
#include "editor/compose_comment.h"
#include "editor/edit_comment_options.h"
#include "editor/selection.h"

namespace tamrikon {
namespace {

bool hasParameters(WrapperKind kind) {
  return kind == WrapperKind::method || kind == WrapperKind::event || isProperty(kind);
}

}  // namespace

EditComment::EditComment(Session& session)
    : Dialog(session.toolkit, "EditComment", "Tamrikon Comment Editor"),
      parametersPage(*this, fields_, boxes_, session.settings),
      referencesPage(*this, fields_, boxes_, session),
      session_(session) {
  cmdOK.setRole(ButtonRole::default_);
  cmdCancel.setRole(ButtonRole::cancel);
  tbsOptions.onClick = [this] {
    if (tbsOptions.selected() + 1 == static_cast<int>(tbsOptions.tabs().size())) composeComment();
  };
  sourcePage.Command1.onClick = [this] { showOptions(); };
  cmdOK.onClick = [this] {
    apply();
    close();
  };
  cmdCancel.onClick = [this] { close(); };
  cmdApply.onClick = [this] { apply(); };
}

void EditComment::onLoad() {
  edited_.reset();
  tryStep([this] { load(); });
  if (!edited_) close();
}

void EditComment::load() {
  tbsOptions.select("Group1");
  CodePane* pane = VBInstance->ActiveCodePane();
  if (pane == nullptr || !isEmpty(pane->GetSelection())) return;
  CodeModule& module = pane->CodeModule();
  auto edited =
      std::make_unique<EditedComment>(module, pane->GetSelection().startLine, session_.settings);
  // The macros of the last compile don't outlive it.
  session_.currentStore = std::make_unique<store>(session_);
  const Wrapper& member = edited->member();
  setCaption(member.name() + " - Tamrikon Comment Editor");
  parametersPage.enable(hasParameters(member.kind()));
  parametersPage.generatedLines = edited->generatedLines();
  referencesPage.VBInstance = VBInstance;
  referencesPage.edited = edited.get();
  fields_ = parseIntoFields(edited->commentLines(), session_.settings);
  edited_ = std::move(edited);
  fillControls();
  if (session_.settings.autoUpdateParams == 1) parametersPage.update();
}

void EditComment::fillControls() {
  boxes_.show();
  parametersPage.show();
  referencesPage.show();
  miscPage.show();
  userPage.show(session_.settings);
  sourcePage.SourceView.setText(CollectionToCommentString(edited_->commentLines()));
}

CommentLines EditComment::composeComment() {
  // The box that has the focus keeps it where a key alone brought the user here.
  boxes_.take();
  parametersPage.take();
  CommentLines lines = tamrikon::composeComment(fields_, session_.settings);
  sourcePage.SourceView.setText(CollectionToCommentString(lines));
  return lines;
}

void EditComment::apply() {
  const bool isWritten = tryStep([this] { edited_->replace(composeComment(), group); });
  if (isWritten) tryStep([this] { session_.settingsFile.writeSettingsFile(*VBInstance); });
}

void EditComment::showOptions() {
  EditCommentOptions(toolkit(), session_.settings).showModal();
  composeComment();
}

Layout EditComment::layout() {
  return column({
      tabbed(tbsOptions, {basicPage.layout(), parametersPage.layout(), referencesPage.layout(),
                          miscPage.layout(), userPage.layout(), sourcePage.layout()})
          .growing(),
      row({space(), item(cmdOK), item(cmdCancel), item(cmdApply)}),
  });
}

}  // namespace tamrikon
