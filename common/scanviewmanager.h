#pragma once

/// What all content areas of the process share. Made on first use, never destroyed. GUI thread.
class ScanViewManager
{
public:
    static ScanViewManager *instance();

    /// Delegates fall back to the style's own item painting. Off unless the environment variable
    /// QUARVO_PLAIN_PAINTING is set: it tells a fault of ours from one of the style or the driver.
    bool plainPainting = false;

private:
    ScanViewManager();
};
