#pragma once

#include "common/jobthread.h"

#include <QImage>

#include <memory>
#include <mutex>

/// Packs pictures one after the other on a thread of its own. GUI thread.
class PackingQueue
{
public:
    /// Once as it came, later packed: there are never two for longer than it takes to pack it. Any
    /// thread.
    class Picture
    {
    public:
        explicit Picture(const QImage &image);

        /// Shows the same pixels before and after.
        QImage image() const;
        bool isPacked() const;

    private:
        friend class PackingQueue;
        void pack();

        mutable std::mutex m_lock;
        QImage m_image;
        bool m_packed = false;
    };

    /// Whoever lets go of it before its turn has its memory back at once.
    std::shared_ptr<Picture> add(const QImage &image);
    /// Leaves those whose turn has not come as they are, and joins the thread.
    void stop() { m_thread.stop(); }

private:
    JobThread m_thread;
};
