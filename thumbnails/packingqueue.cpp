#include "thumbnails/packingqueue.h"

#include "thumbnails/packedpicture.h"

PackingQueue::Picture::Picture(const QImage &image)
{
    // handed over by the lock that the other thread takes
    const std::lock_guard<std::mutex> lock(m_lock);
    m_image = image;
}

QImage PackingQueue::Picture::image() const
{
    const std::lock_guard<std::mutex> lock(m_lock);
    return m_image;
}

bool PackingQueue::Picture::isPacked() const
{
    const std::lock_guard<std::mutex> lock(m_lock);
    return m_packed;
}

void PackingQueue::Picture::pack()
{
    QImage picture = packedPicture(image());
    const std::lock_guard<std::mutex> lock(m_lock);
    m_image.swap(picture);
    m_packed = true;
}

std::shared_ptr<PackingQueue::Picture> PackingQueue::add(const QImage &image)
{
    const auto added = std::make_shared<Picture>(image);
    m_thread.add([waiting = std::weak_ptr<Picture>(added)] {
        if (const auto picture = waiting.lock())
            picture->pack();
    });
    return added;
}
