// The phone's keys, and the keys of a desktop keyboard that stand for them.
#pragma once

#include <QtCore/Qt>

#include <array>

namespace ZKeys {

/// The six keys every screen works with. Other keys mean nothing to a screen.
enum class PhoneKey { None, Up, Down, Select, LeftSoftkey, RightSoftkey, Clear };

struct Binding {
    PhoneKey phoneKey;
    Qt::Key key;
};

/// Every binding; the first of each phone key is the one a handset itself sends.
inline constexpr std::array<Binding, 14> bindings = {{
    {PhoneKey::Up, Qt::Key_Up},
    {PhoneKey::Down, Qt::Key_Down},
    {PhoneKey::Select, Qt::Key_Select},
    {PhoneKey::Select, Qt::Key_Return},
    {PhoneKey::Select, Qt::Key_Enter},
    {PhoneKey::Select, Qt::Key_Space},
    {PhoneKey::LeftSoftkey, Qt::Key_Context1},
    {PhoneKey::LeftSoftkey, Qt::Key_F1},
    {PhoneKey::RightSoftkey, Qt::Key_Context2},
    {PhoneKey::RightSoftkey, Qt::Key_F2},
    {PhoneKey::Clear, Qt::Key_Clear},
    {PhoneKey::Clear, Qt::Key_Escape},
    {PhoneKey::Clear, Qt::Key_Backspace},
    {PhoneKey::Clear, Qt::Key_Back},
}};
static_assert(bindings.size() == 14 && bindings.back().key == Qt::Key_Back);

/// The phone key that `qtKey` (a Qt::Key) stands for; None when it stands for none.
constexpr PhoneKey phoneKey(int qtKey)
{
    for (const Binding &binding : bindings) {
        if (binding.key == qtKey)
            return binding.phoneKey;
    }
    return PhoneKey::None;
}

} // namespace ZKeys
