#include "host/media/program/mediaserver.h"
#include "host/media/program/photometadata.h"
#include "host/media/program/videofile.h"
#include "platform/system/system.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

// Decodes files for the host, which starts it with the memory that it may use, in bytes.
int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    bool isNumber = false;
    const quint64 memory = QCoreApplication::arguments().value(1).toULongLong(&isNumber);
    if (!isNumber) {
        std::fputs("quarvo-media is started by quarvo-host; alone it does nothing.\n", stderr);
        return EXIT_FAILURE;
    }
    System::limitMemory(memory);
    VideoFile::setUp();
    setUpPhotoMetadata();
    MediaServer().run();
    return EXIT_SUCCESS;
}
