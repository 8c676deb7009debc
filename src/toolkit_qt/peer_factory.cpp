#include "toolkit_qt/peer_factory.h"

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <utility>

#include "toolkit_qt/button_peers.h"
#include "toolkit_qt/caption_marks.h"
#include "toolkit_qt/container_peers.h"
#include "toolkit_qt/folder_tree_peer.h"
#include "toolkit_qt/grid_peer.h"
#include "toolkit_qt/list_peers.h"
#include "toolkit_qt/text_box_peers.h"
#include "toolkit_qt/text_peers.h"
#include "toolkit_qt/value_peers.h"

namespace tamrikon {
namespace {

bool isBox(const Control& control) {
  return dynamic_cast<const TextBox*>(&control) != nullptr ||
         dynamic_cast<const ComboBox*>(&control) != nullptr ||
         dynamic_cast<const ListBox*>(&control) != nullptr ||
         dynamic_cast<const CheckList*>(&control) != nullptr ||
         dynamic_cast<const Grid*>(&control) != nullptr ||
         dynamic_cast<const FolderTree*>(&control) != nullptr;
}

Control* firstBox(const Layout& part) {
  if (part.kind == Layout::Kind::control) return isBox(*part.control) ? part.control : nullptr;
  for (const Layout& child : part.children) {
    if (Control* box = firstBox(child)) return box;
  }
  return nullptr;
}

/// Default and cancel buttons have keys already.
bool wantsAccelerator(const Control& control) {
  if (const auto* button = dynamic_cast<const CommandButton*>(&control)) {
    return button->role() == ButtonRole::plain;
  }
  return dynamic_cast<const CheckBox*>(&control) != nullptr ||
         dynamic_cast<const OptionButton*>(&control) != nullptr;
}

}  // namespace

template <typename P>
Peer* PeerFactory::makeIf(Control& control, QWidget* parent) {
  auto* known = dynamic_cast<typename P::ControlType*>(&control);
  if (known == nullptr) return nullptr;
  return &peers_.add(std::make_unique<P>(context_, *known, parent));
}

template <typename... Peers>
Peer& PeerFactory::makeAny(Control& control, QWidget* parent) {
  Peer* made = nullptr;
  static_cast<void>(((made = makeIf<Peers>(control, parent)) || ...));
  if (made == nullptr) throw std::logic_error("no widget is known for " + control.name());
  return *made;
}

Peer& PeerFactory::makePeer(Control& control, QWidget* parent) {
  if (auto* box = dynamic_cast<TextBox*>(&control)) {
    return peers_.add(makeTextBoxPeer(context_, *box, parent));
  }
  return makeAny<LabelPeer, CommandButtonPeer, CheckBoxPeer, OptionButtonPeer, ListBoxPeer,
                 CheckListPeer, ComboBoxPeer, GridPeer, SpinControlPeer, ProgressIndicatorPeer,
                 FolderTreePeer, StatusBarPeer>(control, parent);
}

Peer& PeerFactory::make(const Layout& part, QWidget* parent) {
  Control& control = *part.control;
  Peer& peer = makePeer(control, parent);
  peer.askForRoom(part.characters, part.lines);
  if (wantsAccelerator(control)) context_.marks.add(control, page_);
  joinGroup(control, peer);
  addBoxes(part, peer);
  return peer;
}

void PeerFactory::joinGroup(Control& control, Peer& peer) {
  const auto* option = dynamic_cast<const OptionButton*>(&control);
  if (option == nullptr) return;
  QButtonGroup*& group = groups_[&option->group()];
  if (group == nullptr) group = new QButtonGroup(&window_);
  static_cast<OptionButtonPeer&>(peer).joinGroup(*group);
}

void PeerFactory::addBoxes(const Layout& part, Peer& peer) {
  for (TextBox* box : part.boxes) {
    auto& grid = static_cast<GridPeer&>(peer);
    grid.addBox(peers_.add(makeTextBoxPeer(context_, *box, grid.boxParent())));
  }
}

FramePeer& PeerFactory::makeFrame(Frame& frame, QWidget* parent) {
  return peers_.add(std::make_unique<FramePeer>(context_, frame, parent));
}

TabStripPeer& PeerFactory::makeTabs(TabStrip& strip, QWidget* parent) {
  return peers_.add(std::make_unique<TabStripPeer>(context_, strip, parent));
}

int PeerFactory::enterPage() {
  return std::exchange(page_, context_.marks.addPage(page_));
}

void PeerFactory::nameBox(Control& label, const Layout& part) {
  const Control* box = firstBox(part);
  if (box == nullptr) return;
  static_cast<LabelPeer*>(peers_.of(label))->setBuddy(*peers_.of(*box));
  context_.marks.add(label, page_);
}

void PeerFactory::orderTabs() {
  QWidget* last = nullptr;
  for (const auto& peer : peers_.all()) {
    QWidget& next = peer->focusTarget();
    if (next.focusPolicy() == Qt::NoFocus) continue;
    if (last != nullptr) QWidget::setTabOrder(last, &next);
    last = &next;
  }
}

void PeerFactory::finish() {
  const bool hasDefault =
      std::any_of(peers_.all().begin(), peers_.all().end(), [](const std::unique_ptr<Peer>& peer) {
        const auto* button = dynamic_cast<const CommandButton*>(&peer->control());
        return button != nullptr && button->role() == ButtonRole::default_;
      });
  const auto buttons = std::make_shared<PushButton::Group>();
  for (const auto& peer : peers_.all()) {
    if (auto* button = dynamic_cast<CommandButtonPeer*>(peer.get())) {
      // Without a default button Qt would take the first one.
      button->button().setAutoDefault(hasDefault);
      buttons->push_back(&button->button());
      button->button().standIn(buttons);
    }
    if (auto* spin = dynamic_cast<SpinControl*>(&peer->control())) {
      if (Peer* box = peers_.of(spin->buddy())) {
        static_cast<SpinControlPeer&>(*peer).setBuddy(box->widget());
      }
    }
  }
  orderTabs();
  for (const auto& peer : peers_.all()) peer->changed();
}

}  // namespace tamrikon
