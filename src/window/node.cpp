#include "window/node.h"

#include <algorithm>
#include <cstring>

#include "window/node_factory.h"
#include "window/window_system.h"
#include "window/wnd.h"

namespace kv {

int CopyText(std::string_view text, char* buffer, std::size_t size) {
    if (!buffer || size == 0) return 0;
    const std::size_t length = std::min(text.size(), size - 1);
    std::memcpy(buffer, text.data(), length);
    buffer[length] = '\0';
    return static_cast<int>(length);
}

Node::Node(NodeClass nodeClass, int id, DWORD style) : class_(nodeClass), id_(id), style_(style) {}

Node::~Node() {
    if (!destroyed_) WindowSystem::Get().Forget(*this);
    if (handle_) handle_->m_hWnd = nullptr;
    for (CWnd* behind : handlesBehind_)
        behind->m_hWnd = nullptr;
    if (lookupHandle_) lookupHandle_->m_hWnd = nullptr;
    for (const auto& child : children_)
        child->parent_ = nullptr;
}

void Node::AddChild(std::shared_ptr<Node> child) {
    child->parent_ = this;
    children_.push_back(std::move(child));
    Tell(Change::kChildren);
}

void Node::MoveChild(Node& child, Node* after) {
    const auto at = std::find_if(children_.begin(), children_.end(),
                                 [&](const auto& each) { return each.get() == &child; });
    if (at == children_.end()) return;
    auto moved = *at;
    children_.erase(at);
    auto target = children_.begin();
    if (after) {
        target = std::find_if(children_.begin(), children_.end(),
                              [&](const auto& each) { return each.get() == after; });
        if (target != children_.end()) ++target;
    }
    children_.insert(target, std::move(moved));
    Tell(Change::kZOrder);
}

Node* Node::FindChild(int id) const {
    const auto at = std::find_if(children_.begin(), children_.end(),
                                 [id](const auto& child) { return child->id_ == id; });
    return at == children_.end() ? nullptr : at->get();
}

Node* Node::Host() {
    for (Node* node = this; node; node = node->parent_) {
        if (node->class_ == NodeClass::kFrame || node->class_ == NodeClass::kDialog ||
            node->class_ == NodeClass::kBar || !node->parent_) {
            return node;
        }
    }
    return this;
}

Node* Node::Root() {
    Node* node = this;
    while (node->parent_)
        node = node->parent_;
    return node;
}

bool Node::IsSelfOrDescendantOf(const Node& ancestor) const {
    for (const Node* node = this; node; node = node->parent_) {
        if (node == &ancestor) return true;
    }
    return false;
}

void Node::SetText(std::string text) {
    if (text == text_) return;
    text_ = std::move(text);
    TextChanged();
    Tell(Change::kText);
}

void Node::SetFont(const Font* font) {
    font_ = font ? std::optional(*font) : std::nullopt;
    Tell(Change::kFont);
}

void Node::SetToolTip(std::string text) {
    toolTip_ = std::move(text);
    Tell(Change::kToolTip);
}

void Node::SetStyle(DWORD style) {
    const DWORD changed = style_ ^ style;
    if (!changed) return;
    style_ = style;
    if (changed & WS_DISABLED) Tell(Change::kEnabled);
    if (changed & WS_VISIBLE) Tell(Change::kVisible);
    if (changed & ~(WS_DISABLED | WS_VISIBLE)) Tell(Change::kStyle);
}

bool Node::ReallyEnabled() const {
    for (const Node* node = this; node; node = node->parent_) {
        if (!node->Enabled()) return false;
    }
    return true;
}

bool Node::ReallyVisible() const {
    for (const Node* node = this; node; node = node->parent_) {
        if (!node->Visible()) return false;
    }
    return true;
}

bool Node::SetEnabled(bool enabled) {
    if (enabled == Enabled()) return false;
    SetStyle(enabled ? style_ & ~WS_DISABLED : style_ | WS_DISABLED);
    return true;
}

bool Node::SetVisible(bool visible) {
    if (visible == Visible()) return false;
    SetStyle(visible ? style_ | WS_VISIBLE : style_ & ~WS_VISIBLE);
    return true;
}

void Node::SetRect(const CRect& rect) {
    if (rect == rect_) return;
    rect_ = rect;
    Tell(Change::kRect);
}

CRect Node::ScreenRect() const {
    CRect rect = rect_;
    for (const Node* node = parent_; node; node = node->parent_) {
        rect.OffsetRect(node->rect_.left, node->rect_.top);
    }
    return rect;
}

bool Node::Shown() const {
    for (const Node* node = this; node; node = node->parent_) {
        const bool host = node->class_ == NodeClass::kFrame || node->class_ == NodeClass::kDialog ||
                          node->class_ == NodeClass::kBar || !node->parent_;
        if (host && !node->shown_) return false;
    }
    return true;
}

Node* Node::LastFocus() const {
    const auto last = lastFocus_.lock();
    if (!last || last->destroyed_ || !last->IsSelfOrDescendantOf(*this)) return nullptr;
    for (const Node* node = last.get(); node != this; node = node->parent_) {
        if (!node->Enabled() || !node->Visible()) return nullptr;
    }
    return last.get();
}

bool Node::HasHandle(const CWnd* handle) const {
    return handle == handle_ || std::ranges::find(handlesBehind_, handle) != handlesBehind_.end();
}

CWnd* Node::HandleBehind(const CWnd* handle) const {
    const auto at = std::ranges::find(handlesBehind_, handle);
    if (handle != handle_ && at == handlesBehind_.end()) return nullptr;
    return at == handlesBehind_.begin() ? nullptr : *std::prev(at);
}

CWnd* Node::AnyHandle() {
    return handle_ ? handle_ : CWnd::LookupHandle(this);
}

LRESULT Node::Process(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SETFONT:
            SetFont(reinterpret_cast<const Font*>(wParam));
            return 0;
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(font_ ? &*font_ : nullptr);
        case WM_SETTEXT:
            SetText(lParam ? TextOf(lParam) : "");
            return TRUE;
        case WM_GETTEXT:
            return CopyText(text_, reinterpret_cast<char*>(lParam), wParam);
        case WM_GETTEXTLENGTH:
            return static_cast<LRESULT>(text_.size());
        case WM_GETDLGCODE:
            return DialogCode();
        case WM_CLOSE:
            WindowSystem::Get().Destroy(*this);
            return 0;
        default:
            return 0;
    }
}

LRESULT Node::Notify(int code) {
    if (!parent_ || destroyed_) return 0;
    return Send(*parent_, WM_COMMAND, MAKEWPARAM(id_, code), reinterpret_cast<LPARAM>(this));
}

void Node::Tell(Change change) {
    WindowSystem::Get().NoteChange();
    if (view_) view_->Changed(change);
}

std::shared_ptr<Node> MakeNode(NodeClass nodeClass, int id, DWORD style) {
    const Factory* factory = FindFactory(nodeClass);
    return factory ? factory->makeNode(id, style) : std::make_shared<Node>(nodeClass, id, style);
}

LRESULT Send(Node& node, UINT message, WPARAM wParam, LPARAM lParam) {
    if (node.Destroyed()) return 0;
    const auto keep = node.shared_from_this();
    CWnd* handle = node.Handle();
    try {
        return handle ? handle->WindowProc(message, wParam, lParam)
                      : node.Process(message, wParam, lParam);
    } catch (...) {
        WindowSystem::Get().HandlerFailed();
    }
    return 0;
}

}  // namespace kv
