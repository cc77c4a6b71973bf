// The plug-in's calls into the toolkit, the message client and Qt, recorded with their arguments.
//
// A program that links kav_toolkit_recorder and exports its symbols stands between the plug-in and those libraries:
// each call of the operations in ToolkitRecorder.cpp on an object of the plug-in's making is recorded in the journal,
// and then goes to the library's own. What an operation calls in turn is not recorded.
//
// Objects appear under the names "screen", "softKey", "content", "list", "channel", "row 0"..., "label 0"...,
// "dialog 1"... and "msgClient" in the order of their making, the list of a choice dialog as "choices" with its rows
// "choice 0"..., the field of an entry dialog as "field"; others as the test named them. Deleting a dialog or the
// message client is recorded too.
#pragma once

namespace ToolkitRecorder {

/// Numbers rows and dialogs from the start again. Every test function calls this first.
void restart();

/// From now on choice dialogs have no list, which their getListBox() says with null.
void takeChoicesAway();
bool hasChoices();

} // namespace ToolkitRecorder
