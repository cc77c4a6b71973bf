// What lies over what: the screens and dialogs on show, in their order. Inside the toolkit only.
#pragma once

class QWidget;

/// A layer is a screen or a dialog. The order is that of their showing; whatever lies inside a layer (a sub-screen,
/// a dialog of the screen) comes up with it, and never higher. Keys belong to the layer on top.
namespace ZLayers {

enum class Kind {
    Screen,      ///< covers what is under it
    ModalDialog, ///< covers what is under it
    OpenDialog   ///< the layers under it can be reached with the pointer and the Tab key
};

/// `layer` was shown, or shown again: it and the layers inside it are now on top of the layer around it.
void shown(QWidget *layer, Kind kind);
/// `layer` was hidden or is about to be destroyed. Not finding it is no error.
void gone(const QWidget *layer);

/// The innermost layer on show that holds `widget`, `widget` itself included; null when there is none.
QWidget *layerOf(QWidget *widget);
/// The visible layer on top, in `window` only or (null) anywhere. A dialog with a window of its own precedes all.
QWidget *top(const QWidget *window);
/// The outermost screen around the visible screen last shown; null when no screen is visible.
QWidget *outermostScreen();
/// The layer on top of those that keep the keys from `layer`, or null.
QWidget *covering(const QWidget *layer);

/// Whether `widget` is on a layer that a screen or a dialog covers: nobody sees it or gets at it.
bool isHidden(QWidget *widget);

/// The widget of `layer` that takes its keys: the one that last had the focus, else the first that can have it,
/// else the layer.
QWidget *keyTarget(QWidget *layer);
/// Gives the keys to `layer`, or to the layer that covers it.
void takeKeys(QWidget *layer);
/// `layer` is going and is gone() already: where the focus is inside it, moves it to `preferred` if that can be
/// reached, or else to the layer then on top.
void passKeysOn(QWidget *layer, QWidget *preferred);
/// Moves the focus, as the Tab key does, from `layer` to the next widget of its window that no layer covers.
void tabOut(QWidget *layer, bool next);

} // namespace ZLayers
