#include "host/AccessibilityBus.h"

#include <QtCore/QLibrary>
#include <QtGui/QGuiApplication>

#include <cstdlib>
#include <memory>

#include <xcb/xcb.h>

namespace host {

namespace {

constexpr QByteArrayView propertyName("AT_SPI_BUS");
constexpr quint32 longestAddress = 1024; // in units of four bytes

struct Free {
    void operator()(void *reply) const { std::free(reply); }
};

/// The functions of the library that Qt has loaded.
struct Xcb {
    QLibrary library{QStringLiteral("xcb"), 1};
    decltype(&xcb_get_setup) getSetup = find<decltype(&xcb_get_setup)>("xcb_get_setup");
    decltype(&xcb_setup_roots_iterator) roots =
        find<decltype(&xcb_setup_roots_iterator)>("xcb_setup_roots_iterator");
    decltype(&xcb_intern_atom) internAtom = find<decltype(&xcb_intern_atom)>("xcb_intern_atom");
    decltype(&xcb_intern_atom_reply) atomReply = find<decltype(&xcb_intern_atom_reply)>("xcb_intern_atom_reply");
    decltype(&xcb_get_property) getProperty = find<decltype(&xcb_get_property)>("xcb_get_property");
    decltype(&xcb_get_property_reply) propertyReply =
        find<decltype(&xcb_get_property_reply)>("xcb_get_property_reply");
    decltype(&xcb_get_property_value) value = find<decltype(&xcb_get_property_value)>("xcb_get_property_value");
    decltype(&xcb_get_property_value_length) length =
        find<decltype(&xcb_get_property_value_length)>("xcb_get_property_value_length");

    bool isWhole() const
    {
        return getSetup && roots && internAtom && atomReply && getProperty && propertyReply && value && length;
    }

private:
    template <typename Function>
    Function find(const char *name)
    {
        return reinterpret_cast<Function>(library.resolve(name));
    }
};

// Of the first screen, which the bus is announced on.
xcb_window_t rootWindow(const Xcb &xcb, xcb_connection_t *display)
{
    const xcb_screen_iterator_t screens = xcb.roots(xcb.getSetup(display));
    return screens.rem > 0 ? screens.data->root : xcb_window_t(XCB_WINDOW_NONE);
}

xcb_atom_t atomOfProperty(const Xcb &xcb, xcb_connection_t *display)
{
    const auto question =
        xcb.internAtom(display, 1, static_cast<quint16>(propertyName.size()), propertyName.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, Free> reply(xcb.atomReply(display, question, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

} // namespace

QByteArray announcedAccessibilityBus()
{
    const auto *application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t *display = application ? application->connection() : nullptr;
    Xcb xcb;
    if (!display || !xcb.isWhole())
        return {};
    const xcb_atom_t property = atomOfProperty(xcb, display);
    if (property == XCB_ATOM_NONE)
        return {};
    const auto question =
        xcb.getProperty(display, 0, rootWindow(xcb, display), property, XCB_ATOM_STRING, 0, longestAddress);
    const std::unique_ptr<xcb_get_property_reply_t, Free> reply(xcb.propertyReply(display, question, nullptr));
    return reply ? QByteArray(static_cast<const char *>(xcb.value(reply.get())), xcb.length(reply.get()))
                 : QByteArray();
}

} // namespace host
