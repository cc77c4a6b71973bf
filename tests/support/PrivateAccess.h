// A way to a private member of a class that is tested from outside.
#pragma once

/// KAV_EXPOSE(Tag, &Class::member) makes exposed(Tag()) answer that pointer to member. The language lets an explicit
/// instantiation name private members, for just this.
template <typename Tag, auto Member>
struct Expose {
    friend constexpr auto exposed(Tag) { return Member; }
};

// The tag belongs to its file: another file of the program may give the same name to another member.
#define KAV_EXPOSE(TAG, ...)                                                                                      \
    namespace {                                                                                                   \
    struct TAG {                                                                                                  \
    };                                                                                                            \
    }                                                                                                             \
    constexpr auto exposed(TAG);                                                                                  \
    template struct Expose<TAG, __VA_ARGS__>
