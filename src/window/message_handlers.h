#pragma once

#include <type_traits>

#include "base/types.h"
#include "window/message_map.h"
#include "window/wnd.h"

/// Message tables: one static table for each class joins a control id (or a range of them) and a
/// notification, a message, or an idle update to a member function. The look-up goes from the
/// derived class to its base.
///
///     const kv::MessageMap& CKvABEBar::Messages() {
///         static const kv::MessageEntry kEntries[] = {
///             kv::OnClicked<&CKvABEBar::OnABERun>(29086),
///             kv::OnUpdate<&CKvABEBar::OnUpdateRunButton>(29086),
///         };
///         static const kv::MessageMap kMap{&CDialogBar::Messages(), kEntries};
///         return kMap;
///     }
///
/// with `const kv::MessageMap& GetMessageMap() const override { return Messages(); }` in the class.
namespace kv {

namespace detail {

template <typename Member>
struct MemberTraits;

template <typename Class_, typename Result_, typename... Args_>
struct MemberTraits<Result_ (Class_::*)(Args_...)> {
    using Class = Class_;
    using Result = Result_;
    template <template <typename...> typename To>
    using Args = To<Args_...>;
};

/// Cracks an event into the arguments that the handler's signature asks for.
template <typename... Args>
struct Cracker;

template <>
struct Cracker<> {
    template <typename F>
    static auto Call(F&& f, const Event&) {
        return f();
    }
};
/// Command and notification ranges: the control's id.
template <>
struct Cracker<UINT> {
    template <typename F>
    static auto Call(F&& f, const Event& e) {
        return f(static_cast<UINT>(e.id));
    }
};
template <>
struct Cracker<CCmdUI*> {
    template <typename F>
    static auto Call(F&& f, const Event& e) {
        return f(e.update);
    }
};
template <>
struct Cracker<WPARAM, LPARAM> {
    template <typename F>
    static auto Call(F&& f, const Event& e) {
        return f(e.wParam, e.lParam);
    }
};
template <>
struct Cracker<NMHDR*, LRESULT*> {
    template <typename F>
    static auto Call(F&& f, const Event& e) {
        return f(reinterpret_cast<NMHDR*>(e.lParam), reinterpret_cast<LRESULT*>(e.wParam));
    }
};
/// WM_CHAR, WM_KEYDOWN: the key, its repeat count, its flags.
template <>
struct Cracker<UINT, UINT, UINT> {
    template <typename F>
    static auto Call(F&& f, const Event& e) {
        return f(static_cast<UINT>(e.wParam),
                 static_cast<UINT>(LOWORD(static_cast<UINT>(e.lParam))),
                 static_cast<UINT>(HIWORD(static_cast<UINT>(e.lParam))));
    }
};
/// Mouse: the keys held, the place.
template <>
struct Cracker<UINT, CPoint> {
    template <typename F>
    static auto Call(F&& f, const Event& e) {
        return f(static_cast<UINT>(e.wParam),
                 CPoint{static_cast<std::int16_t>(LOWORD(static_cast<UINT>(e.lParam))),
                        static_cast<std::int16_t>(HIWORD(static_cast<UINT>(e.lParam)))});
    }
};
/// WM_SETFOCUS, WM_KILLFOCUS: the other window.
template <>
struct Cracker<CWnd*> {
    template <typename F>
    static auto Call(F&& f, const Event& e) {
        return f(CWnd::FromHandle(reinterpret_cast<HWND>(e.wParam)));
    }
};
/// WM_HSCROLL, WM_VSCROLL: what, where to, the scroll bar.
template <>
struct Cracker<UINT, UINT, CWnd*> {
    template <typename F>
    static auto Call(F&& f, const Event& e) {
        return f(static_cast<UINT>(LOWORD(e.wParam)), static_cast<UINT>(HIWORD(e.wParam)),
                 CWnd::FromHandle(reinterpret_cast<HWND>(e.lParam)));
    }
};
/// WM_SHOWWINDOW: whether, why.
template <>
struct Cracker<BOOL, UINT> {
    template <typename F>
    static auto Call(F&& f, const Event& e) {
        return f(static_cast<BOOL>(e.wParam), static_cast<UINT>(e.lParam));
    }
};
/// WM_CTLCOLOR: see `ControlColorRequest`.
template <>
struct Cracker<CDC*, CWnd*, UINT> {
    template <typename F>
    static auto Call(F&& f, const Event& e) {
        const auto* request = reinterpret_cast<const ControlColorRequest*>(e.lParam);
        return f(request->context, request->control, request->kind);
    }
};

/// A member function with the object that it is called on.
template <typename Class, auto Member>
struct Bound {
    Class& self;

    template <typename... Args>
    auto operator()(Args... args) const {
        return (self.*Member)(args...);
    }
};

template <auto Member>
Handled Call(CWnd& window, const Event& event) {
    using Traits = MemberTraits<decltype(Member)>;
    using Class = typename Traits::Class;
    const Bound<Class, Member> invoke{static_cast<Class&>(window)};
    using Crack = typename Traits::template Args<Cracker>;
    using Result = typename Traits::Result;
    if constexpr (std::is_void_v<Result>) {
        Crack::Call(invoke, event);
        return {};
    } else if constexpr (std::is_same_v<Result, bool>) {
        return {Crack::Call(invoke, event), 0};
    } else if constexpr (std::is_pointer_v<Result>) {
        return {true, reinterpret_cast<LRESULT>(Crack::Call(invoke, event))};
    } else {
        return {true, static_cast<LRESULT>(Crack::Call(invoke, event))};
    }
}

}  // namespace detail

/// A notification of a control, or of each control in a range of ids. A handler that returns `bool`
/// says whether it took the notification.
template <auto Member>
constexpr MessageEntry OnControl(int code, int id) {
    return {MessageEntry::Kind::kCommand, code, id, id, &detail::Call<Member>};
}
template <auto Member>
constexpr MessageEntry OnControlRange(int code, int first, int last) {
    return {MessageEntry::Kind::kCommand, code, first, last, &detail::Call<Member>};
}
/// A click of a button, or a command.
template <auto Member>
constexpr MessageEntry OnClicked(int id) {
    return OnControl<Member>(CN_COMMAND, id);
}
/// A notification that the control itself handles, ahead of its parent.
template <auto Member>
constexpr MessageEntry OnReflected(int code) {
    return {MessageEntry::Kind::kReflected, code, 0, 0, &detail::Call<Member>};
}
/// A notification with a record (WM_NOTIFY) of a control.
template <auto Member>
constexpr MessageEntry OnNotify(int code, int id) {
    return {MessageEntry::Kind::kNotify, code, id, id, &detail::Call<Member>};
}
/// A notification with a record that the control itself handles, ahead of its parent.
template <auto Member>
constexpr MessageEntry OnReflectedNotify(int code) {
    return {MessageEntry::Kind::kReflectedNotify, code, 0, 0, &detail::Call<Member>};
}
/// The idle update of a command.
template <auto Member>
constexpr MessageEntry OnUpdate(int id) {
    return {MessageEntry::Kind::kUpdate, CN_UPDATE_COMMAND_UI, id, id, &detail::Call<Member>};
}
/// A message of the window itself; the handler's signature says what it wants to know.
template <auto Member>
constexpr MessageEntry OnMessage(UINT message) {
    return {MessageEntry::Kind::kMessage, static_cast<int>(message), 0, 0, &detail::Call<Member>};
}

}  // namespace kv
