// The folders in which the program keeps something of the user's.
#pragma once

#include "platform/Machine.h"

#include <QString>

namespace Tensarix {

// The program's own folder, and the one for its data files.
Folders Program_Folders();

// Where the file of the settings lies. It need not be there yet.
QString Settings_Folder();

// A folder that this user alone can write, for the lock and the socket: the one that the desktop
// has made for that or, without one, that of the settings, which is made then.
QString Runtime_Folder();

// Where the first instance listens to later ones: a socket in that folder or, on Windows, a pipe
// whose name no other user's has.
QString Instance_Address();

} // namespace Tensarix
