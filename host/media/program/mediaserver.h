#pragma once

#include "host/media/program/hostpipe.h"
#include "host/media/program/watchdog.h"
#include "host/media/protocol/mediaanswer.h"
#include "host/media/protocol/mediarequest.h"

class RangeDevice;

/// Answers the host's requests, one after the other, until there are no more.
class MediaServer
{
public:
    void run();

private:
    void serve(const MediaRequest &request);
    static MediaAnswer answerTo(const MediaRequest &request, RangeDevice &file);

    HostPipe m_pipe;
    Watchdog m_watchdog;
};
