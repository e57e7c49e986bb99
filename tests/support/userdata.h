#pragma once

#include <QString>

// The folder in which the program keeps the user's data, and its replacement for tests.
namespace userdata {

// Sets the names from which the program derives the folder's path.
void useProgramIdentity();

// On Windows, overrides the user's folders in the registry for this process. Elsewhere they come from
// variables, which processes started by a test inherit. See moveTo().
void hide();

// Moves the folder below home; on Windows below Qt's own test folder.
void moveTo(const QString &home);

QString folder();
// Whether the folder is not that of this account's user.
bool isOfTests();

// Removes leftovers of other runs, since on Windows all runs of a program share the folder. Elsewhere the
// folder is new.
void clear();

} // namespace userdata
