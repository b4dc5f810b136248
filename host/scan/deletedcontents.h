#pragma once

#include <QString>

#include <tsk/libtsk.h>

class ClusterClaims;

/// Whether the contents of \a file are where its record says, as far as the file system can tell.
/// False with a sentence for the user in \a error otherwise. Loads the file's list of places.
///
/// A deleted file is damaged when a place of it belongs to another file again, when fewer places
/// are recorded than its size needs, or when they lie past the end of the medium. A deleted file on
/// FAT has kept its first place only: it is taken to go on in the free ones behind it, and \a
/// claims (null on other file systems) must bear that out.
bool checkContents(TSK_FS_FILE *file, bool deleted, ClusterClaims *claims, QString *error);
