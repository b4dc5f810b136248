#pragma once

#include "host/media/protocol/mediaframe.h"

/// The helper's end of the pipe: standard input and output.
class HostPipe
{
public:
    /// Waits for a frame. False at the end of the input, or when it is none of ours.
    bool receive(MediaFrame::Kind *kind, QByteArray *payload);
    void send(MediaFrame::Kind kind, const QByteArray &payload);
};
