#pragma once

/* Folders on a network that know no locks of files: there the engine would take every database for one that another program uses. The lock
   that the program has beside its database, a file, works there, too, and is the only one then. The only file that knows of system calls
   under the engine; on Windows it does nothing. */

/// From now on a lock that a volume cannot give counts as given. What another program holds is still refused.
void sperrenloseLaufwerkeDulden();
