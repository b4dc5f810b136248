#pragma once

#include <QtGlobal>

/// Repeatable random numbers: the same seed gives the same picture on every machine.
class Random
{
public:
    explicit Random(quint64 seed)
        : m_state(seed)
    {
    }

    double unit(); ///< in [0, 1)
    double between(double low, double high) { return low + (high - low) * unit(); }
    int below(int count) { return int(unit() * count); }
    bool chance(double probability) { return unit() < probability; }

private:
    quint64 m_state;
};

double mix(double a, double b, double t);
double smoothstep(double edge0, double edge1, double value);

/// Gradient noise in [-1, 1], a lattice cell a unit.
double noise(double x, double y, quint32 seed);
/// Noise over octaves, each half as high and twice as fine; about [-1, 1].
double cloudNoise(double x, double y, int octaves, quint32 seed);
/// As above with sharp crests, in [0, 1]: mountains and rock.
double ridgeNoise(double x, double y, int octaves, quint32 seed);
