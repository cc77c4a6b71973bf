// What a screen reader is told of screens, dialogs, lists and softkeys. Inside the toolkit only.
#pragma once

class QAbstractButton;
class ZListBox;

/// Qt asks for it where somebody listens, and only then: until then nothing is made and nothing is sent.
namespace ZAccessible {

/// To be called when a widget of the toolkit is made; only the first call does something.
void install();

/// The focus has come to `list`: it is told to be on the row under the bar.
void focusCame(ZListBox *list);
/// `list` has a row more, which is row `row`.
void rowAdded(ZListBox *list, int row);
/// Row `row` of `list` reads another way.
void rowChanged(ZListBox *list, int row);

/// A softkey has got its first caption, or has lost it.
void keyAppeared(QAbstractButton *key);
void keyVanished(QAbstractButton *key);

} // namespace ZAccessible
