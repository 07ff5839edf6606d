#pragma once

#include "act/Variant.h"
#include "support/Error.h"
#include "win32/ComPtr.h"

#include <array>
#include <span>
#include <type_traits>
#include <utility>

/// Name of a member on the wire, with the place that an error names. Made implicitly from a literal.
struct Member {
    Member(const wchar_t* name, Where at = Where::current()) : Name(name), At(at) {} // NOLINT(*-explicit-*)

    const wchar_t* Name;
    Where At;
};

/// An automation object called by name: the only place that meets IDispatch. Every failed call throws Error with the
/// number that Basic programmers know and the server's own description when it gave one.
class Dispatch {
public:
    Dispatch() = default;
    explicit Dispatch(ComPtr<IDispatch> object) : object_(std::move(object)) {}

    /// Creates the object of a ProgID, in process or out of process.
    static Dispatch Create(const wchar_t* progId, Where at = Where::current());

    /// From now on a call that is refused is repeated for ten minutes, not for one: opening a database may take as
    /// long. A call that has been accepted is always waited for.
    static void WaitLonger();

    explicit operator bool() const { return static_cast<bool>(object_); }
    IDispatch* Get() const { return object_.Get(); }
    void Release() { *this = {}; }

    /// A method whose result is not used.
    template <class... A>
    void Call(Member member, A&&... arguments) const {
        Invoke(member, DISPATCH_METHOD, Reversed(std::forward<A>(arguments)...), nullptr);
    }
    /// A property, or a method with a result: servers may implement a getter as either.
    template <class... A>
    Variant Get(Member member, A&&... arguments) const {
        Variant result;
        Invoke(member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, Reversed(std::forward<A>(arguments)...), &result);
        return result;
    }
    template <class A>
    void Put(Member member, A&& value) const {
        Invoke(member, DISPATCH_PROPERTYPUT, Reversed(std::forward<A>(value)), nullptr);
    }

private:
    /// Automation takes arguments last one first.
    template <class... A>
    static std::array<Variant, sizeof...(A)> Reversed(A&&... arguments) {
        std::array<Variant, sizeof...(A)> reversed;
        std::size_t position = sizeof...(A);
        ((reversed[--position] = Variant(std::forward<A>(arguments))), ...);
        return reversed;
    }
    void Invoke(const Member& member, WORD flags, std::span<const Variant> arguments, Variant* result) const;
    /// Asks the server once for each name: by OLE Automation's rules the answer holds as long as the object.
    DISPID IdentifierOf(const Member& member) const;

    struct Known {
        const wchar_t* Name;
        DISPID Identifier;
    };
    ComPtr<IDispatch> object_;
    mutable std::array<Known, 8> known_{}; ///< the application object has eight members
};

/// The Error that a failed automation call stands for. Fills in a deferred EXCEPINFO and frees its texts.
Error AutomationError(HRESULT code, EXCEPINFO& exception, Where at);
