#include "sounds.h"

#include "scenes/noise.h"

#include <QDataStream>

#include <algorithm>
#include <cmath>

static constexpr int Rate = 44100;
static constexpr double Tau = 6.283185307179586;

static QByteArray wav(const QVector<qint16> &samples)
{
    QByteArray content;
    QDataStream stream(&content, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    const auto bytes = quint32(samples.size()) * 2;
    stream.writeRawData("RIFF", 4);
    stream << quint32(36 + bytes);
    stream.writeRawData("WAVEfmt ", 8);
    stream << quint32(16) << quint16(1) << quint16(1) << quint32(Rate) << quint32(Rate * 2)
           << quint16(2) << quint16(16);
    stream.writeRawData("data", 4);
    stream << bytes;
    for (const qint16 sample : samples)
        stream << sample;
    return content;
}

static qint16 toSample(double value)
{
    return qint16(std::clamp(value, -1.0, 1.0) * 30000);
}

static QByteArray musicBox(const QVector<int> &notes)
{
    constexpr double Beat = 0.32;
    QVector<double> sum(int((notes.size() * Beat + 2) * Rate));
    for (int i = 0; i < notes.size(); ++i) {
        const double pitch = 440 * std::pow(2, (notes.at(i) - 9) / 12.0);
        for (int n = int(i * Beat * Rate), k = 0; n < sum.size() && k < 2 * Rate; ++n, ++k) {
            const double t = double(k) / Rate;
            sum[n] += 0.28 * std::exp(-3.2 * t)
                * (std::sin(Tau * pitch * t)
                   + 0.4 * std::sin(Tau * pitch * 3.01 * t) * std::exp(-4 * t));
        }
    }
    QVector<qint16> samples;
    samples.reserve(sum.size());
    for (const double value : qAsConst(sum))
        samples << toSample(value);
    return wav(samples);
}

static QByteArray surf(int seconds)
{
    Random random(99);
    QVector<qint16> samples;
    samples.reserve(seconds * Rate);
    double low = 0;
    double lower = 0;
    for (int i = 0; i < seconds * Rate; ++i) {
        const double swell = 0.35 + 0.65 * std::pow(0.5 + 0.5 * std::sin(Tau * i / Rate / 4.6), 2);
        low += (random.between(-1, 1) - low) * (0.04 + 0.12 * swell);
        lower += (low - lower) * 0.3;
        samples << toSample(lower * 1.6 * swell);
    }
    return wav(samples);
}

QVector<CardFile> cardSounds()
{
    const auto at = [](int day, int hour, int minute) {
        return QDateTime(QDate(2024, 5, day), QTime(hour, minute), Qt::UTC);
    };
    return {
        {QStringLiteral("PRIVATE/AUDIO/REC0001.WAV"), at(18, 12, 5), CardFile::Live,
         musicBox({0, 4, 7, 12, 11, 7, 4, 7, 9, 5, 2, 5, 4, 0})},
        {QStringLiteral("PRIVATE/AUDIO/REC0002.WAV"), at(20, 17, 45), CardFile::Deleted, surf(7)},
        {QStringLiteral("PRIVATE/AUDIO/REC0003.WAV"), at(22, 21, 10), CardFile::Live,
         musicBox({12, 11, 9, 7, 9, 11, 12, 16, 14, 12, 14, 16, 12})},
    };
}
