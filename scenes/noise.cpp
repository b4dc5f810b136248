#include "scenes/noise.h"

#include <algorithm>
#include <cmath>

double Random::unit()
{
    quint64 z = (m_state += Q_UINT64_C(0x9e3779b97f4a7c15));
    z = (z ^ (z >> 30)) * Q_UINT64_C(0xbf58476d1ce4e5b9);
    z = (z ^ (z >> 27)) * Q_UINT64_C(0x94d049bb133111eb);
    z ^= z >> 31;
    return double(z >> 11) / double(Q_UINT64_C(1) << 53);
}

double mix(double a, double b, double t)
{
    return a + (b - a) * t;
}

double smoothstep(double edge0, double edge1, double value)
{
    const double t = std::clamp((value - edge0) / (edge1 - edge0), 0.0, 1.0);
    return t * t * (3 - 2 * t);
}

static quint32 hashed(qint32 x, qint32 y, quint32 seed)
{
    quint32 h = quint32(x) * 0x8da6b343U ^ quint32(y) * 0xd8163841U ^ seed * 0xcb1ab31fU;
    h = (h ^ (h >> 15)) * 0x2c1b3c6dU;
    h = (h ^ (h >> 12)) * 0x297a2d39U;
    return h ^ (h >> 15);
}

static double slope(qint32 cellX, qint32 cellY, double dx, double dy, quint32 seed)
{
    static const double s_directions[8][2] = {{1, 0},
                                              {-1, 0},
                                              {0, 1},
                                              {0, -1},
                                              {0.7071, 0.7071},
                                              {-0.7071, 0.7071},
                                              {0.7071, -0.7071},
                                              {-0.7071, -0.7071}};
    const double *direction = s_directions[hashed(cellX, cellY, seed) & 7];
    return direction[0] * dx + direction[1] * dy;
}

double noise(double x, double y, quint32 seed)
{
    const double floorX = std::floor(x);
    const double floorY = std::floor(y);
    const auto cellX = qint32(floorX);
    const auto cellY = qint32(floorY);
    const double dx = x - floorX;
    const double dy = y - floorY;
    const double u = dx * dx * dx * (dx * (dx * 6 - 15) + 10);
    const double v = dy * dy * dy * (dy * (dy * 6 - 15) + 10);
    const double top = mix(slope(cellX, cellY, dx, dy, seed),
                           slope(cellX + 1, cellY, dx - 1, dy, seed), u);
    const double bottom = mix(slope(cellX, cellY + 1, dx, dy - 1, seed),
                              slope(cellX + 1, cellY + 1, dx - 1, dy - 1, seed), u);
    return 1.45 * mix(top, bottom, v);
}

double cloudNoise(double x, double y, int octaves, quint32 seed)
{
    double sum = 0;
    double height = 0.55;
    for (int i = 0; i < octaves; ++i, height /= 2, x = x * 2.03 + 17.3, y = y * 2.03 + 5.1)
        sum += height * noise(x, y, seed + quint32(i));
    return sum;
}

double ridgeNoise(double x, double y, int octaves, quint32 seed)
{
    double sum = 0;
    double height = 0.5;
    double before = 1;
    for (int i = 0; i < octaves; ++i, height /= 2, x = x * 2.05 + 3.7, y = y * 2.05 + 9.2) {
        const double crest = 1 - std::abs(noise(x, y, seed + quint32(i)));
        const double sharp = crest * crest;
        sum += height * sharp * before;
        before = std::min(1.0, sharp * 1.4);
    }
    return std::min(1.0, sum * 1.15);
}
