#pragma once

#include <QString>

// The folder in which the program keeps the user's data, and that of a test in its place.
namespace userdata {

// The names that the program gives itself, of which the folder's path is made.
void useProgramIdentity();

// What the registry of Windows says of the user's folders holds no longer for this process; elsewhere
// variables say it, which processes that a test starts inherit. See moveTo().
void hide();

// From now on the folder lies below that one; on Windows below the one that Qt has for tests.
void moveTo(const QString &home);

QString folder();
// Whether it is not that of the user of this account.
bool isOfTests();

// On Windows all runs of a program share the folder: what others left in it goes. Elsewhere it is new.
void clear();

} // namespace userdata
