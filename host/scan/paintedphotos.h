#pragma once

#include <QByteArray>
#include <QImage>

#include <array>
#include <mutex>

/// Photos that nobody took: some dozens of motifs, each painted when it is first needed, which
/// mirrored, cropped and lit differently make some thousands of pictures. Any thread.
class PaintedPhotos
{
public:
    /// Picture number \a which as a small JPEG; the same number gives the same bytes.
    QByteArray jpeg(quint64 which);

    static constexpr int MotifCount = 48;

private:
    const QImage &motif(int index);

    struct Slot
    {
        std::once_flag painted;
        QImage image;
    };
    std::array<Slot, MotifCount> m_motifs;
};
